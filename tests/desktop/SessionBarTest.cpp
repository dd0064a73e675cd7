#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTableWidget>
#include <QTimer>

#include "OpenWindow.h"
#include "desktop/program/Language.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

class OnEveryPage : public OpenWindow {
 protected:
  OnEveryPage() {
    UseLanguage("en");
    AddLogger(sim::Model::BP);
  }
  /// Starts anew with the window's own boxes, and connects over a line of real speed.
  void ConnectWithOwnBoxes() {
    desktop.reset();
    desktop = Make();
    desktop->Start("");
    Window().show();
    port.SetPaced(true);
    Connect(seconds(15));
    QTimer::singleShot(10'000, [] {  // a box that waits after all is not to hang the test
      if (QMessageBox* box = Box()) box->reject();
    });
  }
  /// Presses a tool and agrees to a plain writing.
  void WriteFromTheBar() {
    modals.Expect([](QWidget* modal) { AgreeToWrite(modal, false); });
    SessionTool("WriteTool")->trigger();
  }
  static QMessageBox* Box() {
    for (QWidget* top : QApplication::topLevelWidgets())
      if (auto* box = qobject_cast<QMessageBox*>(top); box && box->isVisible()) return box;
    return nullptr;
  }
  QString Strip() {
    auto* strip = Window().findChild<FaultNote*>("FaultStrip");
    return strip->isHidden() ? QString() : strip->Text();
  }
};

TEST_F(OnEveryPage, TheLinkIsShownAsItIsAndWritingRestsOnADeadOne) {
  QAction* write = SessionTool("WriteTool");
  EXPECT_FALSE(write->isEnabled());
  Connect(seconds(15));
  EXPECT_EQ(LinkWords(), "Open");
  const auto colour = [this] {
    return Window().findChild<QLabel*>("Lamp")->styleSheet().section('#', 1).left(6);
  };
  const QString whileHeard = colour();
  EXPECT_TRUE(write->isEnabled());
  EXPECT_FALSE(SessionTool("CancelTool")->isEnabled()) << "nothing is under way";
  const QString whatItDoes = write->toolTip();
  const QString who = Window().findChild<QLabel*>("Logger")->text();
  EXPECT_EQ(who, ToQt("Tavro BP, serial number " + logger->Options().serial));
  Window().GoTo("E_Digital_0");
  int exchanges = 0;
  logger->OnExchange([&](const sim::Exchange&) { ++exchanges; });
  loop.RunFor(seconds(33));
  EXPECT_EQ(exchanges, 0) << "nothing is sent to find out";
  EXPECT_EQ(LinkWords(), "Open, last answer 0:20 ago") << "in steps of four times the one before";
  EXPECT_NE(colour(), whileHeard) << "nothing is known by now";
  EXPECT_TRUE(write->isEnabled()) << "it was not asked";
  Window().GoTo("General");
  loop.RunFor(seconds(2));
  EXPECT_EQ(LinkWords(), "Open");
  port.HoldOutput(kPort, true);
  loop.RunFor(seconds(8));
  Window().GoTo("E_Digital_0");
  loop.RunFor(seconds(20));
  EXPECT_TRUE(LinkWords().startsWith("Silent, last answer 0:")) << FromQt(LinkWords());
  EXPECT_FALSE(write->isEnabled());
  Window().GoTo("General");
  Core().general.Session().Escribir.Click();
  loop.RunFor(seconds(20));
  ASSERT_EQ(dialogs.boxes.size(), 1u) << "the page's own button asks nothing of a dead line";
  EXPECT_TRUE(dialogs.boxes[0].text.starts_with("Nothing was sent, since the logger has not"));
  port.HoldOutput(kPort, false);
  loop.RunFor(seconds(15));
  EXPECT_EQ(LinkWords(), "Open");
  Window().GoTo("E_Digital_0");
  line->Vanish();
  loop.RunFor(seconds(2));
  EXPECT_EQ(LinkWords(), "Line lost");
  EXPECT_FALSE(write->isEnabled() || SessionTool("ReadTool")->isEnabled());
  EXPECT_NE(write->toolTip(), whatItDoes) << "it tells why";
}

