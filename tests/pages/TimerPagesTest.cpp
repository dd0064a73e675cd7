#include "PageFixture.h"
#include "pages/timers/CTimer.h"
#include "pages/timers/LTimer.h"
#include "pages/timers/MTimer.h"
#include "pages/timers/WTimer.h"

namespace ostrel {
namespace {

class TimerPages : public PageFixture {
 protected:
  TimerPages() {
    SelectModel("Ostrel VR200");
    for (Page* page : {Of(cyclic), Of(longTimer), Of(weekly), Of(monthly)}) Start(*page);
  }
  static Page* Of(Page& page) { return &page; }

  template <class Control>
  static Control& On(Page& page, const std::string& name) {
    return page.GetForm().Get<Control>(name);
  }
  static void Enable(Page& page, const std::string& slot) {
    On<CheckBox>(page, "TimerHabil" + slot).SetChecked(true);
  }
  /// The names of the controls of a slot that are disabled, in the order of the form.
  static std::string Disabled(Page& page, const std::string& slot) {
    std::string names;
    for (const ControlRef& control : page.GetForm().Controls())
      if (const Face& face = FaceOf(control); !face.Enabled() && face.Name().ends_with(slot))
        names += face.Name().substr(0, face.Name().size() - slot.size()) + " ";
    return names;
  }

  CTimer cyclic{context};
  LTimer longTimer{context};
  WTimer weekly{context};
  MTimer monthly{context};
};

TEST_F(TimerPages, ATimerThatIsOffIsGrey) {
  const std::string days = "CheckLun CheckMar CheckMie CheckJue CheckVie CheckSab CheckDom ";
  std::string month;
  for (int day = 1; day <= 32; ++day) month += "Check" + std::to_string(day) + " ";
  for (const auto& [page, off] :
       {std::pair{Of(cyclic), "Period HorarioHabil HoraInicio HoraFinal " + days +
                                  "LabelFlag FlagCombo LabelTrue BotonEditar "},
        {Of(longTimer), std::string("Period BotonEditar ")},
        {Of(weekly), "HoraInicio " + days + "BotonEditar "},
        {Of(monthly), "HoraInicio " + month + "BotonEditar "}}) {
    EXPECT_EQ(Disabled(*page, "(1)"), off);
    Enable(*page, "(1)");
    EXPECT_EQ(Disabled(*page, "(1)"),
              page == &cyclic ? "HoraInicio HoraFinal " + days : std::string());
    EXPECT_EQ(Disabled(*page, "(2)"), off) << "another timer";
  }
  On<CheckBox>(cyclic, "HorarioHabil(1)").SetChecked(false);
  EXPECT_EQ(Disabled(cyclic, "(1)"), "");
}

TEST_F(TimerPages, AChangeOfTheGroupKeepsWhatWasTyped) {
  Enable(cyclic, "(3)");
  On<TextBox>(cyclic, "Period(3)").Type("1.5e1x");
  On<ComboBox>(cyclic, "FlagCombo(3)").SetPosition(16);
  On<CheckBox>(cyclic, "CheckSab(3)").SetChecked(false);
  cyclic.ChangeIndex(4);
  EXPECT_EQ(conf.CTimer[3].HABIL, kTrue);
  EXPECT_EQ(conf.CTimer[3].PERIOD, 15);
  EXPECT_EQ(conf.CTimer[3].EQ, 16);
  EXPECT_EQ(conf.CTimer[3].valid.SEMANA, 95);
  EXPECT_EQ(conf.CTimer[7], (ConfCTimer{kFalse, 0, kAlways, 0, {}}));
  ComBusy = true;
  Enable(cyclic, "(0)");
  cyclic.Form_Deactivate();
  EXPECT_EQ(conf.CTimer[4].HABIL, kFalse) << "a download is replacing the model";
}

TEST_F(TimerPages, NumbersBeyondTheirFieldLeaveIt) {
  conf.LTimer[0].PERIOD = 7;
  longTimer.LoadData();
  On<TextBox>(longTimer, "Period(0)").Type("40000");
  longTimer.Form_Deactivate();
  EXPECT_EQ(conf.LTimer[0].PERIOD, 7);
  On<TextBox>(longTimer, "Period(0)").Type("2.5");
  longTimer.Form_Deactivate();
  EXPECT_EQ(conf.LTimer[0].PERIOD, 2) << "rounded to even";
  conf.CTimer[2].PERIOD = .5F;
  cyclic.LoadData();
  Tick();
  EXPECT_EQ(On<TextBox>(cyclic, "Period(2)").face.Colour(), BackColour::Red)
      << "only whole seconds are good on the page";
}

TEST_F(TimerPages, AllDaysOfAMonthAndTheLastAreKept) {
  for (const auto& [mask, kept] :
       {std::pair{16'385.0, 16'385.0}, {4'294'967'297.0, 4'294'967'295.0}}) {
    conf.MTimer[0].MES = mask;
    monthly.LoadData();
    monthly.Form_Deactivate();
    EXPECT_EQ(conf.MTimer[0].MES, kept) << "all that can be shown";
  }
  conf.MTimer[0].MES = 2'147'483'648.0;
  monthly.LoadData();
  for (int day = 1; day <= 32; ++day)
    EXPECT_EQ(On<CheckBox>(monthly, "Check" + std::to_string(day) + "(0)").Checked(), day == 32);
  EXPECT_EQ(Caption(monthly, "Check31(0)"), "31");
}

TEST_F(TimerPages, ButtonsEditTheActionsOfTheirTimer) {
  weekly.ChangeIndex(8);
  weekly.ChangeIndex(13);
  EXPECT_EQ(weekly.GetForm().Title(), "Configuracion temporizadores semanales  8 a 11")
      << "there are no four timers there";
  EXPECT_EQ(Caption(weekly, "FrameTimer(3)"), "Temporizador  11");
  conf.WTimer[10].ACT[0] = 5;
  conf.WTimer[10].ACT[3] = 42;
  Enable(weekly, "(2)");
  dialogs.OnModal([](Modal& modal) { AsForm(modal).Get<Button>("OKButton").Click(); });
  On<Button>(weekly, "BotonEditar(2)").Click();
  EXPECT_EQ(conf.WTimer[10].ACT[1], 42);
  EXPECT_EQ(conf.WTimer[10].ACT[3], 0) << "the list has closed up";
  for (const auto& [page, word] : {std::pair{Of(cyclic), "CT"},
                                   {Of(longTimer), "LT"},
                                   {Of(weekly), "WT"},
                                   {Of(monthly), "MT"}}) {
    On<Button>(*page, "Help").Click();
    EXPECT_NE(processes.started.back().find(std::string("\\") + word + "_ES"), std::string::npos);
  }
}

}  // namespace
}  // namespace ostrel
