#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include "Input.h"
#include "WindowWorld.h"
#include "base/CodePage.h"
#include "desktop/program/Language.h"
#include "desktop/window/FaultDetails.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

class WindowTools : public testing::Test, protected WindowWorld<VirtualLoop> {
 protected:
  WindowTools() {
    StartBefore("Tavro BP", "1");
    desktop = Make(&dialogs);
    desktop->Start("");
  }
  Configurator& Core() { return desktop->Core(); }
  MainWindow& Window() { return desktop->Window(); }
  /// The tool of a text; the tools are made in Spanish.
  QAction* Tool(const QString& text) {
    for (QAction* action : Window().findChild<QToolBar*>("Tools")->actions())
      if (action->text() == text) return action;
    throw std::invalid_argument("no tool " + FromQt(text));
  }
  /// Asks for a session on the logger's port.
  void Connect() {
    SessionFrame& session = Core().general.Session();
    session.Puerto.Add("COM7");
    session.Puerto.SetPosition(0);
    Window().GoTo("General");
    session.IniCom_Click();
    loop.RunFor(seconds(5));
  }

  VirtualDialogs dialogs;
  std::unique_ptr<Desktop> desktop;
};

TEST_F(WindowTools, MarksWhatIsNotSavedWithoutCommittingIt) {
  const auto isMarked = [this] {
    loop.RunFor(seconds(2));
    return Window().isWindowModified();
  };
  EXPECT_FALSE(isMarked());
  for (const auto* key : {"General", "E_Digital_0", "E_Analog_1", "Grupos", "Flag_3", "Tavro"}) {
    Window().GoTo(key);
    EXPECT_FALSE(isMarked()) << "looking at " << key;
  }
  Core().TargetDeviceChange("Ostrel VR200");
  EXPECT_FALSE(isMarked()) << "another model";
  Window().GoTo("E_Digital_0");
  auto& name = Core().PageOf(PageId::E_Digital)->GetForm().Get<TextBox>("Nombre");
  name.Type("pump");
  EXPECT_TRUE(isMarked());
  EXPECT_EQ(Core().conf.Digital[0].NOMBRE, "");
  name.Type("");
  EXPECT_FALSE(isMarked());
}

TEST_F(WindowTools, OpensATreeNodeFromTheFilter) {
  TreePane& tree = Window().Tree();
  auto* filter = tree.findChild<QLineEdit*>("Filter");
  filter->setText("flags");
  EXPECT_EQ(Core().PageOf(PageId::Flags)->GetForm().Visible(), false);
  int shown = 0;
  for (QTreeWidgetItemIterator it(&tree.Tree(), QTreeWidgetItemIterator::NotHidden); *it; ++it)
    ++shown;
  EXPECT_EQ(shown, 18);  // the root, the group and its sixteen
  filter->setText("");
  tree.Select("General");
  EXPECT_EQ(desktop->Navigator().Front()->Name(), "TargetSelect");
  filter->setText("DI");  // the root's text matches, too
  Press(filter, Qt::Key_Return);
  EXPECT_EQ(desktop->Navigator().Front()->Name(), "E_Digital");
  EXPECT_EQ(tree.Tree().currentItem()->text(0), "0");
  filter->setText("macros");
  Press(filter, Qt::Key_Return);
  EXPECT_EQ(tree.Tree().currentItem()->text(0), "Macros");
  filter->setText("nothing");
  Press(filter, Qt::Key_Return);
  EXPECT_EQ(tree.Tree().currentItem()->text(0), "Macros");
}

TEST_F(WindowTools, LeavesAChannelThatTheFilesModelHasNot) {
  Core().TargetDeviceChange("Tavro BQ");
  Core().ConfFilePath = Path("bq.ocf");
  ASSERT_TRUE(Core().SaveConf().Ok());
  Core().TargetDeviceChange("Tavro BP");
  Window().GoTo("E_Digital_7");
  dialogs.ChoosePath(Path("bq.ocf"));
  Tool("Abrir")->trigger();
  EXPECT_EQ(Core().profile.TargetName, "Tavro BQ");
  EXPECT_EQ(desktop->Navigator().Front()->Name(), "General");
}