TEST_F(OnEveryPage, ReadsAndWritesWhereTheOperatorIs) {
  port.SetPaced(true);
  Window().show();
  Connect(seconds(15));
  Window().GoTo("E_Digital_3");
  On(*desktop, "Nombre")->setFocus();
  SessionTool("ReadTool")->trigger();
  bool rested = false;
  loop.After(seconds(4), "look", [&] {
    rested = !Window().Pages().isEnabled() && !Tool("Guardar")->isEnabled();
    for (const QAction* tool : Window().findChild<QToolBar*>("Tools")->actions())
      EXPECT_FALSE(tool->menu() && tool->isEnabled()) << FromQt(tool->text());
    EXPECT_EQ(LinkWords(), "Reading");
    auto* bar = Window().findChild<QToolBar*>("Session")->findChild<QProgressBar*>();
    EXPECT_TRUE(bar->isVisibleTo(&Window()));
    EXPECT_GT(bar->value(), 0);
  });
  loop.RunFor(seconds(30));
  EXPECT_TRUE(rested);
  EXPECT_EQ(desktop->Navigator().Front()->Name(), "E_Digital");
  EXPECT_EQ(Window().focusWidget(), On(*desktop, "Nombre"));
  EXPECT_EQ(NameOf().Text(), Core().conf.Digital[3].NOMBRE);
  EXPECT_FALSE(NameOf().Text().empty());
  NameOf().Type("gate");
  WriteFromTheBar();
  loop.RunFor(seconds(40));
  EXPECT_EQ(logger->Conf().digitals[3].name, "gate");
  EXPECT_FALSE(Window().isWindowModified());
  SessionFrame& frame = Core().general.Session();
  EXPECT_EQ(frame.ComStat.face.Key(), "Configuracion escrita con exito");
  NameOf().Type("door");
  loop.RunFor(seconds(2));
  EXPECT_EQ(frame.ComStat.face.Key(), "Comunicacion iniciada") << "what is shown is not written";
}

TEST_F(OnEveryPage, ATransferIsCancelledAsAnInterruptionDoes) {
  port.SetPaced(true);
  Connect(seconds(15));
  Window().GoTo("E_Digital_3");
  WriteFromTheBar();
  loop.After(seconds(4), "cancel", [&] {
    ASSERT_TRUE(SessionTool("CancelTool")->isEnabled());
    SessionTool("CancelTool")->trigger();
  });
  loop.RunFor(seconds(6));
  EXPECT_EQ(logger->UploadsTaken(), 0u);
  EXPECT_FALSE(port.PortOpen() || Core().Connected);
  EXPECT_EQ(Strip(), "Interrupted. The logger's former configuration stays in force.");
  Window().GoTo("General");
  EXPECT_TRUE(Strip().isEmpty());
  EXPECT_EQ(Fault(), "Interrupted. The logger's former configuration stays in force.");
}

/// Whoever waits in an event of the window would hold the transfer below it.
TEST_F(OnEveryPage, QuestionsDoNotHoldATransfer) {
  ConnectWithOwnBoxes();
  WriteFromTheBar();
  loop.After(seconds(2), "close", [&] {
    EXPECT_FALSE(Window().close()) << "it asks";
    line->SetCarrier(false);
  });
  loop.After(seconds(4), "look", [&] {
    EXPECT_EQ(Core().session.State().phase, SessionPhase::Writing);
    ASSERT_NE(Box(), nullptr) << "and goes on meanwhile";
  });
  loop.RunFor(seconds(40));
  EXPECT_EQ(logger->UploadsTaken(), 1u);
  EXPECT_TRUE(Window().isVisible());
  ASSERT_NE(Box(), nullptr);
  EXPECT_EQ(Box()->text(), "Se corto la comunicacion") << "the question has no object any more";
}

