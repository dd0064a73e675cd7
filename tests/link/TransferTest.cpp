#include "link/LinkFixture.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

class TransferTest : public LinkTest {
 protected:
  TransferTest() {
    OpenPort();
    comms.SetWire({{"NAME", [this](LineReader& line) { line.Into(name); }},
                   {"CELL", [this](LineReader& line) { line.Into(cells[line.Index()]); }},
                   {"NAME", [this](LineReader&) { name = "second registration"; }}},
                  {{"id", [this](StatementList& out) { out.Add(Statement("ID=").Text(name)); }},
                   {"none", [](StatementList&) {}},
                   {"cells", [this](StatementList& out) {
                      for (const int cell : cells) out.Add(Statement("CELL=").Digits(cell));
                    }}});
  }
  ProgressFeed::Subscription listener = comms.OnProgress([this](const Progress& told) {
    const char* stages[] = {"begun", "attempt", "step", "closing", "done", "failed"};
    hooked.push_back(stages[static_cast<int>(told.stage)] + std::string(" ") +
                     std::to_string(told.step) + " of " + std::to_string(told.expected));
  });
  std::string name;
  Bounded<int, 3> cells;
};

TEST_F(TransferTest, DownloadReadsEveryRecord) {
  std::string stream = Frames("#BD000NAME,Pozo \xE9 {x", "#BD001FUTURE,1", "#BD002CELL,2,77");
  for (int record = 3; record < 310; ++record) {
    const std::string number = std::to_string(record);
    stream += Frames("#BD" + std::string(3 - number.size(), '0') + number + "CELL,0," + number +
                     std::string(50, ' '));  // far more than the receive buffer holds
  }
  logger.Always("#42", stream + Frames("#BD"));
  bool comBusy = false;
  At(milliseconds(50), [&] { comBusy = ComBusy && comms.LinkBusy; });
  EXPECT_TRUE(comms.ReadConf());
  EXPECT_EQ(name, "Pozo é {x");
  EXPECT_EQ(cells[2], 77);
  EXPECT_EQ(cells[0], 309);
  EXPECT_TRUE(comBusy);
  EXPECT_EQ(comms.Fault().kind, Kind::None);
  Texts expected = {"begun 0 of 0", "clear", "attempt 0 of 0"};
  for (int n = 1; n <= 310; ++n) expected.push_back("step " + std::to_string(n) + " of 0");
  expected.insert(expected.end(), {"done 310 of 0", "load"});
  EXPECT_THAT(hooked, ElementsAreArray(expected));
  EXPECT_THAT(logger.lines, ElementsAre("#42"));
}