TEST_F(WindowTools, KeepsItsOwnWordsOutOfTheTable) {
  AddLogger(sim::Model::BP);
  Connect();
  for (const auto* key : {"General", "E_Digital_0", "Macros", "Grupos", "Tavro"})
    Window().GoTo(key);
  const std::string table = *files.Read(Path("Lang.txt"));
  for (const auto* own : {"{Sesi", "{Session}", "{Recientes}", "{Recent}", "{Compar"})
    EXPECT_EQ(table.find(own), std::string::npos) << own;
}

TEST_F(WindowTools, SaysThatAPageDoesNotExistYet) {
  UseLanguage("en");
  Window().GoTo("Firmware");
  EXPECT_EQ(Window().Pages().Front(), nullptr);
  auto* empty = Window().Pages().findChild<QLabel*>("EmptyPage");
  EXPECT_EQ(empty->text(), "This page does not exist in this version yet.");
  dialogs.OnModal([](Modal& modal) {
    Form& form = AsForm(modal);
    form.Get<ComboBox>("ComboLang").SetPosition(1);
    form.Get<Button>("CommandOk").Click();
  });
  Tool("Idioma")->trigger();
  dialogs.OnModal([](Modal& modal) {
    Form& form = AsForm(modal);
    form.Get<ComboBox>("ComboLang").SetPosition(0);
    form.Get<Button>("CommandOk").Click();
  });
  Tool("Language")->trigger();
  EXPECT_TRUE(empty->text().contains("Esta")) << "it speaks the language chosen";
  Window().GoTo("CTimer");
  EXPECT_EQ(empty->text(), "");
}

TEST_F(WindowTools, NamesTheDeviceThatFailedWhateverIsChosenSince) {
  UseLanguage("en");
  AddLogger(sim::Model::BP);
  port.SetOpenFault(kPort, PortFault::Busy);
  Connect();
  Core().general.Session().Puerto.Add("COM1");
  Core().general.Session().Puerto.SetPosition(1);
  Window().Look();
  auto* details = Window().Pages().Front()->findChild<FaultDetails*>("FaultDetails");
  EXPECT_TRUE(details->Text().startsWith("COM7 is in use")) << FromQt(details->Text());
  port.SetOpenFault(kPort, PortFault::None);
  Core().general.Session().Puerto.SetPosition(0);
  Core().general.Session().IniCom_Click();
  loop.RunFor(seconds(5));
  EXPECT_TRUE(Core().Connected);
  EXPECT_TRUE(details->isHidden());
}

TEST_F(WindowTools, TellsWhereADownloadBrokeOffAndTracesTheLine) {
  UseLanguage("en");
  std::string error;
  AddLogger(sim::Model::BP, {*sim::ParseFault("silent-after-record@9", error)});
  Connect();
  auto* trace = Window().findChild<QDockWidget*>("Trace");
  QAction* traceSwitch = Tool("Traza");
  traceSwitch->trigger();
  Core().general.Session().Leer.Click();
  auto* state = Window().findChild<QLabel*>("LinkState");
  loop.RunFor(std::chrono::minutes(2));
  EXPECT_EQ(state->text(), "Open");
  EXPECT_EQ(Core().general.Session().ComStat.face.Key(), "Error!");
  auto* details = Window().Pages().Front()->findChild<FaultDetails*>("FaultDetails");
  EXPECT_TRUE(details->Text().contains("silent at record 10")) << FromQt(details->Text());
  auto* lines = trace->findChild<QPlainTextEdit*>();
  EXPECT_TRUE(lines->toPlainText().contains("TxSer: "));
  const int count = lines->blockCount();
  traceSwitch->trigger();
  loop.RunFor(seconds(5));
  EXPECT_EQ(lines->blockCount(), count);
}