TEST_F(OnEveryPage, LeavingAVoiceListThatIsBeingWrittenIsAsked) {
  ConnectWithOwnBoxes();
  SetNumbers(Core().conf.AutVoz, std::vector<std::string>(50, "600123456"));
  Core().PageOf(PageId::Aut_Voz)->LoadData();
  Window().GoTo("Aut_Voz");
  loop.RunFor(seconds(2));
  loop.After(seconds(2), "close", [&] {
    EXPECT_EQ(Core().session.VoiceList(), ListWork::Writing);
    EXPECT_EQ(LinkWords(), "Escribiendo la lista de voz");
    EXPECT_FALSE(Window().close()) << "it asks";
    ASSERT_NE(Box(), nullptr);
    EXPECT_TRUE(Box()->text().endsWith("Los cambios que no se han guardado ni enviado se pierden."))
        << FromQt(Box()->text());
    Box()->reject();
  });
  Core().PageOf(PageId::Aut_Voz)->GetForm().Get<Button>("WriteBut").Click();
  EXPECT_EQ(Core().session.VoiceList(), ListWork::None);
  EXPECT_EQ(logger->Conf().voice.numbers.size(), 50U) << "and goes on meanwhile";
}

/// A box of the window would hold it.
TEST_F(OnEveryPage, AVoiceListThatIsBeingReadIsNotHeldByAQuestion) {
  ConnectWithOwnBoxes();
  Alter([](auto& held) { held.voice.numbers.assign(100, "600123456"); });
  Window().GoTo("E_Digital_3");
  NameOf().Type("gate");
  loop.RunFor(seconds(2));  // the window looks whether anything is unsaved
  Window().GoTo("Aut_Voz");
  loop.RunFor(seconds(2));
  bool looked = false;
  loop.After(milliseconds(700), "close", [&] {
    ASSERT_EQ(Core().session.VoiceList(), ListWork::Reading);
    EXPECT_FALSE(Tool("Guardar")->isEnabled() || Tool("Canal")->isEnabled());
    EXPECT_FALSE(Window().close()) << "it asks";
    EXPECT_EQ(Core().session.VoiceList(), ListWork::Reading) << "and goes on meanwhile";
    looked = Box() != nullptr;
    if (looked) Box()->reject();
  });
  Core().PageOf(PageId::Aut_Voz)->GetForm().Get<Button>("ReadBut").Click();
  EXPECT_TRUE(looked);
  EXPECT_TRUE(Tool("Guardar")->isEnabled());
}

TEST_F(OnEveryPage, AVoiceListIsAskedAboutAndCancelledWithItsWords) {
  port.SetPaced(true);
  Connect(seconds(15));
  Window().GoTo("Aut_Voz");
  loop.RunFor(seconds(2));
  Button& write = Core().PageOf(PageId::Aut_Voz)->GetForm().Get<Button>("WriteBut");
  const auto held = logger->Conf().voice.numbers;
  for (const std::vector<std::string>& numbers : {std::vector<std::string>{}, {"600", "six"}}) {
    SetNumbers(Core().conf.AutVoz, numbers);
    Core().PageOf(PageId::Aut_Voz)->LoadData();
    dialogs.Answer(BoxAnswer::No);
    write.Click();
    ASSERT_FALSE(dialogs.boxes.empty());
    EXPECT_TRUE(dialogs.boxes.back().prefersNo) << dialogs.boxes.back().text;
    EXPECT_EQ(dialogs.Unused(), 0U) << "it was asked";
  }
  EXPECT_EQ(logger->Conf().voice.numbers, held);
  SetNumbers(Core().conf.AutVoz, std::vector<std::string>(50, "600123456"));
  Core().PageOf(PageId::Aut_Voz)->LoadData();
  loop.After(seconds(2), "cancel", [&] {
    EXPECT_FALSE(SessionTool("ReadTool")->isEnabled());
    SessionTool("CancelTool")->trigger();
  });
  write.Click();
  EXPECT_EQ(Strip(),
            "Interrupted. The logger's voice-call list may be erased or incomplete: write it "
            "again.");
}

