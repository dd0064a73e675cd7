#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include "OpenWindow.h"
#include "base/CodePage.h"
#include "desktop/program/Language.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

class WindowTools : public OpenWindow {};

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
  NameOf().Type("pump");
  EXPECT_TRUE(isMarked());
  EXPECT_EQ(Core().conf.Digital[0].NOMBRE, "");
  NameOf().Type("");
  EXPECT_FALSE(isMarked());
}

TEST_F(WindowTools, AllHaveRoomInAWindowOfTheUsualSizeAndTheKeyboardReachesThem) {
  Window().resize(1280, 720);
  Window().show();
  for (const auto* languageTool : {"Idioma", "Language"}) {
    QCoreApplication::processEvents();
    for (const QToolBar* bar : Window().findChildren<QToolBar*>())
      for (QAction* tool : bar->actions()) {
        const QWidget* widget = bar->widgetForAction(tool);
        EXPECT_TRUE(widget->isVisible()) << FromQt(tool->text());
        const bool isTool = !tool->text().isEmpty();
        EXPECT_EQ(widget->focusPolicy() == Qt::TabFocus, isTool) << FromQt(tool->text());
      }
    ChooseLanguage(1, languageTool);
  }
  QAction* more = Tool("More");
  const QWidget* opened = nullptr;
  QTimer::singleShot(0, &Window(), [&opened] {
    opened = QApplication::activePopupWidget();
    if (opened) QApplication::activePopupWidget()->close();
  });
  more->trigger();  // as its keys do
  EXPECT_EQ(opened, more->menu());
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

TEST_F(WindowTools, ATabOfTheMonitorShowsItsSheet) {
  Window().show();
  Core().TargetDeviceChange("Ostrel VR200");
  Window().GoTo("T_Real");
  for (const int tab : {1, 0}) {
    On<QTabBar>(*desktop, "SSTab1")->setCurrentIndex(tab);
    EXPECT_EQ(On(*desktop, "Digit_MB(0)")->isVisibleTo(&Window()), tab == 1);
    EXPECT_EQ(On(*desktop, "Digit_AN(0)")->isVisibleTo(&Window()), tab == 0);
  }
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
  ConnectTo(sim::Model::BP);
  for (const auto* key : {"General", "E_Digital_0", "Macros", "Grupos", "Tavro"})
    Window().GoTo(key);
  const std::string table = *files.Read(Path("Lang.txt"));
  for (const auto* own : {"{Sesi", "{Session}", "{Recientes}", "{Recent}", "{Compar"})
    EXPECT_EQ(table.find(own), std::string::npos) << own;
}

TEST_F(WindowTools, NamesTheDeviceThatFailedWhateverIsChosenSince) {
  UseLanguage("en");
  AddLogger(sim::Model::BP);
  port.SetOpenFault(kPort, PortFault::Busy);
  Connect();
  Core().general.Session().Puerto.Add("COM1");
  Core().general.Session().Puerto.SetPosition(1);
  Window().Look();
  EXPECT_TRUE(Fault().startsWith("COM7 is in use")) << FromQt(Fault());
  port.SetOpenFault(kPort, PortFault::None);
  Core().general.Session().Puerto.SetPosition(0);
  Core().general.Session().IniCom_Click();
  loop.RunFor(seconds(5));
  EXPECT_TRUE(Core().Connected);
  EXPECT_TRUE(Fault().isEmpty());
}

/// The trace runs from the start of the program, shown or not.
TEST_F(WindowTools, TracesAllTheTimeAndShowsWhatIsWanted) {
  ConnectTo(sim::Model::BP);
  auto* trace = Window().findChild<QDockWidget*>("Trace");
  const auto shown = [&] { return trace->findChild<QPlainTextEdit*>()->toPlainText(); };
  EXPECT_EQ(shown(), "") << "nothing is drawn while nobody looks";
  Tool("Traza")->trigger();
  EXPECT_TRUE(shown().contains("TxSer: #40") && shown().contains("RxSer: #BF"));
  EXPECT_TRUE(shown().startsWith(QString::fromStdString(DateTimeText(clock.LocalNow())).left(10)));
  trace->findChild<QCheckBox*>("Kind0")->setChecked(false);
  EXPECT_FALSE(shown().contains("TxSer: "));
  trace->findChild<QPushButton*>("Pause")->setChecked(true);
  const QString paused = shown();
  loop.RunFor(seconds(5));
  EXPECT_EQ(shown(), paused);
  trace->findChild<QPushButton*>("Pause")->setChecked(false);
  EXPECT_GT(shown().size(), paused.size());
  // A file that others may read does not make a trace theirs.
  const QString file = ToQt(Path("trace.txt"));
  ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
  QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
  dialogs.ChoosePath(Path("trace.txt"));
  trace->findChild<QPushButton*>("Save")->click();
  EXPECT_EQ(ToQt(*files.Read(Path("trace.txt"))).trimmed(), shown());
  EXPECT_FALSE(QFile::permissions(file) & QFile::ReadOther);
  auto* search = trace->findChild<QLineEdit*>("Search");
  auto* text = trace->findChild<QPlainTextEdit*>();
  search->setText("#BF");
  for (int i = 0; i < 2; ++i) {
    Press(search, Qt::Key_Return);
    EXPECT_EQ(text->textCursor().selectedText(), "#BF") << "it begins anew at the end";
  }
}

TEST_F(WindowTools, CancelsASessionThatIsBeingOpened) {
  UseLanguage("en");
  std::string error;
  AddLogger(sim::Model::BP, {*sim::ParseFault("silent", error)});
  QAction* cancel = SessionTool("CancelTool");
  EXPECT_FALSE(cancel->isEnabled());
  loop.After(std::chrono::milliseconds(4500), "break off", [&] {
    EXPECT_TRUE(LinkWords().startsWith("Detecting, silent for ")) << FromQt(LinkWords());
    cancel->trigger();
  });
  Connect();
  EXPECT_FALSE(cancel->isEnabled());
  EXPECT_EQ(LinkWords(), "Idle");
  EXPECT_EQ(Fault(),
            "Interrupted before a session stood. The logger's configuration is unchanged.");
}

TEST_F(WindowTools, StaysFreeWhenARequestHasNoSession) {
  UseLanguage("en");
  ConnectTo(sim::Model::BP);
  SessionFrame& session = Core().general.Session();
  session.IniCom_Click();
  session.Leer.Click();
  EXPECT_FALSE(Window().Pages().isEnabled());
  loop.RunFor(seconds(3));
  EXPECT_TRUE(Tool("Guardar")->isEnabled() && Window().Pages().isEnabled());
  EXPECT_EQ(LinkWords(), "Idle, a transfer waits for a session");
}

/// Whatever has been shown, at whatever time.
TEST_F(WindowTools, WakesOnceASecondWhileASessionIdles) {
  ConnectTo(sim::Model::BP);
  for (const auto* key : {"E_Digital_0", "E_Analog_1", "Grupos", "Flag_3"}) {
    Window().GoTo(key);
    loop.RunFor(std::chrono::milliseconds(137));
  }
  loop.RunFor(seconds(5));
  const auto before = loop.Wakings();
  loop.RunFor(seconds(60));
  EXPECT_LE(loop.Wakings() - before, 60u) << loop.ListTimers();
}

TEST_F(WindowTools, SpeaksAnotherLanguageThroughoutAndKeepsItsGroupsOpen) {
  QTreeWidget& tree = Window().Tree().Tree();
  const auto group = [&](const QString& text) -> QTreeWidgetItem* {
    const auto found = tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.first();
  };
  group("Temporizadores")->setExpanded(true);
  group("Semanales")->setExpanded(true);
  group("Dispositivo")->setExpanded(true);
  Window().GoTo("General");
  ChooseLanguage(1, "Idioma");
  EXPECT_EQ(On<QComboBox>(*desktop, "Privilegios")->currentText(), "Administrator");
  EXPECT_TRUE(group("Timers")->isExpanded() && group("Weekly")->isExpanded());
  Window().GoTo("E_Analog_0");
  EXPECT_EQ(On<QCheckBox>(*desktop, "HorarioHabil")->accessibleName(), "Always");
  EXPECT_FALSE(group("Cyclic")->isExpanded());
  AddLogger(sim::Model::BP);
  Connect(seconds(15));
  EXPECT_TRUE(On<QLabel>(*desktop, "UsedHText")->text().endsWith(" records"));
  dialogs.OnModal([](Modal& modal) {
    EXPECT_EQ(AsForm(modal).Get<ComboBox>("ComboLang").Position(), 1) << "the one in use";
  });
  Tool("Language")->trigger();
}

TEST_F(WindowTools, MayBeClosedInTheMidstOfADownload) {
  port.SetPaced(true);
  ConnectTo(sim::Model::BP);
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
  port.SetPaced(true);
  ConnectTo(sim::Model::BP);
  Core().general.Session().Leer.Click();
  loop.RunFor(seconds(30));
  EXPECT_FALSE(Window().isWindowModified());
  const std::string former = Core().conf.Digital[1].NOMBRE;
  modals.Expect([](QWidget* modal) { AgreeToWrite(modal, false); });
  Core().general.Session().Escribir.Click();
  loop.After(seconds(3), "edit", [&] {
    EXPECT_EQ(Core().session.State().phase, SessionPhase::Writing);
    Window().GoTo("E_Digital_1");
    NameOf().Type("late");
    Window().GoTo("E_Digital_2");
  });
  loop.RunFor(seconds(30));
  EXPECT_EQ(logger->Conf().digitals[1].name, ToCodePage(former));
  EXPECT_EQ(Core().conf.Digital[1].NOMBRE, "late");
  EXPECT_TRUE(Window().isWindowModified());
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
  modals.Expect([](QWidget* modal) { Press(modal, Qt::Key_Escape); });
  Tool("Abrir")->trigger();
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

TEST_F(WindowTools, ReadingOverChangesAsksFirst) {
  ConnectTo(sim::Model::BP);
  Core().general.GetForm().Get<TextBox>("NameBox").Type("door");
  loop.RunFor(seconds(2));
  ASSERT_TRUE(Window().isWindowModified());
  modals.Expect([](QWidget* modal) { Press(modal, Qt::Key_Escape); });
  Core().general.Session().Leer.Click();
  loop.RunFor(seconds(6));
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
  ConnectTo(sim::Model::BP);
  Core().general.Session().Leer.Click();
  loop.RunFor(seconds(5));
  EXPECT_TRUE(Window().windowTitle().startsWith("Quorvane Tavro BP")) << "it is the logger's now";
}

TEST_F(WindowTools, ShowsWhenTimersFireAsThePageInFrontHasThem) {
  Core().conf.LTimer[0] = {kTrue, 5, {}};
  Core().conf.LTimer[0].ACT[0] = 3;
  Core().PageOf(PageId::LTimer)->LoadData();
  Window().GoTo("LTimer0_3");
  Core().PageOf(PageId::LTimer)->GetForm().Get<TextBox>("Period(0)").Type("7");
  modals.Expect([](QWidget* modal) {
    auto* table = modal->findChild<QTableWidget*>();
    ASSERT_EQ(table->rowCount(), 2);
    QStringList texts;
    for (int column = 0; column < 4; ++column) texts << table->item(0, column)->text();
    EXPECT_EQ(texts.join(u'|'), "temporizador largo 0|cada 7 días||3 - Ejecutar macro 2");
    EXPECT_EQ(table->item(1, 0)->text() + table->item(1, 1)->text(), "macro 2temporizador largo 0");
    EXPECT_EQ(table->item(1, 4)->text(), table->item(0, 4)->text());
    Press(modal, Qt::Key_Escape);
  });
  UseLanguage("es");
  Tool("Calendario")->trigger();
  EXPECT_EQ(Core().conf.LTimer[0].PERIOD, 5) << "it only shows";
  UseLanguage("en");
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
