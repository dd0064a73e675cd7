#include "link/LinkFixture.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using Stage = FirmwareStage;

/// A logger that takes firmware: answers frames by a script, and a stream by marks.
class Taker final : public LineDevice {
 public:
  void Receive(std::string_view octets) override {
    for (const char c : octets) {
      raw += c;
      if (isStream && ++streamed % markEvery == 0 && streamed < silentFrom) end->Send("...");
      if (isStream && streamed == lastWordAt) end->Send(Frames("#LAST"));
      for (const auto& [message, answers] : script)
        if (raw.ends_with(Frames(message))) {
          isStream = message == "#F0";
          end->Send(answers);
        }
    }
  }
  void SetTerminalReady(bool) override {}

  LineEnd* end = nullptr;
  std::map<std::string, std::string> script{{"#F0", Frames("#DWLD_ERASING", "#DWLD_READY")},
                                            {"#F1", Frames("#DWLD_RAM_READY")}};
  std::size_t markEvery = 4000;
  std::size_t silentFrom = 1'000'000;
  std::size_t lastWordAt = 0;
  std::string raw;
  std::size_t streamed = 0;

 private:
  bool isStream = false;
};

class FirmwareTest : public LinkTest {
 protected:
  FirmwareTest() {
    taker.end = &port.AddDevice(kPort, "taker", "", taker);
    OpenPort();
    port.SetPaced(true);
  }
  Kind Send() {
    stages.clear();
    result = comms.SendFirmware(files, [this](Stage stage) { stages.push_back(stage); });
    return result.Fault().kind;
  }
  /// Octets of all kinds, with no frame among them.
  static std::string Octets(std::size_t count) {
    std::string octets;
    for (std::size_t i = 0; i < count; ++i) octets += static_cast<char>(i * 7 % 251 | 128);
    return octets;
  }

