#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "shell/Navigation.h"
#include "shell/SimWorld.h"
#include "tools/Disk.h"
#include "tools/LiveLimits.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

/// A program with a session to a simulated waterworks, and what it sends.
struct Station {
  explicit Station(sim::Model model, sim::LoggerOptions options = {})
      : world(options.serial.empty() ? sim::MakeDefaultOptions(model) : options) {
    program.StartForCommand(world.TargetName(), 1);
    world.logger->SetConf(sim::DemoConfiguration(model));
  }
  void Connect() {
    ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
    program.session.CompleteInfo();
    program.comms.Trace = [this](const std::string& line) {
      if (const auto at = line.find("TxSer: "); at != std::string::npos)
        sent.push_back(line.substr(at + 7));
    };
  }
  Form& Monitor() { return program.monitor.GetForm(); }
  template <class Control>
  Control& Get(const std::string& name) {
    return Monitor().Get<Control>(name);
  }
  std::string Caption(const std::string& name) { return FaceOf(Monitor()[name]).Caption(); }
  const std::string& Digits(const std::string& name) { return Get<DigitBox>(name).Text(); }
  /// How many of a family of controls are shown.
  int Shown(const std::string& family) {
    int count = 0;
    for (const ControlRef& control : Monitor().Controls()) {
      const Face& face = FaceOf(control);
      if (face.Name().starts_with(family + "(")) count += face.Visible() ? 1 : 0;
    }
    return count;
  }
  void Run(Duration span) { world.loop.RunFor(span); }

  SimWorld world;
  Configurator program{world.platform, world.Options(false)};
  Navigation navigation{program};
  Texts sent;
};

TEST(Monitor, IsShapedByTheModel) {
  struct Case {
    sim::Model model;
    int analogs, pulses, digitals, outputs, modbus, modules;
    const char *title, *lastInput;
    bool hasLine, hasLabel, hasBusTab, hasMathTab;
  };
  const Case cases[] = {
      {sim::Model::KA1, 4, 8, 8, 6, 0, 0, "Sondas", "I8", false, true, false, false},
      {sim::Model::KA2, 4, 8, 9, 2, 0, 0, "Sondas", "UPS", false, true, false, false},
      {sim::Model::VR200, 4, 8, 8, 4, 32, 0, "Entradas analogicas", "I8", true, true, true, false},
      {sim::Model::S100, 2, 2, 2, 1, 0, 96, "Entradas analogicas", "I8", true, true, true, true},
      {sim::Model::BP, 4, 8, 8, 0, 0, 0, "Entradas analogicas", "I8", false, false, false, false},
      {sim::Model::BQ, 1, 2, 6, 0, 0, 0, "Entradas analogicas", "I8", false, false, false, false},
  };
  for (const Case& c : cases) {
    Station station(c.model);
    SCOPED_TRACE(station.world.TargetName());
    EXPECT_EQ(station.navigation.NodeClick("T_Real"), NodeResult::Shown);
    EXPECT_EQ(station.Shown("Digit_AN"), c.analogs);
    EXPECT_EQ(station.Shown("Label_CNT_Name"), c.pulses);
    EXPECT_EQ(station.Shown("Label_FL_Unit"), c.pulses);
    EXPECT_EQ(station.Shown("Led_D"), c.digitals);
    EXPECT_EQ(station.Shown("CheckCambiarEstado"), c.outputs);
    EXPECT_EQ(station.Shown("Led_F"), 16);
    EXPECT_EQ(station.Shown("Digit_MB"), c.modbus);
    EXPECT_EQ(station.Shown("LabelModulo"), c.modules);
    EXPECT_EQ(station.Caption("Frame1"), c.title);
    EXPECT_EQ(station.Caption("Label1(8)"), c.lastInput);
    EXPECT_EQ(station.Caption("Label1(5)"), c.model == sim::Model::BQ ? "DR1" : "I5");
    EXPECT_EQ(FaceOf(station.Monitor()["Line1"]).Visible(), c.hasLine);
    EXPECT_EQ(FaceOf(station.Monitor()["Label3"]).Visible(), c.hasLabel);
    const auto& tabs = station.Get<TabRow>("SSTab1").Tabs();
    EXPECT_EQ(tabs[1].visible, c.hasBusTab);
    EXPECT_EQ(tabs[2].visible, c.hasMathTab);
  }
}

