#include "shell/SimWorld.h"

namespace ostrel {
namespace {

/// The tools over a session with a simulated logger.
class Tools : public testing::Test {
 protected:
  static sim::LoggerOptions Model(sim::Model model) { return sim::MakeDefaultOptions(model); }

  explicit Tools(sim::Model model = sim::Model::S100) : world(Model(model)) {
    program.StartForCommand(world.TargetName(), 1);
  }
  void Connect() { ASSERT_TRUE(program.session.Open(SimWorld::kPort, "")); }
  /// Shows the form that `open` opens, while the operator does `work` in it.
  void In(const std::function<void()>& open, const std::function<void(Form&)>& work) {
    world.dialogs.OnModal([work](Modal& modal) { work(AsForm(modal)); });
    open();
    EXPECT_EQ(world.dialogs.Unused(), 0u);
  }
  static std::string Caption(Form& form, std::string_view name) {
    return FaceOf(form[name]).Caption();
  }
  static void Press(Form& form, std::string_view button) { form.Get<Button>(button).Click(); }

  SimWorld world;
  Configurator program{world.platform, world.Options(false)};
};

class ProbeTool : public Tools {
 protected:
  ProbeTool() : Tools(sim::Model::KA1) {}
};

TEST_F(Tools, TotalsAreSetInASession) {
  Connect();
  Page& page = *program.PageOf(PageId::Caudal);
  page.ChangeIndex(1);
  std::size_t shownBefore = 0;
  program.comms.Trace = [&](const std::string&) { shownBefore = world.dialogs.modals; };
  In([&] { page.GetForm().Get<Button>("BotonModificar").Click(); },
     [&](Form& form) {
       EXPECT_EQ(form.Name(), "SetTotal");
       EXPECT_EQ(shownBefore, 1u) << "nothing is asked before the dialog stands";
       EXPECT_EQ(Caption(form, "LabelEstado"), "Preparado");
       EXPECT_EQ(Caption(form, "LabelPreValue"), NumText(program.totals[1]));
       form.Get<TextBox>("TextNew").Type("-5");
       Press(form, "OKButton");
       EXPECT_EQ(Caption(form, "LabelEstado"), "Ok");
       EXPECT_EQ(Caption(form, "LabelPreValue"), "-5");
       form.Get<TextBox>("TextNew").Type("99999999999");
       Press(form, "OKButton");
       EXPECT_EQ(Caption(form, "LabelEstado"), "Error!") << "beyond 32 bits";
       EXPECT_EQ(form.Get<TextBox>("TextNew").Text(), "99999999999");
       for (const char* bad : {"", "12.5", "1,5"}) {
         form.Get<TextBox>("TextNew").Type(bad);
         Press(form, "OKButton");
         EXPECT_EQ(world.dialogs.boxes.back().text, "Escriba un valor numerico valido") << bad;
         EXPECT_EQ(world.dialogs.boxes.back().title, "Ostrel S100");
       }
       EXPECT_TRUE(form.Visible());
       Press(form, "CancelButton");
       EXPECT_FALSE(form.Visible());
     });
  EXPECT_EQ(world.dialogs.boxes.size(), 3u);
  EXPECT_EQ(Caption(page.GetForm(), "TotalText"), "-5");
}

TEST_F(Tools, ExpansionTotalsGoByAMessageOfTheirOwn) {
  Connect();
  std::string sent;
  program.comms.Trace = [&](const std::string& line) {
    if (const auto at = line.find("#41"); at != std::string::npos) sent = line.substr(at);
  };
  Page& page = *program.PageOf(PageId::E_Modular);
  page.ChangeIndex(95);
  EXPECT_EQ(Caption(page.GetForm(), "C_TotalText"), "") << "nothing was read";
  In([&] { page.GetForm().Get<Button>("C_BotonModificar").Click(); },
     [&](Form& form) {
       EXPECT_EQ(form.Name(), "ExpSetTotal");
       EXPECT_FALSE(FaceOf(form["LabelPreValue"]).Visible());
       form.Get<TextBox>("TextNew").Type("7");
       Press(form, "OKButton");
     });
  EXPECT_EQ(sent, "#41EXP95=7");
  EXPECT_EQ(Caption(page.GetForm(), "C_TotalText"), " 7");
}

TEST_F(Tools, WithoutASessionNothingIsSet) {
  In([&] { program.context.showTotal(9); },
     [&](Form& form) {
       EXPECT_EQ(Caption(form, "LabelEstado"), "Sin comunicacion");
       form.Get<TextBox>("TextNew").Type("5");
       Press(form, "OKButton");
       EXPECT_EQ(world.dialogs.boxes.back().text, "No hay comunicacion con el dispositivo");
       EXPECT_EQ(Caption(form, "LabelEstado"), "Sin comunicacion");
     });
}

TEST_F(Tools, TheRatioGoesIntoTheFieldThatAskedForIt) {
  Page& page = *program.PageOf(PageId::Caudal);
  page.GetForm().Get<OptionButton>("Int_Habil").SetSelected(true);
  In([&] { page.GetForm().Get<Button>("HelpBut").Click(); },
     [&](Form& form) {
       TextBox& amount = form.Get<TextBox>("TextPulsos");
       TextBox& timeBase = form.Get<TextBox>("TextTimeBase");
       EXPECT_FALSE(form.Get<Button>("UseButton").face.Enabled());
       for (const char* bad : {"1.5", "", "0", "40000"}) {
         timeBase.Type(bad);
         amount.Type("10");
         Press(form, "CalcButton");
         EXPECT_EQ(timeBase.face.Colour(), BackColour::Red) << bad;
       }
       timeBase.Type("60");
       amount.Type("x");
       Press(form, "CalcButton");
       EXPECT_EQ(amount.face.Colour(), BackColour::Red);
       EXPECT_EQ(form.Get<TextBox>("TextEqUn").Text(), "");
       amount.Type("10");
       form.Get<ComboBox>("ComboEq").SetPosition(1);
       Press(form, "CalcButton");
       EXPECT_EQ(form.Get<TextBox>("TextEqUn").Text(), " .6");
       Press(form, "UseButton");
       EXPECT_FALSE(form.Visible());
     });
  EXPECT_EQ(page.GetForm().Get<TextBox>("Ratio").Text(), "0.6");
}

TEST_F(Tools, BitsAddUp) {
  In(program.context.showMaskCalculator, [](Form& form) {
    const auto click = [&](int bit, bool on) {
      form.Get<CheckBox>("BitCheck(" + std::to_string(bit) + ")").SetChecked(on);
      return form.Get<TextBox>("Resultado").Text();
    };
    EXPECT_EQ(click(15, true), " 32768");
    EXPECT_EQ(click(15, false), " 0");
    for (int bit = 0; bit < 15; ++bit) click(bit, true);
    EXPECT_EQ(click(15, true), " 65535");
  });
}

TEST_F(ProbeTool, ReadsTheIdentityOfTheProbe) {
  Connect();
  Page& page = *program.PageOf(PageId::E_OneWire);
  page.GetForm().Get<OptionButton>("OptionId").SetSelected(true);
  Press(page.GetForm(), "BotonLeerId");
  EXPECT_EQ(world.dialogs.boxes.size(), 1u);
  const std::string first = page.GetForm().Get<TextBox>("ID0").Text();
  EXPECT_EQ(first.size(), 15u) << first;
  EXPECT_NE(first, kNoIdentity);
}

}  // namespace
}  // namespace ostrel
