#include <gtest/gtest.h>

#include "PageFixture.h"
#include "link/Wire.h"
#include "pages/AlarmChannelPage.h"
#include "pages/AlarmWire.h"
#include "pages/inputs/E_Analog.h"

namespace ostrel {
namespace {

/// A kind of channel with nothing but its alarms, to prove the common ground by itself. It borrows
/// the records of the analog inputs.
class PlainChannel {
 public:
  using Record = ConfAnalog;
  static constexpr std::string_view kForm = "Plain";
  static constexpr std::string_view kTitle = "Alarma ";
  static constexpr std::string_view kHelp = "Plain";
  static constexpr std::string_view kSection = "PLAIN";
  static constexpr int kChannels = 4;
  static constexpr int kConfigsShown = 4;

  PlainChannel(Form&, const PageContext& context) : context_(context) {}
  static ThresholdBoxes Thresholds() {
    return {NumberForm::Dec, {{"A", ""}, {"B", ""}, {"C", ""}, {"D", ""}}};
  }
  static auto& Records(DeviceConf& conf) { return conf.Analog; }
  static void ClearFields(ConfAnalog&) {}
  void Load(const ConfAnalog&) {}
  void Save(ConfAnalog&) const {}
  void AfterClear() {}
  bool Activate() { return false; }
  void CheckNumbers() {}
  std::vector<WireSection> WireSections() {
    auto& records = context_.conf.Analog;
    return {{"PLAIN.ALM",
             [&records](LineReader& line) {
               AlarmBlock& alarm = AlarmCell(line, records).common;
               line.Into(alarm.TEXTO);
               ReadAlarmGroup(line, alarm);
               line.Into(alarm.FLAG);
             }},
            {"PLAIN.ACT", [&records](LineReader& line) {
               AlarmBlock& alarm = AlarmCell(line, records).common;
               ReadActions(line, {&alarm.ACTHI, &alarm.ACTLO});
             }}};
  }
  std::vector<WireBlock> WireBlocks() {
    return {{"Plain", [this](StatementList& out) {
               AddAlarms(out, {"ALMP", ",HI=", ",LO=", ",NO="}, 2, context_.conf.Analog[2].ALARM,
                         ConfAnalog::kShape, [](Statement&, const LevelThresholds&) {});
             }}};
  }

 private:
  const PageContext& context_;
};

class AlarmPage : public PageFixture {
 protected:
  AlarmPage() {
    page.Form_Load();
    page.Clear();
  }

  AlarmBlock& Cell(int channel, int config) { return conf.Analog[channel].ALARM[config].common; }
  bool Enabled(std::string_view name) { return FaceOf(page.GetForm()[name]).Enabled(); }
  CheckBox& Check(std::string_view name) { return page.GetForm().Get<CheckBox>(name); }
  OptionButton& Option(std::string_view name) { return page.GetForm().Get<OptionButton>(name); }
  TextBox& Box(std::string_view name) { return page.GetForm().Get<TextBox>(name); }

