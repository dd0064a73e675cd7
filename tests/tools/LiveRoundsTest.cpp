#include <sstream>

#include "tools/Disk.h"
#include "tools/LiveLimits.h"
#include "tools/LiveStation.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using testing::IsEmpty;

TEST(LiveRounds, GoOnForWhoeverKeepsThemGoing) {
  LiveStation station(sim::Model::BQ);
  station.Connect();
  int rounds = 0;
  const auto listener = station.program.livePoll.OnRound([&](const LiveRound& round) {
    ++rounds;
    ASSERT_NE(round.Find({LiveKind::Analog, 0}), nullptr);
    EXPECT_TRUE(round.Find({LiveKind::Analog, 0})->IsFresh());
    EXPECT_EQ(round.Find({LiveKind::Analog, 1}), nullptr);
    EXPECT_EQ(round.Find({LiveKind::Digital, 3})->name, "");
    EXPECT_EQ(round.Find({LiveKind::Digital, 5})->name, "DR1") << "no configuration has it";
    EXPECT_EQ(round.Find({LiveKind::Digital, 6}), nullptr);
  });
  station.Run(std::chrono::seconds(5));
  EXPECT_EQ(rounds, 0);
  auto going = station.program.livePoll.KeepGoing();
  station.Run(milliseconds(200));
  auto second = station.program.livePoll.KeepGoing();
  station.Run(std::chrono::seconds(10));
  EXPECT_THAT(rounds, testing::AllOf(testing::Ge(9), testing::Le(20))) << "together no more often";
  const std::string timers = station.world.loop.ListTimers();
  EXPECT_EQ(timers.find("live rounds"), timers.rfind("live rounds")) << timers;
  station.program.session.Close(false);
  rounds = 0;
  station.Run(std::chrono::seconds(5));
  EXPECT_EQ(rounds, 0) << "nothing is read without a session";
  station.Connect();
  going.reset();
  second.reset();
  station.Run(std::chrono::seconds(5));
  EXPECT_EQ(rounds, 0);
}

TEST(LiveRounds, ARecordingHasNamesUnitsAndGaps) {
  LiveRound round{
      {milliseconds(ToSeconds({2026, 3, 2, 0, 5, 7}) * 1000 + 50), std::chrono::minutes(-210)}, {}};
  LiveRead came{.hasCome = true};
  round.values = {{{LiveKind::Digital, 0}, "", "", {}, true, came},
                  {{LiveKind::Analog, 0}, "Level, \"north\"", "m", 0.1F, {}, came},
                  {{LiveKind::Counter, 3}, "In", "", 123456789.0, {}, came}};
  Disk disk;
  LiveRecording recording(std::make_unique<std::ostream>(&disk));
  EXPECT_TRUE(recording.Add(round));
  round.values[1].read.missed = 1;
  round.values.pop_back();
  round.at.utcOffset = std::chrono::minutes(330);
  EXPECT_TRUE(recording.Add(round));
  EXPECT_EQ(disk.written, 2) << "each row as it comes";
  EXPECT_EQ(disk.str(),
            "utc,local,DI0,\"AI0 Level, \"\"north\"\" [m]\",CT3 In\n"
            "2026-03-02T03:35:07.050Z,2026-03-02T00:05:07.050-03:30,1,0.1,123456789\n"
            "2026-03-01T18:35:07.050Z,2026-03-02T00:05:07.050+05:30,1,,\n");
  EXPECT_EQ(recording.Rows(), 2);
}