TEST_F(WindowTools, BreaksOffASessionThatIsBeingOpened) {
  UseLanguage("en");
  std::string error;
  AddLogger(sim::Model::BP, {*sim::ParseFault("silent", error)});
  auto* button = Window().findChild<QToolButton*>("BreakOff");
  EXPECT_TRUE(button->isHidden());
  loop.After(std::chrono::milliseconds(4500), "break off", [&] {
    const QString state = Window().findChild<QLabel*>("LinkState")->text();
    EXPECT_TRUE(state.startsWith("Detecting, silent for ")) << FromQt(state);
    EXPECT_FALSE(button->isHidden());
    button->click();
  });
  Connect();
  EXPECT_TRUE(button->isHidden());
  EXPECT_EQ(Window().findChild<QLabel*>("LinkState")->text(), "Idle");
  auto* details = Window().Pages().Front()->findChild<FaultDetails*>("FaultDetails");
  EXPECT_EQ(details->Text(),
            "Interrupted before a session stood. The logger's configuration is unchanged.");
}

TEST_F(WindowTools, StaysFreeWhenARequestHasNoSession) {
  UseLanguage("en");
  AddLogger(sim::Model::BP);
  Connect();
  SessionFrame& session = Core().general.Session();
  session.IniCom_Click();
  session.Leer.Click();
  EXPECT_FALSE(Window().Pages().isEnabled());
  loop.RunFor(seconds(3));
  EXPECT_TRUE(Tool("Guardar")->isEnabled() && Window().Pages().isEnabled());
  EXPECT_EQ(Window().findChild<QLabel*>("LinkState")->text(),
            "Idle, a transfer waits for a session");
}

/// Whatever has been shown, at whatever time.
TEST_F(WindowTools, WakesOnceASecondWhileASessionIdles) {
  AddLogger(sim::Model::BP);
  Connect();
  for (const auto* key : {"E_Digital_0", "E_Analog_1", "Grupos", "Flag_3"}) {
    Window().GoTo(key);
    loop.RunFor(std::chrono::milliseconds(137));
  }
  loop.RunFor(seconds(5));
  const auto before = loop.Wakings();
  loop.RunFor(seconds(60));
  EXPECT_LE(loop.Wakings() - before, 60u) << loop.ListTimers();
}

TEST_F(WindowTools, KeepsItsGroupsOpenInAnotherLanguage) {
  QTreeWidget& tree = Window().Tree().Tree();
  const auto group = [&](const QString& text) -> QTreeWidgetItem* {
    const auto found = tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.first();
  };
  group("Temporizadores")->setExpanded(true);
  group("Semanales")->setExpanded(true);
  group("Dispositivo")->setExpanded(true);
  dialogs.OnModal([](Modal& modal) {
    Form& form = AsForm(modal);
    form.Get<ComboBox>("ComboLang").SetPosition(1);
    form.Get<Button>("CommandOk").Click();
  });
  Tool("Idioma")->trigger();
  EXPECT_TRUE(group("Timers")->isExpanded() && group("Weekly")->isExpanded());
  Window().GoTo("E_Analog_0");
  EXPECT_EQ(On<QCheckBox>(*desktop, "HorarioHabil")->accessibleName(), "Always");
  EXPECT_FALSE(group("Cyclic")->isExpanded());
}

TEST_F(WindowTools, MayBeClosedInTheMidstOfADownload) {
  AddLogger(sim::Model::BP);
  port.SetPaced(true);
  Connect();
  Core().general.Session().Leer.Click();
  bool closed = false;
  loop.After(seconds(4), "close", [&] {
    EXPECT_TRUE(Core().ComBusy);
    closed = Window().close();
  });
  const auto start = loop.Now();
  loop.RunFor(seconds(5));
  EXPECT_TRUE(closed);
  EXPECT_LT(loop.Now() - start, seconds(6));
  EXPECT_FALSE(port.PortOpen());
}

