#include "cli/World.h"
#include "lang/Lang.h"
#include "tools/Disk.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Online, ShowsWhoTheLoggerIs) {
  World world;
  world.Expect("info --port sim:VR200", 0, "model      Ostrel VR200\n");
  EXPECT_THAT(world.out, HasSubstr("firmware   4.12\n"));
  EXPECT_THAT(world.out, HasSubstr("clock      2026-03-02 09:05:"));
  EXPECT_EQ(world.err, "");
  EXPECT_EQ(world.Run("info --port sim:VR200 --json"), 0);
  const QJsonObject info = world.Json().object();
  EXPECT_EQ(info["firmware"].toString().toStdString(), "4.12");
  EXPECT_EQ(info["serial"].toString().toStdString(), world.Logger().Options().serial);
  EXPECT_EQ(info["port"].toString().toStdString(), "COM253 (sim:VR200)");
}

TEST(Online, ReadsAndSetsTheClock) {
  World world;
  const auto isAnHourLate = [&] { world.Logger().SetClock({2026, 3, 2, 8, 0, 0}); };
  isAnHourLate();
  world.Expect("clock --port sim:VR200", 0, "logger     2026-03-02 08:00:0");
  EXPECT_THAT(world.err, HasSubstr("no (--yes answers yes)")) << "the session offers to set it";
  EXPECT_EQ(world.Run("clock --set --quiet --json --port sim:VR200"), 0);
  EXPECT_EQ(world.err, "");
  EXPECT_LE(std::abs(world.Json().object()["secondsAhead"].toInt(99)), 1);
  EXPECT_EQ(world.Logger().Clock().hour, 9);
  for (const auto& [answer, hour] : {std::pair{"n", 8}, {"y", 9}}) {
    world.environment.ask = [&](std::string_view prompt, bool) {
      EXPECT_THAT(std::string(prompt), HasSubstr("Ostrel VR200: Parece que la hora"));
      return answer;
    };
    isAnHourLate();
    EXPECT_EQ(world.Run("info --port sim:VR200"), 0);
    EXPECT_EQ(world.Logger().Clock().hour, hour);
  }
}

/// A clock that came damaged is not compared.
TEST(Online, ADamagedLineIsNoReasonToAskAboutTheClock) {
  for (int place = 1; place <= 12; ++place) {
    World world(WithFaults({"bad-checksum@" + std::to_string(place)}));
    world.Run("info --port sim:VR200");
    EXPECT_THAT(world.err, testing::Not(HasSubstr("hora del dispositivo"))) << place;
  }
}

TEST(Online, ShowsLiveValues) {
  World world;
  EXPECT_EQ(world.Run("live --port sim:VR200"), 0);
  EXPECT_THAT(world.out, HasShape("digital inputs [01]{8}\n"));
  EXPECT_THAT(world.out, HasSubstr("MODBUS channel 31 "));
  EXPECT_EQ(world.Run("live --port sim:BQ --json"), 0);
  const QJsonObject live = world.Json().object();
  EXPECT_EQ(live["digital"].toArray().size(), 6) << "with the directions of its flows";
  EXPECT_EQ(live["analog"].toArray().size(), 1);
  const double total = live["registers"][7]["value"].toDouble();
  EXPECT_NE(total, 0);
  EXPECT_NE(total, static_cast<float>(total)) << "all of its digits";
  EXPECT_EQ(world.Run("total 0 123456789 --port sim:BP"), 0) << world.err;
  EXPECT_EQ(world.Run("live --port sim:BP --json"), 0);
  const double count = world.Json().object()["counters"][0]["value"].toDouble();
  EXPECT_NE(count, static_cast<float>(count));
  EXPECT_EQ(live["flows"].toArray().size(), 2);
  EXPECT_EQ(live["modbus"].toArray().size(), 0);
}

