#include "BlockFixture.h"
#include "model/PhoneRow.h"

namespace ostrel {
namespace {

class GeneralBlock : public BlockFixture {
 protected:
  std::vector<std::string> PhoneStatements() {
    auto all = Statements(PageId::General);
    all.erase(all.begin(), std::find(all.begin(), all.end(), "CLRTLF") + 1);
    return all;
  }
};

TEST_F(GeneralBlock, ReadsTelephonesOfNewFirmwareAndFreeSlots) {
  info.Features = 0x10000;
  Receive("TLF,20,600111222,3,2,ignored,2,21,255,61");
  Receive("RENVN,40000");
  EXPECT_EQ(conf.Phone[20].ListaMask[3], 0) << "a missing field is 0";
  EXPECT_EQ(conf.General.RENVN, 3) << "too wide a number";
  const auto before = conf;
  for (const char* line : {"TLF,20,60,1,1", "TLF,3,", "TLF,99,"}) Receive(line);
  EXPECT_EQ(conf, before) << "a number of less than three characters is a free slot";
}

TEST_F(GeneralBlock, ComposesTelephonesForEachFirmware) {
  Restore(PageId::General,
          "[GENERAL]\r\nTLFM 0=600,Prio=1,PRV0,MASKMODE0\r\n"
          "TLFM 19=611,Prio=8,PRV3,MASKMODE2,DI7,AI3,FG3,DI8,DI0");
  EXPECT_EQ(PhoneStatements(),
            (std::vector<std::string>{"+TLF=600,Prio=1,PRV0", "+TLF=611,Prio=8,PRV3,D7,A3,D0"}));
  info.Features = 0x10000;
  EXPECT_EQ(PhoneStatements(),
            (std::vector<std::string>{"+TLF=600,Prio=1,PRV0,MASKMODE0",
                                      "+TLF=611,Prio=8,PRV3,MASK= 28 3 64 97 21 255 255 255 255 "
                                      "255 255 255 255 255 255 255,MASKMODE2"}));
}

TEST_F(GeneralBlock, FilesOfBothFormsAreRead) {
  Restore(PageId::General,
          "[General]\r\nNOMBRE=Pozo\r\nRENVT= 15\r\nTLF 0=600,Prio=2,PRV1,D1,A0\r\n"
          "TLF 1=601,Prio=1,PRV0");
  EXPECT_EQ(conf.General.DNAME, "Pozo");
  EXPECT_EQ(conf.General.RENVT, 15);
  EXPECT_EQ(conf.General.RENVN, 0) << "a missing number reads as 0";
  EXPECT_EQ(PhoneRow(conf.Phone[0], false), "600,Prio=2,PRV1,MASKMODE1,DI1,AI0");
  EXPECT_EQ(PhoneRow(conf.Phone[1], false), "601,Prio=1,PRV0,MASKMODE0");
  Restore(PageId::General,
          "[GENERAL]\r\nTLF 0=600,Prio=2,PRV1\r\nTLFM 5=605,Prio=0,PRV3,MASKMODE0");
  EXPECT_EQ(conf.Phone[0].TLF, "") << "one present key leaves the earlier form unread";
  EXPECT_EQ(conf.Phone[5].TLF, "605");
  EXPECT_TRUE(FileText(PageId::General).ends_with("RESTORE=\r\nTLFM 5=605,Prio=0,PRV3,MASKMODE0"))
      << FileText(PageId::General);
}

TEST_F(GeneralBlock, ClearingKeepsAllOfASlotButItsNumber) {
  conf.Phone[20] = {.TLF = "600", .Prio = 4, .PRV = 3, .MASKMODE = 2, .ListaMask = {}};
  FindBlock(PageId::General)->clear(conf, profile, translate);
  EXPECT_EQ(conf.Phone[20].TLF, "");
  EXPECT_EQ(conf.Phone[20].Prio, 4);
  EXPECT_EQ(conf.General.RENVT, 10);
}

}  // namespace
}  // namespace ostrel
