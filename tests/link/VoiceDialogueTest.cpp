#include "link/LinkFixture.h"

namespace ostrel {
namespace {

using testing::ElementsAre;

class VoiceTest : public LinkTest {
 protected:
  VoiceTest() {
    OpenPort();
    info.Features = 0x400;
    SetNumbers(list, std::vector<std::string>{"12345", "6789"});
    list.MACRO = 0;
  }
  /// Everything that a writing wants to hear, the sum of the two numbers included.
  void AnswerAll() {
    for (const auto& [heard, answer] :
         std::map<std::string, const char*>{{"#41CLRTEL", "#BE1"},
                                            {"#46002", "#B91"},
                                            {"#46000", "#B91"},
                                            {"#4E", "#B14B37"},
                                            {"#41VCAUTMACRO=0", "#BE1"},
                                            {"#41CLRVCAUTMACRO", "#BE1"}})
      logger.Always(heard, Frames(answer));
  }
  /// What was read, and why it failed.
  Kind Read(ConfAutVoz& into) { return comms.ReadAutVozList(into).Fault().kind; }

  ConfAutVoz list;
};

TEST_F(VoiceTest, AWritingGoesStepByStep) {
  AnswerAll();
  logger.Always("#41CLRTEL", "");
  AnswerLater("#41CLRTEL", 10'900, Frames("#BE1"));
  EXPECT_TRUE(comms.WriteAutVoz(list)) << "erasing takes its time";
  EXPECT_THAT(logger.lines, ElementsAre("#41CLRTEL", "#45000+TEL=12345", "#45001+TEL=6789",
                                        "#46002", "#4E", "#41VCAUTMACRO=0"));
  SetNumbers(list, {});
  list.MACRO = kNoVoiceMacro;
  logger.lines.clear();
  logger.onLine = nullptr;
  AnswerAll();
  logger.Always("#4E", Frames("#B1FFFF"));
  EXPECT_TRUE(comms.WriteAutVoz(list));
  EXPECT_THAT(logger.lines, ElementsAre("#41CLRTEL", "#46000", "#4E", "#41CLRVCAUTMACRO"));
}

/// Each step that fails ends the attempt, and the next one starts from the erasing.
TEST_F(VoiceTest, AWritingIsTriedThreeTimesAsAWhole) {
  struct Case {
    const char* heard;
    const char* answer;
    Kind kind;
    std::size_t linesOfAnAttempt;
  };
  for (const Case& c : {Case{"#41CLRTEL", "#BE0", Kind::NotTakenOver, 1},
                        {"#45001+TEL=6789", "#BA0001", Kind::Refused, 3},
                        {"#46002", "#B90", Kind::NotTakenOver, 4},
                        {"#4E", "#B14B38", Kind::SumDiffers, 5},
                        {"#4E", "#B14B3", Kind::SumDiffers, 5},
                        {"#4E", "#B2", Kind::WrongAnswer, 5},
                        {"#41VCAUTMACRO=0", "#BE0", Kind::NotTakenOver, 6}}) {
    SCOPED_TRACE(c.heard);
    for (const int failures : {2, 3}) {
      logger.Forget();
      AnswerAll();
      for (int i = 0; i < failures; ++i) logger.Next(c.heard, Frames(c.answer));
      const LinkResult result = comms.WriteAutVoz(list);
      EXPECT_EQ(bool(result), failures == 2);
      EXPECT_EQ(std::ranges::count(logger.lines, "#41CLRTEL"), 3);
      if (failures < 3) continue;
      EXPECT_EQ(result.Fault().kind, c.kind);
      EXPECT_EQ(logger.lines.size(), 3 * c.linesOfAnAttempt);
    }
  }
}

TEST_F(VoiceTest, AReadingTakesNumbersMacroAndSum) {
  for (const auto& [macro, value] : {std::pair{"#B03", -1}, {"#B0339", 39}}) {
    ConfAutVoz read;
    read.TEL[2] = "of another logger";
    read.MACRO = 7;
    logger.Always("#4F", Frames("#B00", "#B0112345", "#B016789", "#B02", macro));
    logger.Always("#4E", Frames("#B14b37"));
    EXPECT_EQ(Read(read), Kind::None);
    EXPECT_THAT(NumbersOf(read), ElementsAre("12345", "6789"));
    EXPECT_EQ(read.MACRO, value);
    EXPECT_EQ(read.AutVozCount, 2);
  }
}

TEST_F(VoiceTest, AReadingFailsAsAWhole) {
  logger.Always("#4E", Frames("#B14B37"));
  std::string tooMany = Frames("#B00");
  for (int i = 0; i < 251; ++i) tooMany += Frames("#B011");
  for (const auto& [stream, kind] :
       {std::pair{Frames("#B01"), Kind::WrongAnswer},
        {Frames("#B00", "#B0112345"), Kind::Silence},
        {Frames("#B00", "#B0112345", "#B02"), Kind::Silence},
        {Frames("#B00", "#B0112345", "#B02", "#B04"), Kind::WrongAnswer},
        {Frames("#B00", "#B0112345", "#B02", "#B03"), Kind::SumDiffers},
        {tooMany + Frames("#B02", "#B03"), Kind::WrongAnswer}}) {
    ConfAutVoz read;
    logger.lines.clear();
    logger.Always("#4F", stream);
    EXPECT_EQ(Read(read), kind) << stream.substr(0, 40);
    EXPECT_EQ(std::ranges::count(logger.lines, "#4F"), 3);
  }
}

}  // namespace
}  // namespace ostrel