TEST(Online, RecordsLiveValues) {
  World world;
  std::ostringstream file;
  world.environment.openRecording = [&](const std::string& path,
                                        std::string& why) -> std::unique_ptr<std::ostream> {
    why = "it is a folder";
    if (path != "/day.csv") return nullptr;
    return std::make_unique<std::ostream>(file.rdbuf());
  };
  const std::string watch = "live --port sim:BQ --watch --interval 2000 --count 3 --csv ";
  const TimePoint begun = world.loop.Now();
  EXPECT_EQ(world.Run(watch + "/day.csv"), 0) << world.err;
  EXPECT_GE(world.loop.Now() - begun, std::chrono::seconds(4));
  EXPECT_THAT(file.str(), testing::StartsWith("utc,local,DI0,DI1,"));
  EXPECT_THAT(file.str(), HasSubstr("AI0 Presión red [bar]"));
  EXPECT_EQ(std::ranges::count(file.str(), '\n'), 4);
  EXPECT_THAT(world.out, HasSubstr("flow meter 1 "));
  EXPECT_EQ(world.Run(watch + "-"), 0);
  EXPECT_EQ(std::ranges::count(world.out, '\n'), 4) << "the table alone";
  world.environment.openRecording = [](const std::string& path, std::string& why) {
    why = "it is a folder";
    return path == "/" ? nullptr : std::make_unique<std::ostream>(nullptr);  // takes nothing
  };
  world.files.contents["/old.csv"] = "utc,local,DI0\n";
  world.Expect(watch + "/old.csv", 5, "/old.csv holds something already: --yes replaces");
  EXPECT_EQ(world.Run(watch + "/old.csv --yes"), 5) << "it takes nothing";
  EXPECT_THAT(world.err, HasSubstr("cannot write the values"));
  world.Expect(watch + "/full", 5, "cannot write the values to /full to the end");
  world.Expect(watch + "/", 5, "cannot write the values to /: it is a folder");
  EXPECT_EQ(world.Run("live --port sim:BQ --count 3"), 2);
}

TEST(Online, AWatchGoesOnOverARoundThatFailed) {
  const auto silentFrom = [](int first, int last) {
    std::vector<std::string> faults;
    for (int request = first; request <= last; ++request)
      faults.push_back("silent@" + std::to_string(request) + "!once");
    return WithFaults(faults);
  };
  for (const auto& [face, gap] : {std::pair{" --csv -", ",,,,,"},
                                  {"", "digital inputs --------\n"},
                                  {" --json", "\"digital\":[null,null,"}}) {
    World world(silentFrom(14, 39));
    world.Expect(std::string("live --port sim:BP --watch --count 9") + face, 0, gap);
  }
  // The states are the last but two that a single round asks for, up to three times.
  World sound;
  int asked = 0;
  sound.Logger(sim::Model::BP).OnExchange([&](const sim::Exchange&) { ++asked; });
  EXPECT_EQ(sound.Run("live --port sim:BP"), 0);
  World once(silentFrom(asked - 2, asked));
  once.Expect("live --port sim:BP", 4, "the logger fell silent");
  World last(silentFrom(asked - 2, asked));
  last.Expect("live --watch --count 1 --csv - --port sim:BP", 4, "the logger fell silent");
  EXPECT_EQ(std::ranges::count(last.out, '\n'), 2) << "the last round has its row as any other";
}