TEST_F(WindowTools, CountsAnEditDuringAnUploadAsNotSent) {
  AddLogger(sim::Model::BP);
  port.SetPaced(true);
  Connect();
  Core().general.Session().Leer.Click();
  loop.RunFor(seconds(30));
  EXPECT_FALSE(Window().isWindowModified());
  for (const auto* key : {"E_Digital_0", "E_Analog_1", "Grupos", "Flag_3", "General"}) {
    Window().GoTo(key);
    loop.RunFor(seconds(1));
    EXPECT_FALSE(Window().isWindowModified()) << "looking at " << key;
  }
  const std::string former = Core().conf.Digital[1].NOMBRE;
  ModalScript modals;
  modals.Expect([](QWidget* modal) { AgreeToWrite(modal, false); });
  Core().general.Session().Escribir.Click();
  loop.After(seconds(3), "edit", [&] {
    EXPECT_EQ(Core().session.State().phase, SessionPhase::Writing);
    Window().GoTo("E_Digital_1");
    Core().PageOf(PageId::E_Digital)->GetForm().Get<TextBox>("Nombre").Type("late");
    Window().GoTo("E_Digital_2");
  });
  loop.RunFor(seconds(30));
  EXPECT_EQ(logger->Conf().digitals[1].name, ToCodePage(former));
  EXPECT_EQ(Core().conf.Digital[1].NOMBRE, "late");
  EXPECT_TRUE(Window().isWindowModified());
  const QFileInfoList copies =
      QDir(folder.filePath("backups")).entryInfoList({"*.ocf"}, QDir::Files, QDir::Name);
  ASSERT_EQ(copies.size(), 2);
  const std::string first = *files.Read(FromQt(copies[0].filePath()));
  EXPECT_EQ(files.Read(FromQt(copies[1].filePath())), first);
  EXPECT_EQ(first.find("late"), std::string::npos);
}

TEST_F(WindowTools, SavesWhatTheFileCannotKeepAndSaysSo) {
  UseLanguage("en");
  Core().conf.Digital[1].NOMBRE = " door";
  Core().conf.Digital[2].NOMBRE = "gate";
  dialogs.ChoosePath(Path("a.ocf"));
  Tool("Guardar")->trigger();
  ASSERT_EQ(dialogs.boxes.size(), 1u);
  EXPECT_EQ(dialogs.boxes[0].text,
            "The file cannot keep one text as it is, NOMBRE in DIGITAL 1: \" door\" reads back as "
            "\"door\".");
  EXPECT_TRUE(Window().windowTitle().startsWith("a.ocf"));
  EXPECT_TRUE(Window().close()) << "it is saved";
}

TEST_F(WindowTools, AsksBeforeUnsavedWorkGoes) {
  Core().ConfFilePath = Path("a.ocf");
  ASSERT_TRUE(Core().SaveConf().Ok());
  Core().conf.Digital[1].NOMBRE = "precious";
  ModalScript modals;
  modals.Expect([](QWidget* modal) { Press(modal, Qt::Key_Escape); });
  Tool("Abrir")->trigger();
  EXPECT_EQ(modals.Left(), 0u);
  EXPECT_EQ(dialogs.questions.size(), 0u);
  EXPECT_EQ(Core().conf.Digital[1].NOMBRE, "precious");
  modals.Expect([](QWidget* modal) { modal->findChildren<QPushButton*>()[1]->click(); });
  dialogs.ChoosePath(Path("a.ocf"));
  Tool("Abrir")->trigger();
  EXPECT_EQ(Core().conf.Digital[1].NOMBRE, "");
}

TEST_F(WindowTools, OpensFromItsMenusAndForgetsWhatIsGone) {
  dialogs.ChoosePath(Path("a.ocf"));
  Tool("Guardar")->trigger();
  const auto open = [this] {
    QMenu* menu = Tool("Recientes")->menu();
    emit menu->aboutToShow();
    menu->actions().first()->trigger();
    emit menu->aboutToShow();
    return menu->actions().first()->isEnabled();
  };
  EXPECT_TRUE(open());
  EXPECT_TRUE(dialogs.boxes.empty());
  files.Remove(Path("a.ocf"));
  EXPECT_FALSE(open()) << "the menu is empty";
  EXPECT_EQ(dialogs.boxes.size(), 1u);
}

TEST_F(WindowTools, RestsFromTheRequestToTheEndOfATransfer) {
  AddLogger(sim::Model::BP);
  port.SetPaced(true);
  Connect();
  Core().general.GetForm().Get<TextBox>("NameBox").Type("door");
  loop.RunFor(seconds(2));
  ModalScript modals;
  modals.Expect([](QWidget* modal) { AgreeToWrite(modal, false); });
  Core().general.Session().Escribir.Click();
  Window().Look();
  EXPECT_FALSE(Tool("Guardar")->isEnabled() || Window().Pages().isEnabled());
  modals.Expect([](QWidget* modal) {
    EXPECT_EQ(modal->findChildren<QPushButton*>().size(), 2) << "leave or stay, nothing is saved";
    Press(modal, Qt::Key_Escape);
  });
  loop.After(seconds(2), "close", [&] { EXPECT_FALSE(Window().close()) << "it asks"; });
  loop.RunFor(seconds(30));
  EXPECT_EQ(modals.Left(), 0u);
  EXPECT_EQ(logger->UploadsTaken(), 1U);
  EXPECT_TRUE(Tool("Guardar")->isEnabled() && Window().Pages().isEnabled());
}