  Taker taker;
  FirmwareFiles files{Octets(30'001), Octets(901)};
  std::vector<Stage> stages;
  LinkResult result;
};

TEST_F(FirmwareTest, TheFilesGoOutAsTheyAreAtLineSpeed) {
  taker.lastWordAt = 29'900;  // ahead of what follows the end record
  std::size_t mostQueued = 0, leastQueued = 1000;
  int steps = 0;
  const TimerId watch = loop.Every(milliseconds(1), "watch", [&] {
    mostQueued = std::max(mostQueued, port.OutBufferCount());
    if (steps % 8193 > 500 && steps % 8193 < 7600 && steps < 29'000)
      leastQueued = std::min(leastQueued, port.OutBufferCount());
  });
  TimePoint begun{};
  Duration took{};
  const auto listener = comms.OnProgress([&](const Progress& told) {
    if (told.stage == Progress::Stage::Begun) begun = loop.Now();
    took = loop.Now() - begun;
    EXPECT_EQ(told.kind, DialogueKind::Firmware);
    EXPECT_EQ(told.expected, 30'900);
    EXPECT_LE(steps, told.step);
    if (stages.back() == Stage::Image) {
      EXPECT_LE(told.step, static_cast<int>(taker.streamed) + 1) << "what has left";
    }
    if (steps < 30'300 && told.step >= 30'300) taker.end->Send("late");
    steps = told.step;
  });
  EXPECT_EQ(Send(), Kind::None);
  loop.Cancel(watch);
  EXPECT_TRUE(taker.raw == Frames("#F0") + files.image.substr(0, 30'000) + Frames("#F1") +
                               files.loader.substr(0, 900));
  EXPECT_THAT(stages, ElementsAre(Stage::Asking, Stage::Erasing, Stage::Image, Stage::Loader,
                                  Stage::Copying));
  EXPECT_EQ(steps, 30'900);
  EXPECT_EQ(comms.TakeInput(), "") << "what comes meanwhile is none of the next dialogue's";
  EXPECT_LE(mostQueued, 480U);
  EXPECT_GE(leastQueued, 380U) << "a program that is held up does not hold up the line";
  const Duration spoken = LineTime(Frames("#LAST", "#F1", "#DWLD_RAM_READY").size());
  EXPECT_LE(took - spoken - milliseconds(100), LineTime(30'900) * 101 / 100);
}

/// A sign of life is asked for behind each 8193 octets that have left, and never for fewer.
TEST_F(FirmwareTest, WithoutASignOfLifeNotAnOctetMoreGoesOut) {
  for (const auto& [stored, silentFrom, sent, kind] : {std::tuple{0, 0, 0, Kind::None},
                                                       {1, 0, 0, Kind::None},
                                                       {8193, 0, 8192, Kind::None},
                                                       {8194, 0, 8193, Kind::NoAliveMark},
                                                       {8194, 8000, 8193, Kind::None},
                                                       {30'001, 16'386, 24'579, Kind::NoAliveMark},
                                                       {16'387, 8194, 16'386, Kind::NoAliveMark},
                                                       {8194, 8194, 8193, Kind::None}}) {
    SCOPED_TRACE(std::to_string(stored) + ", silent from " + std::to_string(silentFrom));
    taker.raw.clear();
    taker.streamed = 0;
    taker.silentFrom = static_cast<std::size_t>(silentFrom);
    taker.markEvery = silentFrom == 8194 && stored == 8194 ? 8193 : 4000;  // it follows the block
    files = {Octets(static_cast<std::size_t>(stored)), "L"};
    EXPECT_EQ(Send(), kind);
    EXPECT_EQ(result.Fault().number, kind == Kind::None ? 0 : sent);
    loop.RunFor(seconds(5));
    const std::string end = kind == Kind::None ? Frames("#F1") : std::string();
    EXPECT_TRUE(taker.raw ==
                Frames("#F0") + files.image.substr(0, static_cast<std::size_t>(sent)) + end);
  }
}

TEST_F(FirmwareTest, AWrongAnswerOrNoneEndsIt) {
  struct Case {
    const char* message;
    std::string answers;
    Kind kind;
    Stage stage;
    Duration atMost;
    bool seemsSilent = false;  ///< for more than some seconds, while an answer is due
  };
  for (const Case& c :
       {Case{"#F0", "", Kind::Silence, Stage::Asking, seconds(31), true},
        {"#F0", Frames("#DWLD_READY"), Kind::WrongAnswer, Stage::Asking, seconds(1)},
        {"#F0", Frames("#DWLD_ERASING"), Kind::Silence, Stage::Erasing, seconds(51)},
        {"#F0", Frames("#DWLD_ERASING", "#DWLD"), Kind::WrongAnswer, Stage::Erasing, seconds(1)},
        {"#F1", "", Kind::Silence, Stage::Loader, seconds(72), true},
        {"#F1", Frames("#DWLD_RAM_READY1"), Kind::WrongAnswer, Stage::Loader, seconds(12)}}) {
    SCOPED_TRACE(c.message + c.answers);
    Taker fresh;
    fresh.end = taker.end;
    taker.script = fresh.script;
    taker.script[c.message] = c.answers;
    taker.raw.clear();
    files = {"ab", "cd"};
    Duration silent{};
    const TimerId watch =
        loop.Every(seconds(1), "watch", [&] { silent = std::max(silent, comms.SilentFor()); });
    const Duration took = Took([&] { EXPECT_EQ(Send(), c.kind); });
    EXPECT_LE(took, c.atMost);
    EXPECT_GE(took, c.atMost - seconds(2)) << "a logger takes its time";
    loop.Cancel(watch);
    EXPECT_EQ(silent > seconds(5), c.seemsSilent) << "none is due while it erases";
    EXPECT_EQ(stages.back(), c.stage);
    EXPECT_EQ(taker.raw.find('a') != std::string::npos, c.stage == Stage::Loader);
    EXPECT_EQ(taker.raw.find('c'), std::string::npos);
    EXPECT_FALSE(comms.LinkBusy);
  }
}

/// What was queued when the stream is broken off never reaches a logger late.
TEST_F(FirmwareTest, APortThatClosesOrALineThatIsHeldEndsTheStream) {
  At(seconds(5), [this] { port.HoldOutput(kPort, true); });
  EXPECT_EQ(Send(), Kind::LineHeld);
  const std::size_t taken = taker.raw.size();
  port.HoldOutput(kPort, false);
  loop.RunFor(seconds(5));
  EXPECT_EQ(taker.raw.size(), taken);
  At(seconds(5), [this] { comms.Abort(); });
  EXPECT_LE(Took([&] { EXPECT_EQ(Send(), Kind::PortClosed); }), seconds(5));
  EXPECT_EQ(stages.back(), Stage::Image);
  OpenPort();
  const auto atTheEnd = comms.OnProgress([this](const Progress& told) {
    if (told.step == told.expected) comms.Abort();
  });
  EXPECT_EQ(Send(), Kind::PortClosed) << "even with the last octet";
}

}  // namespace
}  // namespace ostrel
