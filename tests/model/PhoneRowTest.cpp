#include <gtest/gtest.h>

#include "model/PhoneRow.h"

namespace ostrel {
namespace {

ConfPhone Former() {
  ConfPhone phone{.TLF = "600", .Prio = 5, .PRV = 3, .MASKMODE = 2, .ListaMask = {}};
  for (int place = 0; place < kMaskPlaces; ++place) phone.ListaMask[place] = 70;
  return phone;
}

TEST(PhoneRow, ComposesAndReadsBack) {
  ConfPhone phone{.TLF = "+34600111222", .Prio = 2, .PRV = 2, .MASKMODE = 1, .ListaMask = {}};
  for (int place = 0; place < kMaskPlaces; ++place) phone.ListaMask[place] = kNoChannel;
  phone.ListaMask[0] = 21;
  phone.ListaMask[1] = 1;
  phone.ListaMask[2] = 20;  // a number of no channel has no token
  phone.ListaMask[3] = 29;
  EXPECT_EQ(PhoneRow(phone, false), "+34600111222,Prio=2,PRV2,MASKMODE1,DI0,AI1,MB0");
  EXPECT_EQ(PhoneRow(phone, true), "+34600111222,Prio=2,PRV2,MASKMODE1,DI0,AI1,EX0");

  ConfPhone read;
  ReadPhoneRow(PhoneRow(phone, false), read);
  phone.ListaMask[2] = 29;
  phone.ListaMask[3] = kNoChannel;
  EXPECT_EQ(read, phone);
}

TEST(PhoneRow, UnusableFieldsLeaveTheSlotsValues) {
  const std::string_view unusable[] = {"1,Prio=9,PRV4,MASKMODE3", "1,prio=1,PRV,MASKMODE11",
                                       "1,Prio=,PRV-1,", "1"};
  for (const std::string_view row : unusable) {
    ConfPhone expected = Former();
    expected.TLF = "1";
    for (int place = 0; place < kMaskPlaces; ++place) expected.ListaMask[place] = kNoChannel;
    ConfPhone phone = Former();
    ReadPhoneRow(row, phone);
    EXPECT_EQ(phone, expected) << row;
  }
  ConfPhone phone = Former();
  ReadPhoneRow("1,Prio=0,PRV0,MASKMODE0,rubbish", phone);
  EXPECT_EQ(phone.Prio + phone.PRV + phone.MASKMODE, 0);
  EXPECT_EQ(phone.ListaMask[0], 0) << "an unknown token is the first analog input";
}

TEST(PhoneRow, TheEarlierFormNamesTwelveChannels) {
  ConfPhone phone = Former();
  ReadEarlierPhoneRow("612,Prio=1,PRV1,D7,A3,D8,A4,DI0,,", phone);
  EXPECT_EQ(phone.TLF, "612");
  EXPECT_EQ(phone.Prio, 1);
  EXPECT_EQ(phone.PRV, 1);
  EXPECT_EQ(phone.MASKMODE, 1);
  EXPECT_EQ(phone.ListaMask[0], 28);
  EXPECT_EQ(phone.ListaMask[1], 3);
  for (int place = 2; place < 5; ++place) EXPECT_EQ(phone.ListaMask[place], 70) << "left";
  EXPECT_EQ(phone.ListaMask[5], kNoChannel);
  ReadEarlierPhoneRow("612,Prio=1,PRV1", phone);
  EXPECT_EQ(phone.MASKMODE, 0);
}

}  // namespace
}  // namespace ostrel
