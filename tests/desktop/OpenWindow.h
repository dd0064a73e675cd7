#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <stdexcept>

#include "Input.h"
#include "WindowWorld.h"
#include "desktop/session/FaultNote.h"

namespace ostrel {

/// A window in Spanish with the model Tavro BP chosen, or as it is told, and questions answered by
/// a script.
class OpenWindow : public testing::Test, protected WindowWorld<VirtualLoop> {
 protected:
  explicit OpenWindow(const std::string& model = "Tavro BP", const std::string& language = "1") {
    StartBefore(model, language);
    Restart();
  }
  void Restart(const std::string& file = "") {
    desktop.reset();
    desktop = Make(&dialogs);
    desktop->Start(file);
  }
  void TearDown() override { EXPECT_EQ(modals.Left(), 0U) << "a question did not come up"; }
  Configurator& Core() { return desktop->Core(); }
  MainWindow& Window() { return desktop->Window(); }
  /// The box for the name of the channel that a page shows.
  TextBox& NameOf(PageId page = PageId::E_Digital) {
    return Core().PageOf(page)->GetForm().Get<TextBox>("Nombre");
  }
  /// The tool of a text, in the bar or behind its last tool; the tools are made in Spanish.
  QAction* Tool(const QString& text) {
    QList<QAction*> tools = Window().findChild<QToolBar*>("Tools")->actions();
    tools << tools.back()->menu()->actions();
    for (QAction* action : tools)
      if (action->text() == text) return action;
    throw std::invalid_argument("no tool " + FromQt(text));
  }
  /// Chooses the language of a row by the tool for it.
  void ChooseLanguage(int row, const QString& tool) {
    dialogs.OnModal([row](Modal& modal) {
      AsForm(modal).Get<ComboBox>("ComboLang").SetPosition(row);
      AsForm(modal).Get<Button>("CommandOk").Click();
    });
    Tool(tool)->trigger();
  }

  /// A tool of the session bar.
  QAction* SessionTool(const char* name) { return Window().findChild<QAction*>(name); }
  QString LinkWords() { return Window().findChild<QLabel*>("LinkState")->text(); }
  /// What stands on the general page of what went wrong.
  QString Fault() {
    auto* note = Window().Pages().Front()->findChild<FaultNote*>("FaultNote");
    return note && note->isVisibleTo(&Window()) ? note->Text() : QString();
  }
  /// Puts a logger on the port, and asks for a session with it.
  void ConnectTo(sim::Model model, Duration time = std::chrono::seconds(5)) {
    AddLogger(model);
    Connect(time);
  }
  /// Asks for a session on the logger's port.
  void Connect(Duration time = std::chrono::seconds(5)) {
    SessionFrame& session = Core().general.Session();
    session.Puerto.Add("COM7");
    session.Puerto.SetPosition(0);
    Window().GoTo("General");
    session.IniCom_Click();
    loop.RunFor(time);
  }

  VirtualDialogs dialogs;
  ModalScript modals;  ///< of the window's own questions
  std::unique_ptr<Desktop> desktop;
};

}  // namespace ostrel