TEST(Online, WatchesUntilInterrupted) {
  World world;
  world.loop.After(std::chrono::seconds(10), "interrupt", [&] { world.environment.onInterrupt(); });
  EXPECT_EQ(world.Run("live --watch --json --port sim:KA1"), 0);
  std::istringstream lines(world.out);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count)
    EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(line)).isObject()) << line;
  EXPECT_THAT(count, testing::AllOf(testing::Ge(5), testing::Le(10)));
  EXPECT_EQ(world.err, "");
  world.environment.outIsTerminal = true;
  world.loop.After(std::chrono::seconds(5), "interrupt", [&] { world.environment.onInterrupt(); });
  EXPECT_EQ(world.Run("live --watch --port sim:KA1"), 0);
  EXPECT_THAT(world.out, testing::StartsWith("\x1b[H2026-03-02 09:05:"));
  EXPECT_THAT(world.out, testing::EndsWith("\x1b[K\n\x1b[J")) << "nothing of the former one stays";
  bool isOpen = false;  // the clock is read last
  world.Logger(sim::Model::KA1).OnExchange([&](const sim::Exchange& exchange) {
    if (isOpen) world.environment.onInterrupt();
    isOpen = exchange.request == "#5D";
  });
  EXPECT_EQ(world.Run("live --port sim:KA1"), 4) << "what was asked for has not come";
  EXPECT_EQ(world.out, "");
}

TEST(Online, AWatchWritesEachRoundAtOnceAndEndsWithItsReader) {
  World world;
  Disk pipe;
  std::ostream& output = world.outStream;
  output.rdbuf(&pipe);
  EXPECT_EQ(world.Run("live --watch --count 5 --port sim:KA1"), 0);
  EXPECT_GE(pipe.written, 5);
  output.rdbuf(nullptr);
  EXPECT_EQ(world.Run("live --watch --csv - --port sim:KA1"), 5);
  EXPECT_EQ(world.err, "ostrelctl: cannot write the output\n") << "once";
}

TEST(Online, SetsOutputsAndTotals) {
  World world;
  EXPECT_EQ(world.Run("output 2 on --port sim:VR200"), 0);
  EXPECT_EQ(world.out, "output 2 set on\n");
  EXPECT_EQ(world.Logger().Outputs(), 4U);
  EXPECT_EQ(world.Run("output 2 off --port sim:VR200 --json"), 0);
  EXPECT_EQ(world.Logger().Outputs(), 0U);
  EXPECT_FALSE(world.Json().object()["on"].toBool(true));
  EXPECT_EQ(world.Run("total 3 123456 --port sim:VR200"), 0) << world.err;
  EXPECT_EQ(std::stoi(world.out) / 100, 1234);
  EXPECT_EQ(world.Run("total 3 --port sim:VR200 --json"), 0);
  EXPECT_FALSE(world.Json().object()["set"].toBool(true));
  world.Expect("total 8 44 --port sim:VR200", 4, "the logger refused the setting: \"#BE0\"");
}

TEST(Online, SetsExpansionTotalsAndReadsTheProbe) {
  World world;
  EXPECT_EQ(world.Run("total 5 --expansion --port sim:S100 --json"), 0) << world.err;
  EXPECT_TRUE(world.Json().object()["expansion"].toBool());
  EXPECT_TRUE(world.Json().object()["total"].isDouble());
  EXPECT_EQ(world.Run("probe --port sim:KA1"), 0) << world.err;
  EXPECT_THAT(world.out, HasShape("^([0-9]{3}\\.){7}[0-9]{3}\n$"));
}

TEST(Calc, GivesWhatTheCalculatorsGive) {
  World world;
  EXPECT_EQ(world.Run("calc pulse 10 l 60 m3/h"), 0) << world.err;
  EXPECT_EQ(world.out, "0.6\n");
  EXPECT_EQ(world.Run("calc mask 0 2 15 --json"), 0) << world.err;
  EXPECT_EQ(world.Json().object()["mask"].toInt(), 32773);
}

/// A short dialogue tells what ended itself, not what an earlier one came to.
TEST(Online, SaysWhatEndedAShortDialogue) {
  // The opening of a session takes 1.9 s; the dialogue of the command is the next.
  constexpr auto kSessionStands = std::chrono::milliseconds(1950);
  for (const std::string command : {"live", "clock", "clock --set", "total 3", "output 1 on"}) {
    World world;
    LinePort& port = world.simulated.Port();
    world.loop.After(kSessionStands, "fault", [&] { port.HoldOutput(253, true); });
    world.Expect(command + " --port sim:VR200", 4, "the line at COM253 (sim:VR200) was held");
    port.HoldOutput(253, false);
  }
}

