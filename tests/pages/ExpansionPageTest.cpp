#include "PageFixture.h"
#include "pages/expansion/E_Modular.h"

namespace ostrel {
namespace {

class ExpansionPage : public PageFixture {
 protected:
  ExpansionPage() {
    SelectModel("Ostrel S100");
    context.repaintTree = [this] { ++repaints; };
    Start(page);
  }

  ComboBox& Combo(const char* name) { return page.GetForm().Get<ComboBox>(name); }
  TextBox& Box(const char* name) { return page.GetForm().Get<TextBox>(name); }
  int Tab() { return page.GetForm().Get<TabStrip>("SSTab1").Tab(); }

  int repaints = 0;
  E_Modular page{context};
};

TEST_F(ExpansionPage, ASharedPlaceIsToldAndAFreeOneFound) {
  const auto shared = [this] { return Shown(page, {"Shared"}) == "1"; };
  for (int i = 0; i < 12; ++i) {
    ConfModulo& other = conf.Modulo[i];
    other.MODO = i == 9 ? kModeOff : kModeCounter;
    other.DIR = static_cast<std::int16_t>(14 + i / 8);
    other.ENTRADA = static_cast<std::int16_t>(i % 8);
  }
  page.ChangeIndex(40);
  Combo("AddressCombo").SetPosition(14);
  Combo("InputCombo").SetPosition(3);
  EXPECT_FALSE(shared()) << "an input that is off is wired to nothing";
  Combo("ModeCombo").SetPosition(kModeDigital);
  EXPECT_TRUE(shared());
  EXPECT_EQ(Caption(page, "Shared"), "Esta entrada la usa tambien el canal 3");
  const auto next = [&] {
    page.GetForm().Get<Button>("FindFree").Click();
    return std::pair(Combo("AddressCombo").Position(), Combo("InputCombo").Position());
  };
  EXPECT_EQ(next(), std::pair(15, 1)) << "its user is off";
  EXPECT_FALSE(shared());
  EXPECT_EQ(next(), std::pair(15, 4));
  for (int i = 0; i < 3; ++i) next();
  EXPECT_EQ(next(), std::pair(0, 0)) << "from the first module again";
}

TEST_F(ExpansionPage, TheModeChoosesTabAndHelp) {
  const char* const words[] = {"ExpNone", "ExpDigital", "ExpFlow", "ExpCounter", "ExpAnalog"};
  for (const int mode : {1, 2, 3, 4, 0}) {
    Combo("ModeCombo").SetPosition(mode);
    EXPECT_EQ(Tab(), mode);
    page.GetForm().Get<Button>("Help").Click();
    EXPECT_NE(processes.started.back().find(words[mode]), std::string::npos) << words[mode];
  }
}

TEST_F(ExpansionPage, AnInputThatChangesItsModeLosesNothing) {
  Combo("ModeCombo").SetPosition(2);
  Box("Q_Nombre").Type("Caudal");
  Box("Q_Ratio").Type("0.25");
  Combo("ModeCombo").SetPosition(1);
  Choose(page, "D_Int_NC");
  page.ChangeIndex(1);
  EXPECT_EQ(Box("Q_Nombre").Text(), "");
  EXPECT_EQ(Tab(), 0);
  page.ChangeIndex(0);
  EXPECT_EQ(Tab(), 1);
  EXPECT_EQ(Box("Q_Nombre").Text(), "Caudal");
  EXPECT_EQ(conf.Modulo[0].Q.RATIO, 0.25F);
  EXPECT_EQ(conf.Modulo[0].D.NC, kTrue);
}

TEST_F(ExpansionPage, EachTabHasItsAlarmAndItsLists) {
  dialogs.OnEveryModal([&](Modal&) { ActionBuffer[0] = 5; });
  for (const auto* name : {"D_BotonBajo", "Q_BotonNormal", "A_BotonAlto"}) {
    page.GetForm().Get<CheckBox>(std::string(name, 2) + "AlarmaHabil").SetChecked(true);
    page.GetForm().Get<Button>(name).Click();
  }
  const ConfModulo& input = conf.Modulo[0];
  EXPECT_EQ(input.D.ALARM[0].common.ACTLO[0], 5);
  EXPECT_EQ(input.Q.ALARM[0].common.ACTNO[0], 5);
  EXPECT_EQ(input.A.ALARM[0].common.ACTHI[0], 5);
  EXPECT_FALSE(page.GetForm().Contains("D_BotonNormal"));
  EXPECT_FALSE(page.GetForm().Get<OptionButton>("A_Config1").face.Visible());
  Box("Q_Unidad").Type("l/s");
  const int before = repaints;
  loop.RunFor(std::chrono::seconds(1));
  EXPECT_EQ(page.GetForm().Get<Label>("Q_RatioUnit").face.Caption(), "l/s");
  EXPECT_EQ(repaints, before + 1);
}

TEST_F(ExpansionPage, TheCalculatorAndTheTotalAreAskedFor) {
  const TextBox* box = nullptr;
  std::int16_t counter = -1;
  context.showPulseCalculator = [&](TextBox& ratio) { box = &ratio; };
  context.showExpansionTotal = [&](std::int16_t input) { counter = input; };
  live.ModuloValue[40] = 41;
  Connected = true;
  page.ChangeIndex(40);
  page.GetForm().Get<Button>("Q_HelpBut").Click();
  page.GetForm().Get<Button>("C_BotonModificar").Click();
  EXPECT_EQ(box, &Box("Q_Ratio"));
  EXPECT_EQ(counter, 40);
  const Face& total = page.GetForm().Get<Label>("C_TotalText").face;
  EXPECT_EQ(total.Caption(), "") << "nothing was read";
  live.reads[static_cast<int>(LiveAnswer::Modules32)].Note(true, {});
  loop.RunFor(std::chrono::seconds(1));
  EXPECT_EQ(total.Caption(), " 41");
}

}  // namespace
}  // namespace ostrel