TEST(Monitor, ReadsTwiceASecondWhileItHasTheFront) {
  Station station(sim::Model::BP);
  station.navigation.NodeClick("T_Real");
  station.Run(milliseconds(1100));
  EXPECT_EQ(station.Digits("Digit_CNT(0)"), "") << "nothing was read";
  station.Connect();
  station.Run(milliseconds(600));
  EXPECT_THAT(station.sent, ElementsAre("#20", "#22", "#23", "#29", "#28", "#5D"));
  EXPECT_THAT(station.Caption("RTCText"), testing::StartsWith("RTC: 15/01/2026 8:30:"));
  station.navigation.HideAll();
  station.sent.clear();
  station.Run(std::chrono::seconds(3));
  EXPECT_THAT(station.sent, IsEmpty());
}

TEST(Monitor, ShowsWhatTheLoggerHoldsAndSays) {
  Station station(sim::Model::VR200);
  station.Connect();
  station.program.conf.Analog[0].NOMBRE = "changed on a page";
  station.navigation.NodeClick("T_Real");
  station.Run(milliseconds(900));
  const RealTimeData& live = station.program.live;
  EXPECT_EQ(station.Caption("Label_AN_Name(0)"), "Nivel depósito");
  EXPECT_EQ(station.Digits("Digit_AN(0)"), NumText(live.AnalogValue[0]));
  EXPECT_NE(live.AnalogValue[0], 0);
  station.program.live.DigitalMask = 0b100000110;
  station.program.live.DeviceClock = {2026, 3, 2, 9, 5, 7};
  station.program.monitor.Form_Activate();
  std::vector<int> lamps;
  for (int i = 0; i < 9; ++i)
    lamps.push_back(station.Get<LedMedio>("Led_D(" + std::to_string(i) + ")").Value());
  EXPECT_THAT(lamps, ElementsAre(1, 3, 3, 1, 1, 1, 1, 1, 3));
  EXPECT_EQ(station.Caption("RTCText"), "RTC: 02/03/2026 9:05:07");

  Station modules(sim::Model::S100);
  modules.Connect();
  modules.navigation.NodeClick("T_Real");
  modules.Run(std::chrono::seconds(1));
  EXPECT_EQ(modules.Caption("LabelModulo(2)"),
            "Nivel pozo 3:" + NumText(modules.program.live.ModuloValue[2]) + " m");
  modules.program.live.reads[static_cast<int>(LiveAnswer::Modules32)].missed = kRoundsToStale;
  modules.program.monitor.Form_Activate();
  EXPECT_EQ(modules.Get<ReadoutLine>("LabelModulo(31)").Stale(), Staleness{});
  EXPECT_THAT(modules.Get<ReadoutLine>("LabelModulo(32)").Stale().since,
              testing::StartsWith("8:30:"));
}