TEST(Online, AFullTranslationTableEndsNoCommand) {
  World world;
  std::string rows = "{Es}{En}\r\n";
  for (int row = 1; row < kLangRows; ++row) rows += "{t" + std::to_string(row) + "}\r\n";
  world.files.contents["/home/user/data/Lang.txt"] = rows;
  EXPECT_EQ(world.Run("download /a.ocf --lang 2 --port sim:BQ"), 0) << world.err;
  EXPECT_EQ(world.Run("show /a.ocf --lang 2"), 0) << world.err;
  EXPECT_EQ(world.files.contents["/home/user/data/Lang.txt"], rows);
}

TEST(Online, KeepsASimulatedLoggerInAFileWhenToldTo) {
  World world;
  EXPECT_EQ(world.Run("output 1 on --port sim:KA1 --sim-state /ka1.state"), 0);
  World next;
  next.files.contents = world.files.contents;
  EXPECT_EQ(next.Run("info --port sim:KA1 --sim-state /ka1.state"), 0) << next.err;
  EXPECT_EQ(next.Logger(sim::Model::KA1).Outputs(), 2U);
  EXPECT_EQ(next.Run("info --port sim:KA2 --sim-state /ka1.state"), 5) << "another model's";
  next.files.FailOperation(VirtualFiles::Change::Write, 1);
  next.Expect("info --port sim:KA1 --sim-state /ka1.state", 5, "cannot write /ka1.state");
}

TEST(Online, LeavesNothingBehindAFailedDownload) {
  for (const auto& [fault, code, says] : std::vector<std::tuple<std::string, int, std::string>>{
           {"silent-after-record@5", 4, "the logger fell silent at record 6"},
           {"bad-checksum@1", 3, "no logger answers"},
           {"bad-checksum@9", 4, "did not tell who it is: lines were lost or arrived damaged"},
           {"vanish@20", 4, "COM253 (sim:VR200) has gone"},
           {"vanish@3", 4, "COM253 (sim:VR200) has gone in the middle of the dialogue"}}) {
    World world(WithFaults({fault}));
    world.files.contents["/old.ocf"] = "old";
    world.Expect("download /old.ocf --port sim:VR200", code, says);
    world.simulated.Port().Restore(253);
    EXPECT_NE(world.Run("download /new.ocf --port sim:VR200"), 0) << fault;
    EXPECT_EQ(world.files.contents.size(), 1U) << fault;
    EXPECT_EQ(world.files.contents["/old.ocf"], "old") << fault;
  }
}

TEST(Online, TellsAnUnwritableFileBeforeTheLoggerIsKeptBusy) {
  World world;
  world.files.FailOperation(VirtualFiles::Change::Create, 1);
  EXPECT_EQ(world.Run("download /new.ocf --port sim:VR200"), 5);
  EXPECT_EQ(world.loop.Now(), TimePoint{});
  world.files.Heal();
  world.files.FailOperation(VirtualFiles::Change::Rename, 1);
  EXPECT_EQ(world.Run("download /new.ocf --port sim:VR200"), 5);
  EXPECT_TRUE(world.files.contents.empty());
}

TEST(Online, ShowsProgressWithTheTimeThatRemainsOnATerminalAlone) {
  World world;
  world.simulated.Port().SetPaced(true);
  EXPECT_EQ(world.Run("download /a.ocf --port sim:VR200"), 0);
  EXPECT_THAT(world.err, Not(HasSubstr("left")));
  world.environment.errIsTerminal = true;
  EXPECT_EQ(world.Run("download /a.ocf --quiet --port sim:VR200"), 0);
  EXPECT_EQ(world.err, "");
  EXPECT_EQ(world.Run("download /a.ocf --port sim:VR200"), 0);
  EXPECT_THAT(world.err, HasShape("download \\[#+ *\\] [0-9]+%, 0:[0-9]+ left"));
  EXPECT_EQ(world.out, "");
}