TEST_F(WindowTools, ReadingOverChangesAsksFirst) {
  AddLogger(sim::Model::BP);
  Connect();
  Core().general.GetForm().Get<TextBox>("NameBox").Type("door");
  loop.RunFor(seconds(2));
  ASSERT_TRUE(Window().isWindowModified());
  ModalScript modals;
  modals.Expect([](QWidget* modal) { Press(modal, Qt::Key_Escape); });
  Core().general.Session().Leer.Click();
  loop.RunFor(seconds(6));
  EXPECT_EQ(modals.Left(), 0u);
  EXPECT_EQ(Core().conf.General.DNAME, "door");
  EXPECT_FALSE(Core().general.Session().ReadRequest);
}

TEST_F(WindowTools, IsTitledByTheFileThatItWorksOn) {
  Core().ConfFilePath = Path("a.ocf");
  ASSERT_TRUE(Core().SaveConf().Ok());
  files.Create(Path("x.txt"));
  for (const auto* name : {"a.ocf", "x.txt"}) {
    dialogs.ChoosePath(Path(name));
    Tool("Abrir")->trigger();
    EXPECT_TRUE(Window().windowTitle().startsWith("a.ocf[*] - ")) << "after " << name;
  }
  AddLogger(sim::Model::BP);
  Connect();
  Core().general.Session().Leer.Click();
  loop.RunFor(seconds(5));
  EXPECT_TRUE(Window().windowTitle().startsWith("Quorvane Tavro BP")) << "it is the logger's now";
}

TEST_F(WindowTools, ComparesWithAFileWithoutTouchingAnything) {
  UseLanguage("en");
  Core().ConfFilePath = Path("a.ocf");
  ASSERT_TRUE(Core().SaveConf().Ok());
  Window().GoTo("E_Digital_2");
  Core().PageOf(PageId::E_Digital)->GetForm().Get<TextBox>("Nombre").Type("door");
  dialogs.ChoosePath(Path("a.ocf"));
  ModalScript modals;
  modals.Expect([](QWidget* modal) {
    auto* table = modal->findChild<QTableWidget*>();
    ASSERT_EQ(table->rowCount(), 1);
    EXPECT_EQ(table->item(0, 0)->text() + table->item(0, 2)->text(), "DIGITAL 2door");
    EXPECT_EQ(modal->findChild<QLabel*>("Summary")->text(), "1 field differs.");
    Press(modal, Qt::Key_Escape);
  });
  Tool("Comparar")->trigger();
  EXPECT_EQ(modals.Left(), 0u);
  EXPECT_EQ(Core().conf.Digital[2].NOMBRE, "");
}

TEST_F(WindowTools, SaysWhyAFileCouldNotBeWritten) {
  UseLanguage("en");
  dialogs.ChoosePath(Path("none/a.ocf"));
  Tool("Guardar")->trigger();
  ASSERT_EQ(dialogs.boxes.size(), 1u);
  EXPECT_EQ(dialogs.boxes[0].text,
            Path("none/a.ocf") + " could not be written: No such file or directory");
  dialogs.ChoosePath(Path("a.ocf"));
  Tool("Guardar")->trigger();
  EXPECT_EQ(dialogs.boxes.size(), 1u);
}

TEST_F(WindowTools, ShowsWhatIsThrownAndGoesOn) {
  desktop->ShowFault(std::make_exception_ptr(std::runtime_error("odd")));
  ASSERT_EQ(dialogs.boxes.size(), 1u);
  EXPECT_NE(dialogs.boxes[0].text.find("odd"), std::string::npos);
}

}  // namespace
}  // namespace ostrel