  AlarmChannelPage<PlainChannel> page{context};
};

TEST_F(AlarmPage, TheAlarmTickAndSiempreDecideWhatIsEnabled) {
  struct Case {
    bool alarm, always;
    bool boxes, range;
  };
  for (const Case& c : {Case{false, true, false, false}, Case{false, false, false, false},
                        Case{true, true, true, false}, Case{true, false, true, true}}) {
    SCOPED_TRACE(testing::Message() << c.alarm << c.always);
    Cell(0, 0).HABIL = Bool16(c.alarm);
    Cell(0, 0).SIEMPRE = Bool16(c.always);
    page.LoadData();
    for (const char* name :
         {"RestHabil", "ReenvHabil", "NotSMS", "NotVoz", "NotGPRS", "NotNone", "HorarioHabil",
          "TextoAlarma", "A", "D", "BotonAlto", "BotonBajo", "BotonNormal", "LabelInicio",
          "LabelFinal", "LabelFlag", "LabelTrue", "FlagCombo"})
      EXPECT_EQ(Enabled(name), c.boxes) << name;
    for (const char* name : {"HoraInicio", "HoraFinal", "CheckLun", "CheckMie", "CheckDom"})
      EXPECT_EQ(Enabled(name), c.range) << name;
  }
}

TEST_F(AlarmPage, OneNotificationIsShownAndKept) {
  struct Case {
    bool sms, voz, gprs;
    const char* shown;
  };
  for (const Case& c : {Case{false, false, false, "NotNone"}, Case{true, false, false, "NotSMS"},
                        Case{true, true, false, "NotVoz"}, Case{true, true, true, "NotGPRS"},
                        Case{true, false, true, "NotGPRS"}}) {
    Cell(0, 0).SMS = Bool16(c.sms);
    Cell(0, 0).VOZ = Bool16(c.voz);
    Cell(0, 0).GPRS = Bool16(c.gprs);
    page.LoadData();
    EXPECT_TRUE(Option(c.shown).Selected()) << c.shown;
    page.SavePage();
    EXPECT_EQ(bool(Cell(0, 0).SMS), std::string_view(c.shown) == "NotSMS");
    EXPECT_EQ(bool(Cell(0, 0).VOZ), std::string_view(c.shown) == "NotVoz");
    EXPECT_EQ(bool(Cell(0, 0).GPRS), std::string_view(c.shown) == "NotGPRS");
  }
}

TEST_F(AlarmPage, EachConfigurationKeepsItsEditsWhenAnotherIsShown) {
  for (const char* config : {"Config1", "Config2", "Config1"}) {
    Option(config).SetSelected(true);
    if (Box("TextoAlarma").Text().empty()) Box("TextoAlarma").Type(config);
  }
  EXPECT_EQ(Box("TextoAlarma").Text(), "Config1");
  EXPECT_EQ(Cell(0, 2).TEXTO, "Config2");
  EXPECT_EQ(Cell(0, 0).TEXTO, "");
}

TEST_F(AlarmPage, AnotherChannelCommitsAndShowsItsConfiguration0) {
  Cell(3, 0).TEXTO = "three";
  Cell(3, 0).SMS = kTrue;
  Cell(3, 2).FLAG = 16;
  Option("Config2").SetSelected(true);
  Box("TextoAlarma").Type("old");
  Check("CheckMar").SetChecked(false);
  Box("B").Type("12abc");
  Box("C").Type("abc");
  page.ChangeIndex(3);
  EXPECT_EQ(Cell(0, 2).TEXTO, "old");
  EXPECT_EQ(Cell(0, 2).SEMANA, 125);
  EXPECT_EQ(conf.Analog[0].ALARM[2].thresholds.MAXIMO, 12);
  EXPECT_EQ(conf.Analog[0].ALARM[2].thresholds.HISTERESIS, 0);
  EXPECT_EQ(page.CurrentConfig(), 0);
  EXPECT_EQ(Box("TextoAlarma").Text(), "three");
  EXPECT_EQ(Cell(3, 2).FLAG, 16) << "written back unchanged";
  EXPECT_EQ(page.GetForm().Title(), "Alarma  3");
  page.ChangeIndex(4);
  page.ChangeIndex(-1);
  EXPECT_EQ(page.CurrentIndex(), 3) << "there is no such channel";
}

TEST_F(AlarmPage, TheActionEditorWorksOnTheRowOfItsButton) {
  Cell(0, 0).HABIL = kTrue;
  Cell(0, 0).ACTNO[0] = 42;
  Cell(0, 0).ACTNO[8] = 7;
  page.LoadData();
  dialogs.OnModal([](Form& form) {
    EXPECT_EQ(form.Get<ListBox>("DeviceList").RowText(0), "42 - Sincronizar reloj");
    form.Get<ListBox>("RefList").SetPosition(0);
    form.Get<Button>("AddButton").Click();
    form.Get<Button>("OKButton").Click();
  });
  page.GetForm().Get<Button>("BotonNormal").Click();
  EXPECT_EQ(Cell(0, 0).ACTNO[0], 42);
  EXPECT_EQ(Cell(0, 0).ACTNO[1], 1);
  EXPECT_EQ(Cell(0, 0).ACTNO[8], 7) << "the ninth place stays untouched";
  EXPECT_EQ(Cell(0, 0).ACTHI, ActionList{});
}

TEST_F(AlarmPage, BadNumbersTurnRedWithTheTimer) {
  Box("A").Type("1,5");
  EXPECT_EQ(Box("A").face.Colour(), BackColour::Window);
  loop.RunFor(std::chrono::seconds(1));
  EXPECT_EQ(Box("A").face.Colour(), BackColour::Red);
  EXPECT_EQ(Box("B").face.Colour(), BackColour::Window);
}

TEST_F(AlarmPage, ReadsTheCommonGroup) {
  struct Case {
    const char* group;
    bool habil, siempre;
    int start, stop, week;
  };
  for (const Case& c :
       {Case{"0,86400,127,0", true, true, 0, 86399, 127},
        Case{"0,86399,255,0", true, true, 0, 86399, 255},
        Case{"0,86398,127,0", true, false, 0, 86398, 127},
        Case{"3600,7200,3,0", true, false, 3600, 7200, 3},
        Case{"0,86400,0,0", false, false, 0, 86399, 0}, Case{"90000,-5,1,0", true, false, 0, 0, 1},
        Case{"1,2,300,0", true, true, 1, 2, 127}, Case{",,,", false, false, 0, 0, 0}}) {
    page.Clear();
    Receive(page, std::string("PLAIN.ALM,1,3,Texto,") + c.group + ",4");
    const AlarmBlock& alarm = Cell(1, 3);
    EXPECT_EQ(bool(alarm.HABIL), c.habil) << c.group;
    EXPECT_EQ(bool(alarm.SIEMPRE), c.siempre) << c.group;
    EXPECT_EQ(alarm.INICIO.seconds, c.start) << c.group;
    EXPECT_EQ(alarm.FINAL.seconds, c.stop) << c.group;
    EXPECT_EQ(alarm.SEMANA, c.week) << c.group;
    EXPECT_EQ(alarm.TEXTO, "Texto");
  }
  EXPECT_EQ(Cell(1, 2).TEXTO, "");
}

TEST_F(AlarmPage, NotificationBitsOnlySet) {
  Cell(1, 0).GPRS = kTrue;
  page.Clear();
  Receive(page, "PLAIN.ALM,1,0,,0,0,1,6,16");
  const AlarmBlock& alarm = Cell(1, 0);
  EXPECT_EQ(alarm.SMS, kFalse);
  EXPECT_EQ(alarm.VOZ, kTrue);
  EXPECT_EQ(alarm.REST, kTrue);
  EXPECT_EQ(alarm.RENV, kFalse);
  EXPECT_EQ(alarm.GPRS, kTrue) << "neither clearing nor reading resets it";
  EXPECT_EQ(alarm.FLAG, 16);
  Receive(page, "PLAIN.ALM,1,0,,0,0,1,25,0");
  EXPECT_EQ(alarm.SMS, kTrue);
  EXPECT_EQ(alarm.RENV, kTrue);
}

TEST_F(AlarmPage, IndicesBeyondTheRecordAreBoundFailures) {
  Receive(page, "PLAIN.ALM,4,4,spare,0,0,1,0,0");
  EXPECT_EQ(conf.Analog[4].ALARM[4].common.TEXTO, "spare");
  const DeviceConf before = conf;
  for (const char* line : {"PLAIN.ALM,5,0,x", "PLAIN.ALM,-1,0,x", "PLAIN.ALM,0,5,x",
                           "PLAIN.ALM,0,-1,x", "PLAIN.ACT,99999999999,0,1", "PLAIN.ACT,0,7,1"})
    EXPECT_THROW(Receive(page, line), BoundFailure) << line;
  EXPECT_EQ(conf, before);
}

TEST_F(AlarmPage, ActionsComePlaceByPlace) {
  Cell(0, 1).ACTHI[8] = 9;
  Cell(0, 1).ACTLO[7] = 5;
  Receive(page, "PLAIN.ACT,0,1,1,2,3,4,5,6,70000,8");
  const AlarmBlock& alarm = Cell(0, 1);
  EXPECT_EQ(alarm.ACTHI[0], 1);
  EXPECT_EQ(alarm.ACTLO[0], 2);
  EXPECT_EQ(alarm.ACTHI[2], 5);
  EXPECT_EQ(alarm.ACTHI[3], 0) << "outside the width: left";
  EXPECT_EQ(alarm.ACTLO[3], 8);
  EXPECT_EQ(alarm.ACTLO[7], 0) << "a missing field is 0";
  EXPECT_EQ(alarm.ACTHI[8], 9);
}

TEST_F(AlarmPage, ComposesStatements) {
  AlarmBlock& alarm = Cell(2, 1);
  alarm.HABIL = alarm.REST = alarm.RENV = alarm.VOZ = alarm.GPRS = kTrue;
  alarm.TEXTO = "Nivel alto";
  alarm.SIEMPRE = kFalse;
  alarm.INICIO = {9 * 3600 + 5};
  alarm.FINAL = {86399};
  alarm.SEMANA = 0x85;
  alarm.FLAG = 3;
  alarm.ACTHI[1] = 5;
  alarm.ACTHI[3] = 12;
  alarm.ACTHI[4] = -1;
  Cell(2, 2).HABIL = kTrue;
  Cell(2, 3).HABIL = Cell(2, 3).SMS = kTrue;
  const std::vector<std::string> expected{
      "-ALMP2,INDEX= 0",
      "+ALMP2=Nivel alto,INDEX= 1,SREST,RESEND,RING,GPRS,START=9:00:05,STOP=23:59:59,"
      "WEEK=1010000,EQ= 3,HI= 5 12,LO=,NO=",
      "+ALMP2=,INDEX= 2,NOSEND,EQ= 0,HI=,LO=,NO=",
      "+ALMP2=,INDEX= 3,EQ= 0,HI=,LO=,NO=",
  };
  EXPECT_EQ(Statements(page), expected);
}

TEST_F(AlarmPage, AFileWithoutKeysReadsAsEmptyTexts) {
  Cell(0, 0).ACTHI[0] = 5;
  Cell(0, 0).GPRS = kTrue;
  PutFile("[PLAIN 0]\r\nTEXTO( 0)=hola");
  page.RestoreConf();
  const AlarmBlock& alarm = Cell(0, 0);
  EXPECT_EQ(alarm.TEXTO, "hola");
  EXPECT_EQ(alarm.SEMANA, 0);
  EXPECT_EQ(alarm.SIEMPRE, kFalse);
  EXPECT_EQ(alarm.GPRS, kFalse);
  EXPECT_EQ(alarm.ACTHI[0], 0);
  EXPECT_EQ(alarm.INICIO.seconds, 0) << "keeps what clearing gave it";
}

TEST_F(AlarmPage, ItsHelpIsStarted) {
  page.GetForm().Get<Button>("Help").Click();
  EXPECT_EQ(processes.started.at(0), "Explorer /opt/ostrel\\html\\Plain_ES.htm");
}

}  // namespace
}  // namespace ostrel
