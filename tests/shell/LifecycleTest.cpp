#include "SilentDevice.h"
#include "World.h"
#include "pages/ActionCatalogue.h"

namespace ostrel {
namespace {

class Lifecycle : public testing::Test {
 protected:
  /// A program that has run before.
  void KnowEverything() {
    world.Stored("Idioma") = "2";
    world.Stored("ComPort") = "7";
    world.Stored("Target") = "Tavro BP";
  }

  World world;
};

TEST_F(Lifecycle, TheFirstRunAsksForLanguageAndModel) {
  world.dialogs.OnModal([](Modal& modal) {
    Form& form = AsForm(modal);
    EXPECT_EQ(form.Name(), "Lang");
    EXPECT_EQ(form.Get<ComboBox>("ComboLang").Rows().size(), 2U);
    form.Get<ComboBox>("ComboLang").SetPosition(1);
    form.Get<Button>("CommandOk").Click();
  });
  Configurator program(world.platform, world.Options(true));
  program.Start("");
  EXPECT_EQ(world.Stored("Idioma"), "2");
  EXPECT_EQ(program.lang.SelectedLang(), 0) << "the choice applies from the next start on";
  ASSERT_EQ(world.dialogs.boxes.size(), 1U);
  EXPECT_EQ(world.dialogs.boxes[0].title, "Seleccion del modelo");
  EXPECT_TRUE(program.profile.IsKA1);
  EXPECT_EQ(program.MainCaption(), "Quorvane Ostrel KA1 v1.0");
  EXPECT_EQ(world.Stored("Target"), "") << "only the model window stores it";
  program.ShutDown();
  EXPECT_EQ(world.Stored("Idioma"), "2") << "the end of the run does not undo the choice";
}

TEST_F(Lifecycle, WithoutATableItsOwnLanguageIsOffered) {
  world.files.contents.erase(World::kLangFile);
  world.dialogs.OnModal([](Modal& modal) {
    Form& form = AsForm(modal);
    ASSERT_EQ(form.Get<ComboBox>("ComboLang").Rows().size(), 1U);
    EXPECT_EQ(form.Get<ComboBox>("ComboLang").Text(), "Español");
    form.Get<Button>("CommandOk").Click();
  });
  Configurator program(world.platform, world.Options(true));
  program.Start("");
  EXPECT_EQ(world.Stored("Idioma"), "1");
}

TEST_F(Lifecycle, AFirstRunIsOneThatLacksEitherSetting) {
  for (const char* lost : {"Idioma", "ComPort"}) {
    KnowEverything();
    world.Stored(lost).clear();
    world.dialogs.modals = 0;
    Configurator program(world.platform, world.Options(true));
    program.Start("");
    EXPECT_EQ(world.dialogs.modals, 1U) << lost;
    EXPECT_NE(world.Stored("Idioma"), "") << lost;
    if (lost == std::string("Idioma")) continue;
    EXPECT_EQ(world.Stored("Idioma"), "2") << "a question left unanswered changes nothing";
  }
}

/// The language of a first run waits for the next start. Until then only another choice replaces
/// it.
TEST_F(Lifecycle, ALanguageOfAFirstRunIsLostToAnotherChoiceOnly) {
  const auto choose = [this](int row, const char* button) {
    world.dialogs.OnModal([=](Modal& modal) {
      Form& form = AsForm(modal);
      form.Get<ComboBox>("ComboLang").SetPosition(row);
      form.Get<Button>(button).Click();
    });
  };
  for (const auto& [button, stored] : {std::pair{"CommandCancel", "2"}, {"CommandOk", "1"}}) {
    world.settings.values.clear();
    Configurator program(world.platform, world.Options(true));
    choose(1, "CommandOk");
    program.Start("");
    choose(0, button);
    program.AskLanguage();
    program.ShutDown();
    EXPECT_EQ(world.Stored("Idioma"), stored) << button;
  }
}

TEST_F(Lifecycle, ALaterRunAsksNothing) {
  KnowEverything();
  Configurator program(world.platform, world.Options(true));
  program.Start("");
  EXPECT_TRUE(world.dialogs.boxes.empty() && world.dialogs.modals == 0);
  EXPECT_TRUE(program.profile.IsBP);
  EXPECT_EQ(program.general.GetForm().Get<CheckBox>("CheckMask").face.Caption(), "Enable mask");
  EXPECT_EQ(program.conf.General.RENVT, 10) << "the pages have been cleared";
  world.Stored("Target") = "Ostrel XX";
  Configurator other(world.platform, world.Options(true));
  other.Start("");
  EXPECT_EQ(other.profile.DigitalCount, 0) << "an unknown model leaves none";
  EXPECT_EQ(program.profile.DigitalCount, 8) << "neither program knows of the other";
}

TEST_F(Lifecycle, TheCommandLineNamesAFileBetweenTwoCharacters) {
  KnowEverything();
  for (const char* line : {"\"/site.ocf\"", "x/site.ocfx"}) {
    world.files.contents["/site.ocf"] = "[General]\r\nVERSION=TAVRO\r\nNOMBRE=Pozo";
    Configurator program(world.platform, world.Options(true));
    program.Start(line);
    EXPECT_EQ(program.conf.General.DNAME, "Pozo") << line;
  }
  for (const char* line : {"\"", "ab"}) {
    Configurator program(world.platform, world.Options(true));
    program.Start(line);
    EXPECT_EQ(world.dialogs.boxes.back().text, "This is not a valid configuration file") << line;
  }
}

TEST_F(Lifecycle, EndingStoresPortAndLanguage) {
  KnowEverything();
  world.port.AddDevice(12, "sim", "", [](LineEnd&) { return std::make_unique<SilentDevice>(); });
  Configurator program(world.platform, world.Options(true));
  program.Start("");
  EXPECT_EQ(program.general.Session().Puerto.Text(), "COM12");
  program.lang.SetSelectedLang(1);
  program.ShutDown();
  EXPECT_EQ(world.Stored("ComPort"), "12");
  EXPECT_EQ(world.Stored("Idioma"), "1");
  program.general.Session().Puerto.Clear();
  program.ShutDown();
  EXPECT_EQ(world.Stored("ComPort"), "") << "without a port the next start is a first run";
}

TEST_F(Lifecycle, TheModelIsPickedInItsWindowUnlessASessionStands) {
  KnowEverything();
  Configurator program(world.platform, world.Options(true));
  program.Start("");
  Form& form = program.targetSelect.GetForm();
  auto& combo = form.Get<ComboBox>("ComboTarget");
  EXPECT_EQ(combo.Text(), "Tavro BP");
  combo.SetPosition(3);
  int rebuilt = 0;
  program.OnTargetChanged = [&] { ++rebuilt; };
  form.Get<Button>("CommandChange").Click();
  EXPECT_TRUE(program.profile.IsS100);
  EXPECT_EQ(world.Stored("Target"), "Ostrel S100");
  EXPECT_EQ(rebuilt, 1);
  program.Connected = true;
  program.targetSelect.Form_Activate();
  EXPECT_TRUE(form.Get<Label>("LabelWarning").face.Visible());
  EXPECT_FALSE(form.Get<Button>("CommandChange").face.Enabled());
}

/// Every text of the program stands in the shipped table with an English form, and the table has
/// room for all that is to come.
TEST_F(Lifecycle, TheShippedTableHoldsEveryText) {
  KnowEverything();
  const std::string shipped = world.files.contents[World::kLangFile];
  EXPECT_TRUE(shipped.starts_with("{Espa\xF1ol}{English}")) << "languages stand in the first row";
  for (const char* model : {"Ostrel KA1", "Tavro BQ", "Tavro BP", "Ostrel S100"}) {
    world.Stored("Target") = model;
    Configurator program(world.platform, world.Options(true));
    program.Start("");
    program.LoadText();
    program.actEdit.ShowModal();
    std::string code;
    program.pwForm.ShowModal(code);
    for (const std::string_view name : ActionNames()) program.context.Translate(name);
    for (const char* text :
         {"Detectando ", "Comunicacion iniciada", "Cerrar comunicacion", "Error!",
          "Escribiendo configuracion...", "Configuracion escrita con exito",
          "Descargando configuracion...", "Configuracion descargada con exito", "Abrir", "Guardar",
          "Idioma", "Se corto la comunicacion", "La clave de acceso debe ser un numero",
          "Error, no es un numero de telefono correcto", "Lista llena"})
      program.context.Translate(text);
    program.AskAndOpen();
  }
  EXPECT_EQ(world.files.contents[World::kLangFile], shipped) << "nothing had to be added";
  Lang table(world.files, World::kLangFile);
  ASSERT_TRUE(table.Init());
  for (int row = 0; row < table.LangCount(); ++row)
    EXPECT_NE(table.GetString(2, row), "") << table.LangLine(row);
  EXPECT_LT(table.LangCount(), kLangRows);
}

}  // namespace
}  // namespace ostrel