TEST(Online, TracesTheLineWithItsPrefixes) {
  World world;
  std::ostringstream trace;
  world.environment.openTrace = [&](const std::string& path,
                                    std::string&) -> std::unique_ptr<std::ostream> {
    if (path != "/trace.txt") return nullptr;
    return std::make_unique<std::ostream>(trace.rdbuf());
  };
  EXPECT_EQ(world.Run("info --port sim:VR200 --trace /trace.txt"), 0);
  EXPECT_THAT(trace.str(), HasSubstr(" TxSer: #40\n"));
  EXPECT_THAT(trace.str(), HasSubstr(" RxSer: #BF"));
  EXPECT_EQ(world.Run("info --port sim:VR200 --trace /forbidden"), 5);
  world.environment.openTrace = [](const std::string&, std::string&) {
    return std::make_unique<std::ostream>(nullptr);  // takes nothing
  };
  world.Expect("info --port sim:VR200 --trace /full", 5, "cannot write /full");
}

/// A logger behind a modem.
SimulatedLoggers::MakeOptions Behind(std::string code) {
  return With([code](sim::LoggerOptions& options) {
    options.modem = true;
    options.accessCode = code;
  });
}

TEST(Online, GivesTheAccessCodeOnceFromTheOptionsOrAsksForIt) {
  World world(Behind("4711"));
  const std::string call = "info --port sim:VR200 --phone 600100200 ";
  world.files.contents["/code"] = "4711\r\nmore";
  world.environment.readDescriptor = [](int descriptor, bool lineOnly, std::string& octets) {
    EXPECT_TRUE(lineOnly);
    octets = descriptor == 9 ? "4711" : "";
    return FileResult{};
  };
  for (const auto& [ofEnvironment, option, code, says] :
       {std::tuple{"", "--code 4711", 0, ""},
        {"", "--code 1", 3, "did not accept the access code"},
        {"", "", 3, "--code, --code-file, --code-fd or OSTREL_CODE gives one"},
        {"", "--code-file /code", 0, ""},
        {"", "--code-file /none", 5, ""},
        {"", "--code-file /code --code 4711", 2, ""},
        {"", "--code-fd 9", 0, ""},
        {"", "--code-fd 8", 5, ""},
        {"4711", "", 0, ""},
        {"4711", "--code 1", 3, ""}}) {
    world.environment.code = ofEnvironment;
    world.Expect(call + option, code, says);
  }
  world.environment.code.clear();
  int asked = 0;
  world.environment.ask = [&](std::string_view prompt, bool echo) {
    EXPECT_FALSE(echo);
    EXPECT_THAT(std::string(prompt), HasSubstr("Introduzca la clave de acceso:"));
    return ++asked < 3 ? "99" : "4711";
  };
  EXPECT_EQ(world.Run(call), 0) << world.err;
  EXPECT_EQ(asked, 3);
}

TEST(Online, AnInterruptAtAQuestionEndsTheCommand) {
  World world(Behind("4711"));
  int asked = 0;
  world.environment.ask = [&](std::string_view, bool) -> std::optional<std::string> {
    ++asked;
    return std::nullopt;
  };
  world.Expect("info --port sim:VR200 --phone 600100200", 4, "interrupted before a session stood");
  World cable;
  cable.environment.ask = world.environment.ask;
  cable.Logger().SetClock({2026, 3, 2, 8, 0, 0});
  EXPECT_EQ(cable.Run("info --port sim:VR200"), 4);
  EXPECT_EQ(cable.out, "");
  EXPECT_EQ(asked, 2) << "nobody is asked twice";
}

}  // namespace
}  // namespace ostrel::cli