/// Each value stands in its own row with its name and unit, and ages with the answer that it came
/// in.
TEST(Monitor, EachRowShowsItsOwnValueAndAge) {
  struct Case {
    sim::Model model;
    LiveAnswer answer;
    const char *family, *row, *digits, *name, *unit;
  };
  for (const Case& c :
       {Case{sim::Model::BP, LiveAnswer::Counters, "CNT", "(7)", " 107", "counter", ""},
        {sim::Model::BP, LiveAnswer::Flows, "FL", "(7)", " 207", "flow", "l/s"},
        {sim::Model::BP, LiveAnswer::Masks, "AN", "(3)", " 303", "level", "m"},
        {sim::Model::BP, LiveAnswer::Math, "MAT", "(3)", " 403", "sum", "kW"},
        {sim::Model::BP, LiveAnswer::MathRaw, "RMAT", "(7)", "507", "R7", ""},
        {sim::Model::KA1, LiveAnswer::Aux, "AN", "(3)", " 603", "probe", "C"},
        {sim::Model::VR200, LiveAnswer::Modbus, "MB", "(31)", " 731", "drive", "V"}}) {
    SCOPED_TRACE(c.name);
    Station station(c.model);
    station.Connect();
    station.navigation.NodeClick("T_Real");
    RealTimeData& live = station.program.live;
    live.CounterName[7] = "counter", live.CounterValue[7] = 107;
    live.FlowName[7] = "flow", live.FlowUnit[7] = "l/s", live.FlowValue[7] = 207;
    live.AnalogName[3] = "level", live.AnalogUnit[3] = "m", live.AnalogValue[3] = 303;
    live.MathName[3] = "sum", live.MathUnit[3] = "kW", live.MathValue[3] = 403;
    live.MathRaw[7] = "507";
    live.AuxName[3] = "probe", live.AuxUnit[3] = "C", live.AuxValue[3] = 603;
    live.ModbusName[31] = "drive", live.ModbusUnit[31] = "V", live.ModbusValue[31] = 731;
    live.FlagMask = 0x8000;
    const std::string digits = std::string("Digit_") + c.family + c.row;
    for (int answer = 0; answer < kLiveAnswers; ++answer) {
      for (int i = 0; i < kLiveAnswers; ++i)
        live.reads[i] = {.hasCome = true, .missed = 0, .at = std::chrono::hours(i)};
      live.reads[answer].missed = kRoundsToStale;
      station.program.monitor.Form_Activate();
      const bool isOwn = answer == static_cast<int>(c.answer);
      EXPECT_EQ(station.Get<DigitBox>(digits).Stale(),
                (Staleness{isOwn, isOwn ? std::to_string(answer) + ":00:00" : ""}));
    }
    EXPECT_EQ(station.Caption("LabelLectura"), "Ultima lectura: 6:00:00") << "of the masks";
    EXPECT_EQ(station.Digits(digits), c.digits);
    const std::string label = std::string("Label_") + c.family;
    EXPECT_EQ(station.Caption(label + "_Name" + c.row), c.name);
    if (*c.unit != '\0') {
      EXPECT_EQ(station.Caption(label + "_Unit" + c.row), c.unit);
    }
    EXPECT_EQ(station.Get<LedMedio>("Led_F(15)").Value(), LedMedio::kLit);
    live.reads = {};
    live.reads[0].missed = 1;
    station.program.monitor.Form_Activate();
    EXPECT_EQ(station.Get<DigitBox>(digits).Stale(), (Staleness{true, ""})) << "never read";
  }
}

TEST(Monitor, CaptionsFollowTheLanguage) {
  Station station(sim::Model::KA1);
  station.navigation.NodeClick("Firmware");
  station.program.tools.Translate = [](std::string_view text) {
    return "<" + std::string(text) + ">";
  };
  station.Run(milliseconds(600));
  EXPECT_EQ(FaceOf(station.program.firm.GetForm()["StarBut"]).Caption(), "<Iniciar>");
  station.program.terminal.LoadText();
  EXPECT_EQ(FaceOf(station.program.terminal.GetForm()["LabelLines"]).Caption(),
            "<Lineas recibidas:> 0");
  station.program.monitor.Form_Activate();
  EXPECT_EQ(station.Caption("Frame1"), "<Sondas>");
  EXPECT_EQ(station.Get<TabRow>("SSTab1").Tabs()[0].caption, "<General>");
  station.navigation.ShowForm(ToolId::T_Real_Katodex);
  station.program.tools.Translate = [](std::string_view) { return std::string("later"); };
  station.Run(milliseconds(600));
  EXPECT_EQ(FaceOf(station.program.cathodicMonitor.GetForm()["Label_AUX_Name(1)"]).Caption(),
            "later");
}

TEST(Monitor, ATickSwitchesAnOutputOverOnce) {
  Station station(sim::Model::KA1);
  station.Connect();
  station.navigation.NodeClick("T_Real");
  station.Run(milliseconds(700));
  station.sent.clear();
  for (const char* box : {"CheckCambiarEstado(5)", "CheckCambiarEstado(0)"})
    station.Get<CheckBox>(box).SetChecked(true);
  station.program.comms.LinkBusy = true;
  station.Run(milliseconds(600));
  EXPECT_THAT(station.sent, IsEmpty()) << "another dialogue has the line";
  station.program.comms.LinkBusy = false;
  station.Run(milliseconds(1200));
  ASSERT_GE(station.sent.size(), 4u);
  EXPECT_THAT(Texts(station.sent.begin(), station.sent.begin() + 3),
              ElementsAre("#470", "#475", "#20"));
  EXPECT_EQ(station.world.logger->Outputs(), 0b100001u);
  EXPECT_FALSE(station.Get<CheckBox>("CheckCambiarEstado(5)").Checked());
  EXPECT_EQ(station.Get<LedMedio>("Led_O(5)").Value(), LedMedio::kLit);
}

