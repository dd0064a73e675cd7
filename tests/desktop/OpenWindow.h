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

/// A window in Spanish, with the model Tavro BP chosen and questions answered by a script.
class OpenWindow : public testing::Test, protected WindowWorld<VirtualLoop> {
 protected:
  OpenWindow() {
    StartBefore("Tavro BP", "1");
    desktop = Make(&dialogs);
    desktop->Start("");
  }
  Configurator& Core() { return desktop->Core(); }
  MainWindow& Window() { return desktop->Window(); }
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
  std::unique_ptr<Desktop> desktop;
};

}  // namespace ostrel
