#include <gmock/gmock.h>

#include "BlockFixture.h"

namespace ostrel {
namespace {

using testing::ElementsAre;

class ReportBlocks : public BlockFixture {
 protected:
  void BeginStream() {
    for (const Block& block : Blocks())
      if (block.beginStream) block.beginStream(conf);
  }
};

TEST_F(ReportBlocks, MacrosComeInTheOrderOfArrival) {
  conf.Macro.LINE[2] = "former";
  BeginStream();
  Receive("MACROS,7,{S0=1,NAME=Paro {x},NAME=y}");
  Receive("MACRO,12,{}");
  Receive("F, 3,{D0&D1}");
  EXPECT_EQ(conf.Macro.LINE[0], "MACRO7={S0=1,NAME=Paro {x}") << "the first closing brace ends it";
  EXPECT_EQ(conf.Macro.LINE[1], "MACRO12={}");
  EXPECT_EQ(conf.Macro.LINE[2], "F3={D0&D1}");
  EXPECT_EQ(conf.Macro.MacroPoolCount, 3);
  BeginStream();
  EXPECT_EQ(conf.Macro, ConfMacro{}) << "a repeated stream starts with an empty pool";
  for (int line = 0; line < 57; ++line) Receive("MACROS,1,{X}");
  EXPECT_THROW(Receive("MACROS,1,{X}"), BoundFailure);
}

TEST_F(ReportBlocks, TheFirst40PlacesAreSentAsTheyStand) {
  EXPECT_THAT(Statements(PageId::Macros), ElementsAre("CLEARMACRO"));
  conf.Macro.LINE[3] = "MACRO1={S0=1,NAME=Paro}";
  conf.Macro.LINE[39] = "last";
  conf.Macro.LINE[40] = "beyond";
  EXPECT_THAT(Statements(PageId::Macros),
              ElementsAre("CLEARMACRO", "MACRO1={S0=1,NAME=Paro}", "last"));
  DeviceConf read = conf;
  read.Macro = {};
  for (const int place : {3, 39}) {
    read.Macro.LINE[place == 3 ? 0 : 1] = conf.Macro.LINE[place];
    const DeviceConf asSent = ReadAsSent(read, conf, {profile, 0});
    EXPECT_EQ(asSent.Macro.LINE[3] == conf.Macro.LINE[3], place == 39) << "all of it, or as it is";
    EXPECT_EQ(asSent.Macro.LINE[40], "") << "what was not sent has not come back";
  }
  const std::string file = FileText(PageId::Macros);
  EXPECT_TRUE(file.starts_with("[MACROS]\r\nLINE( 0)=\r\n")) << file;
  EXPECT_TRUE(file.ends_with("\r\nLINE( 55)=")) << file;
  EXPECT_NE(file.find("\r\nLINE( 3)=MACRO1={S0=1,NAME=Paro}\r\n"), std::string::npos) << file;
}

TEST(MacroLine, IsTakenApart) {
  const auto parts = [](std::string_view text) {
    const auto line = ReadMacroLine(text);
    if (!line) return std::string("none");
    return (line->isEquation ? "F" : "M") + std::to_string(line->number) + "|" +
           std::string(line->command) + "|" + std::string(line->name);
  };
  EXPECT_EQ(parts("MACRO7={S0=1,NAME=Paro}"), "M7|S0=1|Paro");
  EXPECT_EQ(parts("MACRO0={}"), "M0||");
  EXPECT_EQ(parts("F15={A,NAME=B}"), "F15|A,NAME=B|");
  for (const auto* broken : {"", "MACRO={X}", "MACRO-1={X}", "F1={X", "F1={X}}", "F1={X}Y", "F1X}",
                             "G1={X}", "MACRO1= {X}"})
    EXPECT_EQ(parts(broken), "none") << broken;
}

TEST_F(ReportBlocks, ALineWithoutFtpEmptiesIt) {
  conf.Gprs.FTP_IP = conf.Gprs.FTP_USER = "former";
  Receive("GPRS,apn,,,5,6,7,0,0,1,8,0");
  EXPECT_EQ(conf.Gprs.FTP_IP + conf.Gprs.FTP_USER, "")
      << "a logger without FTP tells nothing of it";
  EXPECT_EQ(conf.Gprs.FTP_RETRIES, 0);
}

TEST_F(ReportBlocks, EmptyGprsAndVoiceList) {
  EXPECT_EQ(conf.Gprs, (ConfGprs{"", "", "", 10, 60, 120, kFalse, "0", 0, 300, kFalse, "0", "", "",
                                 "", 10, 60}));
  EXPECT_EQ(conf.AutVoz.MACRO, -1);
  EXPECT_TRUE(FileText(PageId::Aut_Voz).ends_with("\r\nTEL 250="));
  EXPECT_TRUE(Statements(PageId::Aut_Voz).empty()) << "it has a dialogue of its own";
  Restore(PageId::GPRS, "[GPRS]\r\nAPN_SERVER=x");
  EXPECT_EQ(conf.Gprs.APN_RETRIES, 0) << "a missing number is 0, not as emptying leaves it";
}

TEST(VoiceNumbers, TheSumIsOfTheOctetsInTheirOrder) {
  const auto sum = [](std::vector<std::string> numbers) {
    ConfAutVoz list;
    SetNumbers(list, numbers);
    return list.AutVozCrc;
  };
  EXPECT_EQ(sum({}), -1);
  EXPECT_EQ(sum({"123456789"}), 0x4B37) << "the check value of the sum";
  EXPECT_EQ(sum({"12", "", "34"}), sum({"1", "234"}));
  EXPECT_NE(sum({"12", "34"}), sum({"34", "12"}));
  EXPECT_EQ(sum({"\xC3\xB1"}), -15'234) << "one octet of the code page, not two";
}

TEST(VoiceNumbers, AColumnIsTakenLineByLine) {
  std::vector<std::string> numbers{"600"};
  const auto refused = AddNumbers(
      "\xEF\xBB\xBF+34 600\xC2\xA0"
      "111\r\n\r\nAna\n600\n 601 \n6,1",
      numbers);
  EXPECT_THAT(numbers, ElementsAre("600", "+34600111", "601"));
  EXPECT_THAT(refused, ElementsAre(RefusedNumber{3, "Ana", NumberFault::NotANumber},
                                   RefusedNumber{4, "600", NumberFault::InTheListAlready},
                                   RefusedNumber{6, "6,1", NumberFault::NotANumber}));
  EXPECT_TRUE(AddNumbers("600", numbers, Repeated::Taken).empty());
  numbers.resize(249, "7");
  EXPECT_THAT(AddNumbers("801\n802", numbers),
              ElementsAre(RefusedNumber{2, "802", NumberFault::ListFull}));
  EXPECT_EQ(numbers.size(), 250U);
}

}  // namespace
}  // namespace ostrel
