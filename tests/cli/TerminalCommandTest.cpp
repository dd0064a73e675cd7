#include "cli/World.h"
#include "tools/Disk.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

/// A shell in which lines are typed, and then the input ends.
struct ConsoleWorld : World {
  explicit ConsoleWorld(std::vector<std::string> typed = {},
                        const SimulatedLoggers::MakeOptions& make = sim::MakeDefaultOptions)
      : World(make) {
    environment.watchInput = [this, typed](const auto& onLine, const auto& onEnd) {
      loop.After(std::chrono::seconds(2), "typing", [=] {
        for (const std::string& line : typed) onLine(line);
        onEnd();
      });
      return std::make_shared<int>();
    };
    environment.openLog = [this](const std::string& path,
                                 std::string& why) -> std::unique_ptr<std::ostream> {
      why = "no room";
      if (path == "/full") return nullptr;
      return std::make_unique<std::ostream>(path == "/fills" ? nullptr : &log);
    };
    Logger().OnExchange([this](const sim::Exchange& exchange) {
      if (!exchange.request.starts_with("#01")) return;
      asked += exchange.request + " ";
      askedAt.push_back(exchange.at);
    });
  }
  Disk log;
  std::string asked;
  std::vector<TimePoint> askedAt;
};

TEST(TerminalCommand, SendsEachLineBehindTheAnswerToTheLastAndEndsOnceQuiet) {
  ConsoleWorld world({"", "VER", "TIME", "bad\x01line", "nothing"});
  const TimePoint start = world.loop.Now();
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --log /log"), 0) << world.err;
  EXPECT_LT(world.loop.Now() - start, std::chrono::seconds(7));
  ASSERT_EQ(world.asked, "#01VER #01TIME #01nothing ");
  EXPECT_GE(world.askedAt[1] - world.askedAt[0], std::chrono::milliseconds(200));
  EXPECT_EQ(world.out, "Ostrel VR200 v4.12\n" + world.out.substr(19, 9) + "? nothing\n");
  EXPECT_EQ(world.log.str(), world.out);
  EXPECT_EQ(world.log.written, 3) << "as it comes";
  EXPECT_THAT(world.err, HasSubstr("not sent, it is no command: bad\\x01line\n"));
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --log /full"), 5);
  EXPECT_EQ(world.err, "ostrelctl: cannot write /full: no room\n");
  const TimePoint begun = world.loop.Now();
  world.Expect("terminal --port sim:VR200 --traces on --log /fills", 5, "cannot write /fills");
  EXPECT_LT(world.loop.Now() - begun, std::chrono::seconds(5)) << "as soon as it is full";
}

TEST(TerminalCommand, LeavesTracesAloneUnlessTold) {
  ConsoleWorld world;
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --traces on --seconds 4.5 --stamp"), 0);
  EXPECT_TRUE(world.Logger().Traces());
  EXPECT_THAT(world.out, HasShape("^09:05:[0-9.]{6} [0-9:]{8} rx 04\n"
                                  "09:05:[0-9.]{6} [0-9:]{8} DI="));
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --seconds 2 --json --stamp"), 0);
  EXPECT_TRUE(world.Logger().Traces());
  EXPECT_THAT(world.out, HasSubstr("\"text\":\""));
  EXPECT_THAT(world.out, HasSubstr("\"time\":\"2026-03-02 09:05:"));
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --traces off --seconds 60"), 0);
  EXPECT_FALSE(world.Logger().Traces());
  for (const char* wrong : {"--traces maybe", "--seconds nan", "--seconds 1e300", "--seconds 0"})
    EXPECT_EQ(world.Run("terminal --port sim:VR200 " + std::string(wrong)), 2) << wrong;
}