TEST_F(TransferTest, FailedAttemptsStartOver) {
  struct Case {
    const char* name;
    std::string octets;
    Kind kind;
    int number;
    int cost;  ///< ms of a failed attempt, without the drain
  };
  const std::string good = Frames("#BD000NAME,a", "#BD001CELL,1,5");
  const Case cases[] = {
      {"jump", good + Frames("#BD003CELL,1,6"), Kind::OutOfSequence, 2, 0},
      {"stranger", good + Frames("#BB002CELL,1,6"), Kind::OutOfSequence, 2, 0},
      {"wrong answer", Frames("#BE0"), Kind::OutOfSequence, 0, 0},
      {"silent", "", Kind::Silence, 0, 3000},
      {"stops", good, Kind::Silence, 2, 1000},
      {"torn", good + "#11;BD00", Kind::Silence, 2, 1000},
      {"damaged", good + "#11;BD002X\r", Kind::BadChecksum, 2, 0},
      {"all damaged", "#11;BD000X\r", Kind::BadChecksum, 0, 0},
      {"empty", Frames("#BD"), Kind::EmptyStream, 0, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    hooked.clear();
    logger.lines.clear();
    logger.Always("#42", c.octets);
    const int quiet = c.cost == 0 ? 2 * 300 : 0;  // between attempts, unless silence went before
    EXPECT_EQ(Took([&] { EXPECT_FALSE(comms.ReadConf()); }),
              milliseconds(3 * (100 + c.cost) + quiet));
    EXPECT_EQ(comms.Fault().kind, c.kind);
    EXPECT_EQ(comms.Fault().number, c.number);
    EXPECT_THAT(hooked.back(), testing::StartsWith("failed"));
    EXPECT_EQ(std::ranges::count(hooked, "clear"), 1);
    const auto isAttempt = [](const std::string& one) { return one.starts_with("attempt"); };
    EXPECT_EQ(std::ranges::count_if(hooked, isAttempt), 3) << "be they silent";
    EXPECT_EQ(std::ranges::count(hooked, "load"), 0);

    const std::size_t requests = logger.lines.size();
    EXPECT_EQ(requests, c.cost == 3000 || c.name == std::string("all damaged") ? 9U : 3U);
    logger.Next("#42", c.octets);
    logger.Always("#42", Frames("#BD000NAME,again", "#BD"));
    cells[1] = 0;
    EXPECT_TRUE(comms.ReadConf());
    EXPECT_EQ(name, "again");
    EXPECT_EQ(cells[1], c.octets.starts_with(good) ? 5 : 0)
        << "what a failed attempt brought stays";
    EXPECT_EQ(comms.Fault().kind, Kind::None);
  }
}

/// The lines are so long that the drain ahead of a request ends within one of them.
TEST_F(TransferTest, TheRestOfAFailedStreamDoesNotMeetTheNextAttempt) {
  port.SetPaced(true);
  const auto stream = [](int lines, const std::string& damaged) {
    std::string octets;
    for (int n = 0; n < lines; ++n)
      octets += n == 1 ? damaged
                       : Frames("#BD0" + std::to_string(n + 100).substr(1) + "NAME," +
                                std::string(140, 'x'));
    return octets + Frames("#BD");
  };
  logger.Next("#42", stream(30, "#00;BD001NAME,damaged\r"));
  logger.Always("#42", stream(30, Frames("#BD001NAME,good")));
  EXPECT_TRUE(comms.ReadConf());
  EXPECT_EQ(logger.lines.size(), 2U);

  logger.Forget();
  const std::string endless(96'000, 'x');
  logger.Next("#42", Frames("#BD000NAME,a", "#BD002NAME,b") + endless);
  logger.Always("#42", Frames("#BD000NAME,c", "#BD"));
  EXPECT_LE(Took([&] { comms.ReadConf(); }), seconds(45)) << "a line that is never quiet";
  EXPECT_GE(logger.lines.size(), 2U);
}

TEST_F(TransferTest, ALineWithoutAnEndIsToldAsSuch) {
  logger.Always("#42", Frames("#BD000NAME,a", "#BD001NAME," + std::string(100'000, 'x')));
  EXPECT_FALSE(comms.ReadConf());
  EXPECT_EQ(comms.Fault().kind, Kind::LineTooLong);
  EXPECT_EQ(comms.Fault().number, 1);
}

TEST_F(TransferTest, IndexOutsideItsArrayEndsTheDownload) {
  std::string trace;
  comms.Trace = [&trace](const std::string& line) { trace = line; };
  for (const std::string index : {"3", "-1", "1e9", "99999999999"}) {
    SCOPED_TRACE(index);
    logger.lines.clear();
    cells = {};
    const std::string bad = "#BD001CELL," + index + ",6";
    logger.Always("#42", Frames("#BD000CELL,2,1", bad, "#BD002CELL,0,7", "#BD"));
    EXPECT_FALSE(comms.ReadConf());
    EXPECT_EQ(comms.Fault().kind, Kind::IndexOutOfRange);
    EXPECT_EQ(comms.Fault().number, 1);
    EXPECT_EQ(comms.Fault().text, bad);
    EXPECT_TRUE(trace.ends_with(bad)) << trace;
    EXPECT_THAT(List(cells), ElementsAre(0, 0, 1));
    EXPECT_EQ(logger.lines.size(), 1U) << "no further attempt";
  }
}

TEST_F(TransferTest, UploadSendsTheStatementsAndCloses) {
  name = "Pozo é";
  cells[2] = 9;
  logger.Always("#46004", Frames("#B91ok"));
  EXPECT_THAT(comms.ComposeStatements(), ElementsAre("ID=Pozo é", "CELL=0", "CELL=0", "CELL=9"));
  EXPECT_TRUE(comms.WriteConf());
  EXPECT_EQ(loop.Now(), milliseconds(4 * 200));
  EXPECT_THAT(logger.lines, ElementsAre("#45000ID=Pozo \xE9", "#45001CELL=0", "#45002CELL=0",
                                        "#45003CELL=9", "#46004"));
  EXPECT_THAT(hooked, ElementsAre("begun 0 of 0", "attempt 0 of 0", "step 1 of 4", "step 2 of 4",
                                  "step 3 of 4", "step 4 of 4", "closing 4 of 0", "done 4 of 0"));
  listener.reset();
  hooked.clear();
  comms.WriteConf();
  EXPECT_TRUE(hooked.empty()) << "nobody listens any more";
  EXPECT_EQ(comms.Fault().kind, Kind::None);
}

TEST_F(TransferTest, WindowStartsWhenTheStatementHasLeft) {
  for (const auto& [features, window] : {std::pair{0, 200}, {0x400, 10}}) {
    info.Features = features;
    name = std::string(947, 'x');  // a frame of 960 octets, which takes a second
    logger.lines.clear();
    port.SetPaced(true);
    logger.Next("#46004", Frames("#B91"));
    const Duration took = Took([&] { EXPECT_TRUE(comms.WriteConf()); });
    const std::size_t octets = 960 + 3 * 16 + 10 + 8;  // statements, closing message and answer
    const Duration expected = LineTime(octets) + milliseconds(4 * window);
    EXPECT_NEAR(static_cast<double>(took.count()), static_cast<double>(expected.count()), 10);
  }
}

TEST_F(TransferTest, RefusalStartsTheUploadOver) {
  struct Case {
    const char* name;
    Texts answers;  ///< to statement 1, attempt by attempt
    Texts closing;  ///< to the closing message, likewise
    Kind kind;
    int number;
    int attempts;
  };
  const std::string refused = Frames("#BA0"), good = Frames("#B91"), other = Frames("#B90");
  const Case cases[] = {
      {"at once", {}, {good}, Kind::None, 0, 1},
      {"refused once", {refused}, {good}, Kind::None, 0, 2},
      {"refused with text around", {Frames("#x#BA0y")}, {good}, Kind::None, 0, 2},
      {"refused for ever", {refused, refused, refused}, {}, Kind::Refused, 1, 3},
      {"chatter is good", {Frames("#9BA0")}, {good}, Kind::None, 0, 1},
      {"damaged refusal", {"#00;BA0\r"}, {good}, Kind::None, 0, 1},
      {"wrong closing", {}, {other, other, Frames("#B9")}, Kind::NotTakenOver, 4, 3},
      {"damaged closing", {}, {other, other, "#00;B91\r"}, Kind::BadChecksum, 4, 3},
      {"silent closing", {}, {"", ""}, Kind::Silence, 4, 3},
      {"late refusal", {}, {refused, refused, refused}, Kind::Refused, 3, 3},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    logger.Forget();
    for (const std::string& answer : c.answers) logger.Next("#45001CELL=0", answer);
    for (const std::string& answer : c.closing) logger.Next("#46004", answer);
    comms.RxLine = "#B91";  // of an earlier upload
    EXPECT_EQ(comms.WriteConf(), c.kind == Kind::None);
    EXPECT_EQ(comms.Fault().kind, c.kind);
    EXPECT_EQ(comms.Fault().number, c.number);
    EXPECT_EQ(std::ranges::count(logger.lines, "#45000ID="), c.attempts);
  }
}

TEST_F(TransferTest, AnswersMayComeLate) {
  AnswerLater("#46004", 999, Frames("#B91"));
  EXPECT_EQ(Took([&] { EXPECT_TRUE(comms.WriteConf()); }), milliseconds(4 * 200 + 999));
  EXPECT_EQ(logger.lines.size(), 5U);
  AnswerLater("#45001CELL=0", 250, Frames("#BA0"));  // seen in the window of the next statement
  EXPECT_EQ(Took([&] { EXPECT_FALSE(comms.WriteConf()); }), milliseconds(3 * (200 + 250)));
  EXPECT_EQ(comms.Fault().kind, Kind::Refused);
  EXPECT_EQ(comms.Fault().number, 2);
  EXPECT_EQ(comms.Fault().text, "CELL=0");
}

TEST_F(TransferTest, EachAttemptSendsTheModelAsItIsThen) {
  logger.onLine = [this](const std::string&) { name = "after"; };
  logger.Next("#45002CELL=0", Frames("#BA0"));
  logger.Always("#46004", Frames("#B91"));
  EXPECT_TRUE(comms.WriteConf());
  EXPECT_EQ(logger.lines[0], "#45000ID=");
  EXPECT_EQ(logger.lines[3], "#45000ID=after");
}

/// A line that flow control holds is a slow line, wherever in a message it stops.
class HeldLine : public TransferTest {
 protected:
  HeldLine() {
    port.SetPaced(true);
    logger.Always("#42", Frames("#BD000NAME,b", "#BD"));
    logger.Always("#46004", Frames("#B91"));
    logger.Always("#41CNT1=2", Frames("#BE1"));
  }
  /// Holds the line towards the logger from `after` on.
  void Hold(Duration after, Duration span) {
    At(after, [this] { port.HoldOutput(kPort, true); });
    At(after + span, [this] { port.HoldOutput(kPort, false); });
  }
  const std::vector<std::function<bool()>> dialogues = {[this] { return comms.ReadConf(); },
                                                        [this] { return comms.WriteConf(); },
                                                        [this] { return comms.SetTotalCNT(1, 2); }};
};

TEST_F(HeldLine, AHoldIsWaitedFor) {
  for (const int hold : {400, 700, 1500, 5000, 9000}) {
    comms.ReplyTimeout = hold == 9000 ? 10'000 : 1000;
    for (const auto& dialogue : dialogues) {
      for (const int after : {0, 105, 230}) {
        SCOPED_TRACE(testing::Message() << hold << " ms, " << after << " ms into the dialogue");
        logger.lines.clear();
        Hold(milliseconds(after), milliseconds(hold));
        EXPECT_TRUE(dialogue());
        EXPECT_LE(logger.lines.size(), 5U) << "no message is sent again";
        loop.RunFor(seconds(10));
      }
    }
  }
}

TEST_F(HeldLine, ALineHeldForGoodIsGivenUpAndHalfAMessageHarmsNoLaterOne) {
  name = "Pozo";
  for (const auto& dialogue : dialogues) {
    logger.Forget();
    for (const int after : {5, 105})
      At(milliseconds(after), [this] { port.HoldOutput(kPort, port.OutBufferCount() > 0); });
    EXPECT_LE(Took([&] { EXPECT_FALSE(dialogue()); }), milliseconds(10'150));
    EXPECT_EQ(comms.Fault().kind, Kind::LineHeld);
    EXPECT_NE(logger.raw.back(), '\r') << "the message was held in the middle";
    port.HoldOutput(kPort, false);
    logger.Always("#46004", Frames("#B91"));
    EXPECT_TRUE(comms.WriteConf());
    ASSERT_EQ(logger.lines.size(), 6U);
    EXPECT_EQ(logger.lines[1], "#45000ID=Pozo") << "the first of the next upload is whole";
  }
  At(milliseconds(5), [this] { port.HoldOutput(kPort, true); });
  EXPECT_FALSE(comms.WriteConf());
  port.HoldOutput(kPort, false);
  logger.raw.clear();
  At(milliseconds(900), [this] { EXPECT_EQ(logger.raw, "\r"); });
  comms.CloseComs(true);
  EXPECT_EQ(logger.raw, "\r+++ATH\rATH\rATH\r<down>")
      << "what was torn ends ahead of the guard time";
}

}  // namespace
}  // namespace ostrel