TEST_F(OnEveryPage, AReadingCoversWhatItEmptiesAndItsBarTellsOfSuccessAlone) {
  port.SetPaced(true);
  Connect(seconds(15));
  const auto bar = [&] {
    Window().GoTo("General");
    return On(*desktop, "PBar")->isVisibleTo(&Window());
  };
  const auto* table = Window().findChild<QTableWidget*>("GroupTable");
  const auto covers = [&] { return Window().Pages().findChildren<QLabel*>("Cover").size(); };
  EXPECT_FALSE(bar());
  SessionTool("ReadTool")->trigger();
  loop.After(seconds(4), "look", [&] {
    EXPECT_EQ(covers(), 2) << "name and telephones";
    EXPECT_FALSE(Window().findChild<QToolBar*>("Session")->findChild<QProgressBar*>()->isVisibleTo(
        &Window()))
        << "the page has a bar of its own";
    Window().GoTo("E_Digital_3");
    EXPECT_EQ(covers(), 1) << "the whole page";
    Window().GoTo("E_Digital");
    EXPECT_EQ(covers(), 1) << "what stands in the place of a table";
    EXPECT_FALSE(table->isVisibleTo(&Window()));
  });
  loop.RunFor(seconds(60));
  EXPECT_EQ(covers(), 0);
  EXPECT_TRUE(table->isVisibleTo(&Window()));
  EXPECT_EQ(table->rowCount(), 8);
  EXPECT_TRUE(bar());
  SessionTool("ReadTool")->trigger();
  loop.After(seconds(4), "cancel", [&] { SessionTool("CancelTool")->trigger(); });
  loop.RunFor(seconds(10));
  EXPECT_FALSE(bar()) << "it tells of no success";
}

TEST_F(OnEveryPage, LeavingAWritingBreaksItOff) {
  ConnectWithOwnBoxes();
  WriteFromTheBar();
  loop.After(seconds(3), "close", [&] {
    Window().close();
    ASSERT_NE(Box(), nullptr);
    Box()->findChildren<QPushButton*>().first()->click();
  });
  loop.RunFor(seconds(6));
  EXPECT_FALSE(Window().isVisible() || port.PortOpen());
  EXPECT_EQ(logger->UploadsTaken(), 0u);
}

TEST_F(OnEveryPage, SavesToTheFileThatIsKnown) {
  dialogs.ChoosePath(Path("a.ocf"));
  Tool("Guardar")->trigger();
  ASSERT_EQ(dialogs.questions.size(), 1u);
  Window().GoTo("E_Digital_3");
  NameOf().Type("gate");
  Tool("Guardar")->trigger();
  EXPECT_EQ(dialogs.questions.size(), 1u);
  EXPECT_NE(files.Read(Path("a.ocf"))->find("gate"), std::string::npos);
  dialogs.ChoosePath(Path("b.ocf"));
  Tool("Guardar como")->trigger();
  EXPECT_EQ(dialogs.questions.size(), 2u);
  EXPECT_TRUE(files.Exists(Path("b.ocf")));
}

/// The screen of the tests is smaller than the window would like to be.
TEST_F(OnEveryPage, TheWholeWindowStandsOnTheScreen) {
  Window().show();
  Connect();
  const QSize room = Window().screen()->availableSize();
  ASSERT_LT(room.width(), 1280);
  EXPECT_LE(Window().width(), room.width());
  EXPECT_LT(Window().height(), room.height());
  EXPECT_TRUE(Window().statusBar()->isVisible());
  EXPECT_TRUE(Window().findChild<QLabel*>("LinkState")->isVisible()) << "though the bar is narrow";
}

TEST_F(OnEveryPage, AMissingFileIsCalledMissing) {
  Restart(Path("none.ocf"));
  ASSERT_EQ(dialogs.boxes.size(), 1u);
  EXPECT_EQ(dialogs.boxes[0].text, Path("none.ocf") + " no existe.");
}

}  // namespace
}  // namespace ostrel