/// An answer may take on a call as long as any; and traces left on do not spoil the next dialling.
TEST(TerminalCommand, WaitsOnACallForAnAnswerThatIsLongInComing) {
  ConsoleWorld world({"VER", "OUT"}, With([](sim::LoggerOptions& options) {
                       options.modem = true;
                       options.replyDelay = std::chrono::seconds(3);
                     }));
  const std::string call = "terminal --port sim:VR200 --phone 600 --code 1234 ";
  EXPECT_EQ(world.Run(call), 0) << world.err;
  EXPECT_EQ(world.out, "Ostrel VR200 v4.12\nOUT=0\n");
  for (int i = 0; i < 2; ++i) world.Expect(call + "--traces on --seconds 20", 0, "OUT=0\n");
}

/// A cable may carry text without a carrier; a call ends with it.
TEST(TerminalCommand, OutlastsTheCarrierOfACable) {
  for (const bool isCall : {false, true}) {
    SCOPED_TRACE(isCall);
    const auto with = [isCall](const std::vector<std::string>& faults) {
      return [isCall, faulty = WithFaults(faults)](sim::Model model) {
        sim::LoggerOptions options = faulty(model);
        options.modem = isCall;
        return options;
      };
    };
    const std::string command = "terminal --raw --seconds 60 --port sim:VR200" +
                                std::string(isCall ? " --phone 600 --code 1234" : "");
    std::size_t frames = 0;
    ConsoleWorld sound({"#041", "#5D"}, with({}));
    sound.Logger().OnExchange([&](const sim::Exchange& exchange) { frames += exchange.frames; });
    EXPECT_EQ(sound.Run(command), 0) << sound.err;
    ConsoleWorld world({"#041", "#5D"}, with({"carrier-drop@" + std::to_string(frames) + "!once"}));
    world.environment.watchInput = [&world](const auto& onLine, const auto&) {
      world.loop.After(std::chrono::seconds(2), "typing", [=] {
        for (const char* line : {"#041", "#5D"}) onLine(line);
      });
      return std::make_shared<int>();  // and the input stays open
    };
    const TimePoint begun = world.loop.Now();
    EXPECT_EQ(world.Run(command), isCall ? 4 : 0) << world.err;
    EXPECT_EQ(world.loop.Now() - begun < std::chrono::seconds(60), isCall);
    EXPECT_THAT(world.err, HasSubstr("Se corto la comunicacion"));
    EXPECT_EQ(world.out.find("DI=") == std::string::npos, isCall);
  }
}

TEST(TerminalCommand, IsEndedByAnInterrupt) {
  ConsoleWorld world;
  world.environment.watchInput = {};
  world.loop.After(std::chrono::seconds(9), "interrupt", [&] { world.environment.onInterrupt(); });
  world.Expect("terminal --traces on --port sim:VR200", 0, "DI=");
}

/// Noise without the end of a line is shown, too, and leads no terminal astray.
TEST(TerminalCommand, ShowsNoiseAsItIsToProgramsAlone) {
  std::size_t requests = 0, typed = 0;
  ConsoleWorld sound({"#5D"});
  sound.Logger().OnExchange([&](const sim::Exchange& exchange) {
    ++requests;
    if (exchange.request == "#5D") typed = requests;
  });
  EXPECT_EQ(sound.Run("terminal --raw --port sim:VR200"), 0);
  for (const auto& [face, isTerminal] : {std::pair{"", false}, {"", true}, {" --json", false}}) {
    ConsoleWorld world({"#5D"}, WithFaults({"noise@" + std::to_string(typed) + "!once"}));
    world.environment.outIsTerminal = isTerminal;
    EXPECT_EQ(world.Run("terminal --raw --port sim:VR200" + std::string(face)), 0) << world.err;
    EXPECT_GT(world.out.size(), 24U);
    EXPECT_EQ(world.out.find("\xC2\x8D") == std::string::npos, isTerminal) << world.out;
  }
}

TEST(TerminalCommand, SendsFramesAsTheyAreTyped) {
  ConsoleWorld world({"#5D", "5D"});
  world.Expect("terminal --raw --port sim:VR200", 0, ";A2260302090");
  EXPECT_THAT(world.err, HasSubstr("not sent, it is no frame: 5D\n"));
}

}  // namespace
}  // namespace ostrel::cli
