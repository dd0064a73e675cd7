#include <gtest/gtest.h>

#include "model/Field.h"

namespace ostrel {
namespace {

TEST(FieldText, ReadsWhatAFileMayHold) {
  std::int16_t number = 7;
  std::uint8_t week = 5;
  TimeOfDay time{90};
  Bool16 flag = kTrue;
  SetFieldText(&number, "99999");
  EXPECT_EQ(number, 7) << "outside its width";
  SetFieldText(&number, " 2.5 rest");
  EXPECT_EQ(number, 2) << "halves go to the even number";
  SetFieldText(&number, "");
  EXPECT_EQ(number, 0);
  SetFieldText(&week, "256");
  EXPECT_EQ(week, 5);
  SetFieldText(&time, "");
  EXPECT_EQ(time.seconds, 90) << "a time that does not convert is passed over";
  SetFieldText(&time, "23:59:59");
  EXPECT_EQ(time.seconds, 86399);
  SetFieldText(&flag, "true");
  EXPECT_EQ(flag, kFalse);
}

}  // namespace
}  // namespace ostrel