TEST(LiveRounds, TheWindowRecordsIntoAFileUntilItTakesNoMore) {
  LiveStation station(sim::Model::BP);
  Button& button = station.Get<Button>("BotonGrabar");
  station.navigation.NodeClick("T_Real");
  EXPECT_FALSE(button.face.Enabled()) << "there is nothing to record";
  station.Connect();
  station.program.conf.Digital[2].NOMBRE = "Door";
  station.Run(std::chrono::seconds(1));
  std::ostringstream file;
  station.program.tools.OpenRecording = [&](const std::string& path,
                                            std::string& why) -> std::unique_ptr<std::ostream> {
    why = "no such folder";
    if (path == "/full") return std::make_unique<std::ostream>(nullptr);  // takes nothing
    if (path != "/day.csv") return nullptr;
    return std::make_unique<std::ostream>(file.rdbuf());
  };
  station.world.dialogs.ChoosePath("/no/day.csv");
  station.world.dialogs.ChoosePath("/day.csv");
  button.Click();
  EXPECT_EQ(station.world.dialogs.boxes.back().text, "/no/day.csv: no such folder");
  button.Click();
  EXPECT_EQ(button.face.Caption(), "Parar");
  station.Run(std::chrono::seconds(2));
  EXPECT_TRUE(station.world.dialogs.questions.back().overwritePrompt);
  const auto rows = [&] { return std::ranges::count(file.str(), '\n') - 1; };
  const auto inFront = rows();
  station.navigation.HideAll();
  station.Run(std::chrono::seconds(2));
  EXPECT_GE(rows(), inFront + 2) << "with the monitor away, too";
  EXPECT_THAT(file.str(), testing::HasSubstr(",DI2 Door,"));
  EXPECT_THAT(file.str(), testing::HasSubstr("AI0 Nivel depósito [m]"));

  station.navigation.NodeClick("T_Real");
  const std::string number = std::exchange(station.program.info.SerialNumber, "");
  const auto former = rows();
  station.Run(std::chrono::seconds(2));
  EXPECT_EQ(rows(), former) << "nobody knows of which logger";
  EXPECT_THAT(station.Caption("LabelGrabar"), testing::StartsWith("No se graba"));
  station.program.info.SerialNumber = number;
  station.Run(std::chrono::seconds(2));
  const auto later = rows();
  EXPECT_GT(later, former);
  station.program.info.SerialNumber = number + "0";
  station.Run(std::chrono::seconds(2));
  EXPECT_EQ(rows(), later);
  EXPECT_EQ(button.face.Caption(), "Grabar...");
  EXPECT_EQ(station.Caption("LabelGrabar"), "Grabacion terminada: el equipo es otro");
  station.program.info.SerialNumber = number;
  station.world.dialogs.ChoosePath("/day.csv");
  button.Click();
  station.Run(std::chrono::seconds(2));
  EXPECT_EQ(button.face.Caption(), "Parar") << "another recording may be of another logger";
  button.Click();
  station.navigation.HideAll();
  station.sent.clear();
  station.Run(std::chrono::seconds(2));
  EXPECT_THAT(station.sent, IsEmpty()) << "nobody wants the rounds any more";
  station.world.dialogs.ChoosePath("/full");
  button.Click();
  station.navigation.NodeClick("T_Real");
  station.Run(std::chrono::seconds(2));
  EXPECT_EQ(station.Caption("LabelGrabar"), "La grabacion se ha interrumpido");
  EXPECT_EQ(button.face.Caption(), "Grabar...");
}

TEST(LiveRounds, TagsNameValuesForGood) {
  EXPECT_EQ(LiveTag({LiveKind::Module, 95}), "EX95");
  EXPECT_EQ(LiveIdOf("EX95"), (LiveId{LiveKind::Module, 95}));
  for (const char* bad : {"EX", "EX095", "XX1", "AI-1", "AI1 ", ""})
    EXPECT_FALSE(LiveIdOf(bad)) << bad;
}

TEST(LiveLimits, OfEachKindStandInItsUnit) {
  DeviceConf conf;
  DeviceInfo info;
  const auto arm = [](auto& alarm) {
    alarm.common.HABIL = kTrue;
    alarm.thresholds.MINIMO = 2;
    alarm.thresholds.MAXIMO = 8;
    alarm.thresholds.HISTERESIS = 1;
  };
  arm(conf.Analog[3].ALARM[1]);
  arm(conf.OneWire[0].ALARM[3]);
  arm(conf.Math[1].ALARM[0]);
  arm(conf.Caudal[2].ALARM[0]);
  conf.Caudal[2].RATIO = 0.5F;
  arm(conf.Modbus[31].ALARM[0]);
  arm(conf.Modulo[95].Q.ALARM[0]);
  conf.Modulo[95].MODO = kModeFlow;
  const std::vector<AlarmBand> inUnits{{2, 8, 1}}, inPulses{{1, 4, 0.5}};
  EXPECT_EQ(BandsOf(conf, info, {LiveKind::Analog, 3}), inUnits);
  EXPECT_EQ(BandsOf(conf, info, {LiveKind::Probe, 0}), inUnits);
  EXPECT_EQ(BandsOf(conf, info, {LiveKind::Math, 1}), inUnits);
  EXPECT_EQ(BandsOf(conf, info, {LiveKind::Flow, 2}), inPulses);
  info.Features = 0x200000;
  EXPECT_EQ(BandsOf(conf, info, {LiveKind::Flow, 2}), inUnits);
  EXPECT_EQ(BandsOf(conf, info, {LiveKind::Module, 95}), inUnits);
  conf.Modulo[95].MODO = kModeAnalog;
  EXPECT_THAT(BandsOf(conf, info, {LiveKind::Module, 95}), IsEmpty());
  EXPECT_THAT(BandsOf(conf, info, {LiveKind::Modbus, 31}), IsEmpty()) << "a digital one";
  conf.Modbus[31].ANALOG_MODE = kTrue;
  EXPECT_EQ(BandsOf(conf, info, {LiveKind::Modbus, 31}), inUnits);

  const std::pair<double, BandPlace> places[] = {
      {1.9, BandPlace::Below}, {2, BandPlace::NearMinimum},   {3, BandPlace::Inside},
      {7, BandPlace::Inside},  {7.5, BandPlace::NearMaximum}, {8, BandPlace::NearMaximum},
      {8.1, BandPlace::Above}};
  for (const auto& [value, place] : places) EXPECT_EQ(PlaceIn({2, 8, 1}, value), place) << value;
}

}  // namespace
}  // namespace ostrel
