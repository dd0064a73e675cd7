#include "PageFixture.h"
#include "pages/inputs/E_Analog.h"

namespace ostrel {
namespace {

class AlarmPage : public PageFixture {
 protected:
  AlarmPage() { Start(page); }

  AlarmBlock& Cell(int channel, int config) { return conf.Analog[channel].ALARM[config].common; }
  CheckBox& Check(std::string_view name) { return page.GetForm().Get<CheckBox>(name); }
  OptionButton& Option(std::string_view name) { return page.GetForm().Get<OptionButton>(name); }
  TextBox& Box(std::string_view name) { return page.GetForm().Get<TextBox>(name); }

  E_Analog page{context};
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
    Cell(0, 0).valid.SIEMPRE = Bool16(c.always);
    page.LoadData();
    EXPECT_EQ(Enabled(page, {"RestHabil", "ReenvHabil", "NotSMS", "NotVoz", "NotGPRS", "NotNone",
                             "HorarioHabil", "TextoAlarma", "Minimo", "Persist", "BotonAlto",
                             "BotonBajo", "BotonNormal", "LabelInicio", "LabelFinal", "LabelFlag",
                             "LabelTrue", "FlagCombo"}),
              std::string(18, c.boxes ? '1' : '0'));
    EXPECT_EQ(Enabled(page, {"HoraInicio", "HoraFinal", "CheckLun", "CheckMie", "CheckDom"}),
              std::string(5, c.range ? '1' : '0'));
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
  Box("Maximo").Type("12abc");
  Box("Histeresis").Type("abc");
  page.ChangeIndex(3);
  EXPECT_EQ(Cell(0, 2).TEXTO, "old");
  EXPECT_EQ(Cell(0, 2).valid.SEMANA, 125);
  EXPECT_EQ(conf.Analog[0].ALARM[2].thresholds.MAXIMO, 12);
  EXPECT_EQ(conf.Analog[0].ALARM[2].thresholds.HISTERESIS, 0);
  EXPECT_EQ(page.CurrentConfig(), 0);
  EXPECT_EQ(Box("TextoAlarma").Text(), "three");
  EXPECT_EQ(Cell(3, 2).FLAG, 16) << "written back unchanged";
  EXPECT_EQ(page.GetForm().Title(), "Configuracion entrada analogica  3");
  page.ChangeIndex(4);
  page.ChangeIndex(-1);
  EXPECT_EQ(page.CurrentIndex(), 3) << "there is no such channel";
}

TEST_F(AlarmPage, TheActionEditorWorksOnTheRowOfItsButton) {
  Cell(0, 0).HABIL = kTrue;
  Cell(0, 0).ACTNO[0] = 42;
  Cell(0, 0).ACTNO[8] = 7;
  page.LoadData();
  dialogs.OnModal([](Modal& modal) {
    Form& form = AsForm(modal);
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

}  // namespace
}  // namespace ostrel
