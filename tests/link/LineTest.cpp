#include "link/LinkFixture.h"

namespace ostrel {
namespace {

using testing::ElementsAre;

/// Frames, plain lines and the waits for them.
class LineTest : public LinkTest {
 protected:
  LineTest() {
    OpenPort();
    comms.Trace = [this](const std::string& line) { trace.push_back(line); };
  }
  std::string Send(std::string message, int timeout) {
    comms.TxSer(message, timeout);
    return message;
  }

  Texts trace;
};

TEST_F(LineTest, RxSerTakesOneFrame) {
  struct Case {
    std::string octets;
    std::string RxLine;  ///< empty for a failure
    int RxChars;
  };
  const Case cases[] = {
      {"OK\r\n\x01#64;40\r", "#40", 6},
      {"#e9;\xE9\r", "#é", 5},
      {"#80;\x80\r", "#€", 5},
      {"#64;4", "", 4},
      {"#64:40\r", "#40", 6},
      {"#AA;\r", "", 4},
      {"#6 ;40\r", "", 6},
      {"#+4;4\r", "", 5},
      {"#00;@@@@\r", "#@@@@", 8},
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

TEST_F(LineTest, RxSerDeliversFramesOneByOneWithinOneCountdown) {
  logger.end->Send(Frames("#A", "#B"));
  EXPECT_TRUE(comms.RxSer(100) && comms.RxLine == "#A");
  EXPECT_TRUE(comms.RxSer(100) && comms.RxLine == "#B");
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

TEST_F(LineTest, TxSerSendsUpToThreeTimes) {
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
  EXPECT_EQ(logger.lines.size(), 4U) << "an unexpected answer is an answer";
  EXPECT_EQ(Took([&] { Send("#42", 10'000); }), milliseconds(30'100));
  EXPECT_EQ(comms.RxLine, "");
  port.SetPaced(true);
  const std::string slow(956, '@');
  EXPECT_EQ(Took([&] { Send(slow, 1000); }), milliseconds(100) + 3 * LineTime(960) + seconds(3))
      << "the window starts when the message has left";
}

TEST_F(LineTest, TxSerWithoutWaitLeavesTheReplyForLater) {
  logger.Always("#40", Frames("#BF"));
  comms.RxLine = "old";
  EXPECT_EQ(Send("#40", 0), "#64;40");
  EXPECT_EQ(Send("#é", -1), "#E9;é");
  EXPECT_EQ(comms.RxLine, "old");
  EXPECT_TRUE(comms.RxSer(100));
  EXPECT_EQ(comms.RxLine, "#BF");
  EXPECT_EQ(logger.raw, "#64;40\r#E9;\xE9\r");
}

TEST_F(LineTest, GsmLines) {
  struct Case {
    Texts answers;
    std::string RxLine;
    std::size_t sent;
  };
  const Case cases[] = {
      {{"\r\n OK\r"}, "OK", 1},
      {{"\x7F\x80RING 1\nx\r"}, "RING 1\nx", 1},
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

TEST_F(LineTest, TraceShowsMessagesWithTheirTimeAndNoCode) {
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

/// A stale line that comes when there is no time left to ask is no answer.
TEST_F(LineTest, ADrainThatIsCutOffLeavesNoAnswer) {
  Line& line = comms.TheLine();
  const std::pair<std::string, std::function<void()>> cases[] = {
      {Frames("#A2260115083005"), [&] { line.Ask("#5D"); }},
      {"OK\r", [&] { line.AskModem("AT", 100); }},
  };
  for (const auto& [stale, ask] : cases) {
    At(milliseconds(50), [&] { logger.end->Send(stale); });
    comms.Trace = [this](const std::string&) { loop.HoldUp(milliseconds(100)); };
    line.Converse(milliseconds(90), [&] {
      ask();
      EXPECT_EQ(comms.RxLine, "");
      EXPECT_EQ(line.WaitFault().kind, Kind::OutOfTime);
      return LinkFault{};
    });
  }
  EXPECT_EQ(logger.raw, "");
}

/// It would tear its frame, and its rest could be a frame of its own.
TEST_F(LineTest, AMessageWithAControlCharacterIsNeverSent) {
  const std::string torn = "#45000ID=a\r#64;40";
  Line& line = comms.TheLine();
  const LinkResult result = line.Converse(kNever, [&] {
    EXPECT_FALSE(line.Post(torn));
    EXPECT_FALSE(line.Ask("#40"));
    return line.WaitFault(7);
  });
  EXPECT_EQ(result.Fault().kind, Kind::Unsendable);
  EXPECT_EQ(result.Fault().number, 7);
  comms.TxGsm("ATD6\nATZ", 0);
  comms.Delay(1);
  EXPECT_EQ(Send("#\x7F", 1000), "#\x7F");
  EXPECT_EQ(logger.raw, "");
  EXPECT_EQ(trace.front(),
            "        0 Not sent, it holds a control character: #45000ID=a\\x0d#64;40");
  EXPECT_TRUE(line.Converse(kNever, [&] { return line.AskFor("#40", ""); }).Fault().kind ==
              Kind::Silence)
      << "the next dialogue is free";
}

TEST_F(LineTest, WhoeverIsAskedToGiveWayEndsBehindItsMessage) {
  Background& reading = comms.Reading();
  int done = 0, behind = 0;
  EXPECT_FALSE(reading.Behind([&] { ++behind; })) << "nothing runs";
  loop.After(milliseconds(300), "an operator", [&] {
    EXPECT_TRUE(reading.Behind([&] {
      EXPECT_EQ(done, 0) << "in their order";
      ++behind;
    }));
    reading.WhenFree([&] {
      EXPECT_FALSE(comms.LinkBusy);
      ++done;
    });
  });
  const Duration took =
      Took([&] { reading.Run(Background::Cut::BetweenMessages, [&] { comms.ReadRealTime(); }); });
  EXPECT_EQ(took, milliseconds(1100)) << "asked once, of one value";
  EXPECT_EQ(done, 0);
  loop.RunFor(milliseconds(1));
  EXPECT_EQ(done + behind, 2);
  EXPECT_TRUE(reading.IsCut());
  for (const LiveRead& read : live.reads) EXPECT_EQ(read.missed, 0);
}

TEST_F(LineTest, TraceTellsOfOctetsThatNobodyTook) {
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

}  // namespace
}  // namespace ostrel
