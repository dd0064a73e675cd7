#include "tools/LiveStation.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

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
    LiveStation station(c.model);
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
  LiveStation station(sim::Model::BP);
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
  LiveStation station(sim::Model::VR200);
  station.program.conf.Analog[0].NOMBRE = "changed on a page";
  station.ShowMonitor();
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

  LiveStation modules(sim::Model::S100);
  modules.ShowMonitor();
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
    LiveStation station(c.model);
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
  LiveStation station(sim::Model::KA1);
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
  LiveStation station(sim::Model::KA1);
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
  EXPECT_THAT(std::vector<std::string>(station.sent.begin(), station.sent.begin() + 3),
              ElementsAre("#470", "#475", "#20"));
  EXPECT_EQ(station.world.logger->Outputs(), 0b100001u);
  EXPECT_FALSE(station.Get<CheckBox>("CheckCambiarEstado(5)").Checked());
  EXPECT_EQ(station.Get<LedMedio>("Led_O(5)").Value(), LedMedio::kLit);
}

TEST(Monitor, AnOutputIsTickedOnlyWhereItsStateIsKnown) {
  LiveStation station(sim::Model::KA1);
  const auto& box = station.Get<CheckBox>("CheckCambiarEstado(0)");
  const auto tick = [&] { station.Get<CheckBox>("CheckCambiarEstado(0)").SetChecked(true); };
  station.ShowMonitor();
  EXPECT_TRUE(box.face.Enabled());
  tick();
  station.navigation.NodeClick("General");
  station.navigation.NodeClick("T_Real");
  EXPECT_FALSE(box.Checked()) << "whoever leaves the page has thought better of it";
  for (int round = 0; round < kRoundsToStale; ++round)
    station.program.live.reads[static_cast<int>(LiveAnswer::Masks)].Note(false, {});
  tick();
  station.program.monitor.Form_Activate();
  EXPECT_FALSE(box.face.Enabled()) << "the state is an old one";
  EXPECT_FALSE(box.Checked());
  station.Run(milliseconds(1200));
  EXPECT_TRUE(box.face.Enabled());
  station.program.session.Close(false);
  tick();
  station.Run(milliseconds(1200));
  EXPECT_FALSE(box.Checked() || box.face.Enabled()) << "there is no session";
  tick();
  station.Connect();
  station.Run(milliseconds(1200));
  EXPECT_EQ(station.world.logger->Outputs(), 0u);
}

TEST(Monitor, OlderFirmwareLeavesMathBlank) {
  sim::LoggerOptions options = sim::MakeDefaultOptions(sim::Model::BP);
  options.features &= ~sim::kMath;
  LiveStation station(sim::Model::BP, options);
  station.ShowMonitor();
  EXPECT_EQ(station.Digits("Digit_MAT(0)"), "");
  EXPECT_EQ(station.Digits("Digit_RMAT(0)"), "");
  EXPECT_NE(station.Digits("Digit_AN(0)"), "");
  EXPECT_EQ(station.Get<DigitBox>("Digit_MAT(0)").Stale(), Staleness{}) << "nothing stands there";
  station.Get<DigitBox>("Digit_MAT(0)").SetText("of another logger");
  station.Run(milliseconds(1200));
  EXPECT_EQ(station.Digits("Digit_MAT(0)"), "of another logger");
  EXPECT_TRUE(station.Get<DigitBox>("Digit_MAT(0)").Stale().isStale);
}

TEST(Monitor, GreysWhatDidNotComeInTwoRounds) {
  LiveStation station(sim::Model::BP);
  station.ShowMonitor();
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
  LiveStation station(sim::Model::BP);
  station.ShowMonitor();
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

  LiveStation modules(sim::Model::S100);
  modules.ShowMonitor();
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

/// The values of a logger stay on the monitors until another one's come; they are not that one's.
TEST(Monitor, ValuesOfASessionBeforeAreNotThoseOfThisOne) {
  for (const ToolId tool : {ToolId::T_Real_Tavro, ToolId::T_Real_Katodex}) {
    LiveStation station(sim::Model::VR200);
    Form& form = tool == ToolId::T_Real_Tavro ? station.Monitor()
                                              : station.program.cathodicMonitor.GetForm();
    const auto digits = [&] { return form.Get<DigitBox>("Digit_AN(0)").Stale(); };
    station.Connect();
    station.navigation.ShowForm(tool);
    EXPECT_FALSE(digits().isStale) << "nothing stands there yet";
    station.Run(std::chrono::seconds(2));
    EXPECT_FALSE(digits().isStale);
    station.navigation.HideAll();
    station.program.session.Close(false);
    station.Connect();
    station.navigation.ShowForm(tool);
    EXPECT_EQ(digits(), (Staleness{.isStale = true, .since = ""})) << "not read";
    EXPECT_TRUE(form.Get<LedMedio>("Led_F(0)").Stale().isStale);
    station.Run(std::chrono::seconds(2));
    EXPECT_FALSE(digits().isStale);
  }
}

}  // namespace
}  // namespace ostrel