TEST(Monitor, OlderFirmwareLeavesMathBlank) {
  sim::LoggerOptions options = sim::MakeDefaultOptions(sim::Model::BP);
  options.features &= ~sim::kMath;
  Station station(sim::Model::BP, options);
  station.Connect();
  station.navigation.NodeClick("T_Real");
  station.Run(milliseconds(900));
  EXPECT_EQ(station.Digits("Digit_MAT(0)"), "");
  EXPECT_EQ(station.Digits("Digit_RMAT(0)"), "");
  EXPECT_NE(station.Digits("Digit_AN(0)"), "");
}

TEST(Monitor, GreysWhatDidNotComeInTwoRounds) {
  Station station(sim::Model::BP);
  station.Connect();
  station.navigation.NodeClick("T_Real");
  station.Run(milliseconds(900));
  const auto age = [&](const std::string& box) { return station.Get<DigitBox>(box).Stale(); };
  LiveRead& flows = station.program.live.reads[static_cast<int>(LiveAnswer::Flows)];
  const std::string former = station.Digits("Digit_FL(0)");
  for (const bool isStale : {false, true}) {
    flows.Note(false, {});
    station.program.monitor.Form_Activate();
    EXPECT_EQ(age("Digit_FL(0)").isStale, isStale);
    EXPECT_FALSE(age("Digit_CNT(0)").isStale);
  }
  EXPECT_EQ(station.Digits("Digit_FL(0)"), former) << "the value stays";
  EXPECT_THAT(age("Digit_FL(0)").since, testing::StartsWith("8:30:"));
  station.Run(milliseconds(900));
  EXPECT_EQ(age("Digit_FL(0)"), Staleness{});
  EXPECT_EQ(station.Get<ReadoutLine>("RTCText").Stale(), Staleness{});
  station.program.live.ClockRead.missed = kRoundsToStale;
  station.program.monitor.Form_Activate();
  EXPECT_TRUE(station.Get<ReadoutLine>("RTCText").Stale().isStale);
  station.program.session.Close(false);
  station.sent.clear();
  station.Run(milliseconds(900));
  EXPECT_TRUE(age("Digit_CNT(0)").isStale) << "the session has ended";
  EXPECT_TRUE(station.Get<LedMedio>("Led_F(0)").Stale().isStale);
  EXPECT_THAT(station.sent, IsEmpty());
}

TEST(Monitor, BarsShowTheLimitsOfTheLoadedConfiguration) {
  Station station(sim::Model::BP);
  station.Connect();
  station.navigation.NodeClick("T_Real");
  station.Run(milliseconds(900));
  const auto& bar = station.Get<LimitBar>("Bar_AN(0)");
  EXPECT_FALSE(bar.face.Visible());
  ASSERT_TRUE(station.program.comms.ReadConf());
  station.Run(milliseconds(900));
  EXPECT_TRUE(bar.face.Visible());
  ASSERT_EQ(bar.Bands().size(), 1u);
  EXPECT_NEAR(bar.Bands()[0].maximum, 6.2, 1e-6);
  EXPECT_NEAR(bar.Bands()[0].minimum, 0.8, 1e-6);
  EXPECT_NEAR(bar.Bands()[0].hysteresis, 0.1, 1e-6);
  EXPECT_EQ(bar.Value(), std::optional<double>(station.program.live.AnalogValue[0]));
  EXPECT_EQ(bar.face.Caption(), "Nivel depósito");
  station.program.live.AnalogName[0].clear();
  station.program.live.reads[static_cast<int>(LiveAnswer::Masks)].missed = kRoundsToStale;
  station.program.monitor.Form_Activate();
  EXPECT_EQ(bar.face.Caption(), "AI0");
  EXPECT_FALSE(bar.Value()) << "a stale value stands nowhere";

  Station modules(sim::Model::S100);
  modules.Connect();
  modules.navigation.NodeClick("T_Real");
  modules.Run(milliseconds(900));
  DeviceConf& conf = modules.program.conf;
  conf.Analog[1].ALARM[0].common.HABIL = kTrue;
  conf.Modulo[40].MODO = kModeAnalog;
  conf.Modulo[40].A.ALARM[0].common.HABIL = kTrue;
  for (const auto& [model, shown] : {std::pair{"Ostrel S100", true}, {"Tavro BQ", false}}) {
    modules.program.TargetDeviceChange(model);
    modules.program.monitor.Form_Activate();
    for (const char* name : {"Bar_AN(1)", "Bar_EX(40)"}) {
      EXPECT_EQ(modules.Get<LimitBar>(name).face.Visible(), shown) << model << name;
      EXPECT_EQ(modules.Get<LimitBar>(name).Value().has_value(), shown);
    }
  }
}

