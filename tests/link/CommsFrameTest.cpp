#include "link/LinkFixture.h"

namespace ostrel {
namespace {

using testing::ElementsAre;

class CommsFrame : public LinkTest {
 protected:
  CommsFrame() { OpenPort(); }
  std::string Send(std::string message, int timeout) {
    comms.TxSer(message, timeout);
    return message;
  }
};

TEST_F(CommsFrame, RxSerTakesOneFrame) {
  struct Case {
    std::string octets;
    std::string RxLine;  ///< empty for a failure
    int RxChars;
  };
  const Case cases[] = {
      {"#64;40\r", "#40", 6},
      {"OK\r\n\x01#64;40\r", "#40", 6},
      {"#e9;\xE9\r", "#é", 5},
      {"#80;\x80\r", "#€", 5},
      {"#65;40\r", "", 6},
      {"#AA;\r", "", 4},
      {"#\r", "", 1},
      {"#64;4", "", 4},
      {"", "", 0},
      {"#87;40#\r", "#40#", 7},
      {"#64;40\n\r", "", 7},
      {"#00;" + std::string(4 * 16383, '@') + "\r", "#" + std::string(4 * 16383, '@'), 65536},
      {"#00;" + std::string(4 * 16384, '@') + "\r", "", 65540},
      {std::string(20'000, '?'), "", 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.octets.substr(0, 20));
    comms.RxLine = "old";
    comms.RxChars = 0;
    logger.end->Send(c.octets);
    EXPECT_EQ(comms.RxSer(100), !c.RxLine.empty());
    EXPECT_EQ(comms.RxLine, c.RxLine);
    EXPECT_EQ(comms.RxChars, c.RxChars);
    EXPECT_EQ(port.InBufferCount(), 0U);
  }
}

TEST_F(CommsFrame, RxSerDeliversFramesOneByOneWithinOneCountdown) {
  logger.end->Send(Frames("#A", "#B"));
  EXPECT_TRUE(comms.RxSer(100));
  EXPECT_EQ(comms.RxLine, "#A");
  EXPECT_TRUE(comms.RxSer(100));
  EXPECT_EQ(comms.RxLine, "#B");
  EXPECT_EQ(loop.Now(), Duration::zero());

  for (const int ms : {0, 60, 120}) At(milliseconds(ms), [this] { logger.end->Send("#6"); });
  EXPECT_FALSE(comms.RxSer(100)) << "characters do not restart the countdown";
  EXPECT_EQ(loop.Now(), milliseconds(100));

  At(milliseconds(50), [this] {
    logger.end->Send("\r#64;40\r");
    loop.HoldUp(milliseconds(400));
  });
  EXPECT_FALSE(comms.RxSer(100)) << "the rest of the torn frame";
  EXPECT_TRUE(comms.RxSer(100)) << "it came in time, though the loop was held up";
}

TEST_F(CommsFrame, TxSerSendsUpToThreeTimes) {
  logger.Next("#40", "#00;BF\r");
  logger.Next("#40", "noise");
  logger.Next("#40", Frames("#BF"));
  logger.end->Send(Frames("#stale", "#too"));
  EXPECT_EQ(Send("#40", 1000), "#64;40");
  EXPECT_EQ(comms.RxLine, "#BF");
  EXPECT_EQ(logger.raw, "#64;40\r#64;40\r#64;40\r");
  EXPECT_EQ(loop.Now(), milliseconds(1100)) << "a bad frame is answered at once, silence is not";

  logger.Always("#41", Frames("#odd"));
  Send("#41", 1000);
  EXPECT_EQ(comms.RxLine, "#odd");
  EXPECT_EQ(logger.lines.size(), 4U) << "an unexpected answer is an answer";
}

TEST_F(CommsFrame, DeadLineCostsThreeWaitsAndTheDrain) {
  comms.RxLine = "old";
  Send("#40", 10'000);
  EXPECT_EQ(loop.Now(), milliseconds(30'100));
  EXPECT_EQ(comms.RxLine, "");
}

TEST_F(CommsFrame, TxSerWithoutWaitLeavesTheReplyForLater) {
  logger.Always("#40", Frames("#BF"));
  comms.RxLine = "old";
  EXPECT_EQ(Send("#40", 0), "#64;40");
  EXPECT_EQ(Send("#é", -1), "#E9;é");
  EXPECT_EQ(comms.RxLine, "old");
  EXPECT_TRUE(comms.RxSer(100));
  EXPECT_EQ(comms.RxLine, "#BF");
  EXPECT_EQ(logger.raw, "#64;40\r#E9;\xE9\r");
}

TEST_F(CommsFrame, ClosedPortLeavesEverythingAlone) {
  port.SetPortOpen(false);
  comms.RxLine = "old";
  EXPECT_EQ(Send("#40", 1000), "#40");
  comms.TxGsm("AT", 1000);
  EXPECT_FALSE(comms.RxSer(1000));
  EXPECT_FALSE(comms.RxGsm(1000));
  EXPECT_EQ(comms.GetChar(1000), "");
  EXPECT_EQ(comms.RxLine, "old");
  EXPECT_EQ(loop.Now(), Duration::zero());
}

TEST_F(CommsFrame, ReplyWindowStartsWhenTheMessageHasLeft) {
  port.SetPaced(true);
  const std::string message(1921, '@');
  Send(message, 1000);
  EXPECT_EQ(loop.Now(), milliseconds(100 + 3 * 1000) + 3 * LineTime(message.size() + 4));
}

TEST_F(CommsFrame, GsmLines) {
  struct Case {
    Texts answers;
    std::string RxLine;
    std::size_t sent;
  };
  const Case cases[] = {
      {{"\r\n OK\r"}, "OK", 1},
      {{"\x7F\x80RING 1\nx\r"}, "RING 1\nx", 1},
      {{"", "OK\r"}, "OK", 2},
      {{"+CME ERROR: 515\r", "+CME ERROR: 516\r"}, "+CME ERROR: 516", 2},
      {{"+CME ERROR: 515\r", "+CME ERROR: 515\r", "+CME ERROR: 515\r"}, "+CME ERROR: 515", 3},
      {{"half", "half", "half"}, "", 3},
      {{std::string(70'000, 'x') + "\r", "OK\r"}, "OK", 2},
  };
  for (const Case& c : cases) {
    for (const std::string& answer : c.answers) logger.Next("AT", answer);
    logger.lines.clear();
    logger.end->Send("\r\nstale\r");
    comms.TxGsm("AT", 200);
    EXPECT_EQ(comms.RxLine, c.RxLine);
    EXPECT_EQ(logger.lines.size(), c.sent) << c.RxLine;
  }
  logger.raw.clear();
  comms.TxGsm("ATH", 0);
  comms.Delay(1);
  EXPECT_EQ(logger.raw, "ATH\r");
}

TEST_F(CommsFrame, GetCharAndDelayServeTheLoop) {
  int ticks = 0;
  loop.Every(milliseconds(100), "tick", [&ticks] { ++ticks; });
  At(milliseconds(30), [this] { logger.end->Send("\xE9x"); });
  EXPECT_EQ(comms.GetChar(10), "");
  EXPECT_EQ(comms.GetChar(1000), "\xE9");
  EXPECT_EQ(comms.GetChar(0), "x");
  EXPECT_EQ(loop.Now(), milliseconds(30));
  comms.Delay(1000);
  EXPECT_EQ(loop.Now(), milliseconds(1030));
  EXPECT_EQ(ticks, 10);
}

TEST_F(CommsFrame, TraceShowsMessagesWithTheirTimeAndNoCode) {
  Texts trace;
  comms.Trace = [&trace](const std::string& line) { trace.push_back(line); };
  logger.Next("#40", "#00;BF\r");
  logger.Always("#40", Frames("#BF\xE9"));
  logger.Always("AT", "OK\r");
  Send("#40", 1000);
  Send("#111234", 0);
  comms.TxGsm("AT", 100);
  EXPECT_THAT(
      trace, ElementsAre("      100 TxSer: #40", "      100 RxSer Checksum error!",
                         "      100 TxSer: #40", "      100 RxSer: #BFé",
                         "      100 TxSer: #11****", "      200 TxGsm: AT", "      200 RxGsm: OK"));
}

TEST_F(CommsFrame, TraceTellsOfOctetsThatNobodyTook) {
  Texts trace;
  comms.Trace = [&trace](const std::string& line) { trace.push_back(line); };
  for (int second = 0; second < 3; ++second) {
    logger.end->Send(std::string(10'000, 'x'));
    comms.Delay(1000);
  }
  logger.end->Send(Frames("#BF"));
  comms.Delay(1);
  EXPECT_TRUE(comms.RxSer(100)) << "the latest is there";
  EXPECT_THAT(trace, ElementsAre("     3001 Receive buffer full, octets lost: 21815",
                                 "     3001 RxSer: #BF"));
}

TEST_F(CommsFrame, SilenceIsCountedWhileADialogueRuns) {
  EXPECT_EQ(comms.SilentFor(), Duration::zero());
  {
    const Comms::Dialogue dialogue(comms);
    EXPECT_TRUE(comms.LinkBusy);
    comms.Delay(700);
    EXPECT_EQ(comms.SilentFor(), milliseconds(700));
    logger.end->Send(Frames("#BF"));
    EXPECT_TRUE(comms.RxSer(100));
    EXPECT_EQ(comms.SilentFor(), Duration::zero());
    comms.Delay(300);
    EXPECT_EQ(comms.SilentFor(), milliseconds(300));
  }
  EXPECT_FALSE(comms.LinkBusy);
  EXPECT_EQ(comms.SilentFor(), Duration::zero());
}

}  // namespace
}  // namespace ostrel