TEST(Monitor, TheLimitsOfEachKindStandInItsUnit) {
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

TEST(Monitor, TheCathodicOneWritesAllOutputsAndKeepsItsFirstNames) {
  Station station(sim::Model::VR200);
  station.Connect();
  T_Real_Katodex& monitor = station.program.cathodicMonitor;
  Form& form = monitor.GetForm();
  EXPECT_TRUE(station.navigation.ShowForm(ToolId::T_Real_Katodex));
  station.world.logger->SetConf(sim::DemoConfiguration(sim::Model::VR200));
  monitor.OutputChange(0);
  monitor.OutputChange(2);
  station.Run(milliseconds(900));
  EXPECT_THAT(station.sent, testing::IsSupersetOf({"#480", "#481", "#472", "#483", "#5D"}));
  EXPECT_EQ(station.world.logger->Outputs(), 0b100u) << "the second alone took effect";
  EXPECT_EQ(FaceOf(form["Label_AN_Name(0)"]).Caption(), "Nivel depósito");
  station.program.live.AnalogName[0] = "of a later session";
  station.Run(milliseconds(900));
  EXPECT_EQ(FaceOf(form["Label_AN_Name(0)"]).Caption(), "Nivel depósito");
  EXPECT_EQ(FaceOf(form["Label_AUX_Name(1)"]).Caption(), "Canal 1 (150mVCC):");
  EXPECT_EQ(FaceOf(form["Label_AUX_Unit(1)"]).Caption(), "mV");
  EXPECT_EQ(form.Get<DigitBox>("Digit_AUX(3)").Text(), " 0");
  EXPECT_EQ(FaceOf(form["Frame2"]).Caption(), "Entradas/ Salidas digitales");
  EXPECT_EQ(form.Get<DigitBox>("Digit_AN(0)").Text(), NumText(station.program.live.AnalogValue[0]));
  EXPECT_EQ(FaceOf(form["Label_AN_Unit(1)"]).Caption(), "bar");
  monitor.OutputChange(2);
  station.Run(milliseconds(900));
  EXPECT_EQ(station.world.logger->Outputs(), 0u);
  station.sent.clear();
  station.Run(milliseconds(900));
  for (const std::string& message : station.sent)
    EXPECT_FALSE(message.starts_with("#47") || message.starts_with("#48"))
        << "they are written once";
  station.navigation.HideAll();
  station.sent.clear();
  station.Run(std::chrono::seconds(2));
  EXPECT_THAT(station.sent, IsEmpty());
  station.program.live.DigitalMask = 0;
  station.program.live.FlagMask = 0x8000;
  station.program.session.Close(false);
  EXPECT_TRUE(station.navigation.ShowForm(ToolId::T_Real_Katodex));
  station.Run(milliseconds(900));
  EXPECT_EQ(form.Get<LedMedio>("Led_F(15)").Value(), LedMedio::kLit);
  EXPECT_TRUE(form.Get<LedMedio>("Led_F(15)").Stale().isStale) << "the session has ended";
}

TEST(LiveRounds, GoOnForWhoeverKeepsThemGoing) {
  Station station(sim::Model::BQ);
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
  Station station(sim::Model::BP);
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

}  // namespace
}  // namespace ostrel
