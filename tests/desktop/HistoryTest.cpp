#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>

#include "OpenWindow.h"
#include "base/CodePage.h"
#include "base/Sha256.h"
#include "desktop/window/CompareWindow.h"
#include "shell/ConfigurationFile.h"
#include "shell/ledger/Interrupted.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

class WindowHistory : public OpenWindow {
 protected:
  WindowHistory() { AddLogger(sim::Model::BP); }

  void Restart() {
    ledger.process += "+";
    desktop.reset();
    desktop = Make(&dialogs);
    desktop->Start("");
  }
  void ReadLogger() {
    Window().show();
    Connect();
    SessionTool("ReadTool")->trigger();
    loop.RunFor(seconds(40));
  }
  /// Clicks the button of a question whose text holds a word.
  static auto Chooses(const QString& word) {
    return [word](QWidget* modal) {
      for (QPushButton* button : modal->findChildren<QPushButton*>())
        if (button->text().remove(u'&').contains(word)) return button->click();
      ADD_FAILURE() << "no button " << FromQt(word);
      Press(modal, Qt::Key_Escape);
    };
  }
};

TEST_F(WindowHistory, FindsOpensAndComparesWhatWas) {
  ReadLogger();
  ASSERT_EQ(ledger.entries.size(), 2U);
  const std::string read = Core().conf.General.DNAME;
  Core().conf.General.DNAME = "edited";
  Core().ShowConfiguration(Core().conf);
  ModalScript modals;
  modals.Expect([&](QWidget* modal) {
    auto* table = modal->findChild<QTableWidget*>();
    EXPECT_EQ(table->rowCount(), 2);
    table->selectRow(1);
    EXPECT_FALSE(modal->findChild<QPushButton*>("Open")->isEnabled()) << "a session holds nothing";
    EXPECT_EQ(table->item(0, 5)->text(), "COM7");
    EXPECT_EQ(table->item(0, 6)->text().section(u' ', 1), "registros");
    table->selectRow(0);
    auto* filter = modal->findChild<QLineEdit*>("Filter");
    Type(filter, "nada");
    EXPECT_FALSE(modal->findChild<QPushButton*>("Open")->isEnabled()) << "it is hidden";
    filter->clear();
    Type(filter, "LECTURA 2026");
    EXPECT_TRUE(table->isRowHidden(1));
    EXPECT_FALSE(table->isRowHidden(0));
    table->selectRow(0);
    modal->findChild<QPushButton*>("Compare")->click();
  });
  Tool("Historial")->trigger();
  const auto* compared = Window().findChild<CompareWindow*>()->findChild<QTreeWidget*>();
  EXPECT_EQ(compared->topLevelItemCount(), 1) << "the name alone differs";
  modals.Expect([&](QWidget* modal) {
    modal->findChild<QTableWidget*>()->selectRow(1);  // behind the file that was compared
    for (const char* name : {"none/x.ocf", "kept.ocf"}) {
      dialogs.ChoosePath(Path(name));
      modal->findChild<QPushButton*>("Save")->click();
    }
    modals.Expect(Chooses("sin guardar"));
    modal->findChild<QPushButton*>("Open")->click();
  });
  Tool("Historial")->trigger();
  EXPECT_EQ(modals.Left(), 0U);
  EXPECT_EQ(Core().conf.General.DNAME, read);
  EXPECT_EQ(Core().ConfFilePath, Path("history/entry-2.ocf"));
  EXPECT_EQ(files.Read(Path("kept.ocf")), files.Read(Core().ConfFilePath));
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_NE(dialogs.boxes[0].text.find(Path("none/x.ocf")), std::string::npos);
  EXPECT_EQ(ledger.entries.back().serial, logger->Options().serial);
}

TEST_F(WindowHistory, TellsATestRunInItsOwnLanguage) {
  ledger.process = "killed";
  ledger.Add({.kind = LedgerKind::Writing});
  ledger.process = "one";
  ledger.Add({.kind = LedgerKind::TestRun,
              .state = LedgerState::Failed,
              .file = "/a.ocf",
              .fault = "stopped: Error, PIN bloqueado",
              .detail = "bq, Ana\nnew number 1203050001\nVBat = 4.69 (>= 5) FAILED"});
  ModalScript modals;
  modals.Expect([&](QWidget* modal) {
    auto* table = modal->findChild<QTableWidget*>();
    auto* measured = modal->findChild<QPlainTextEdit*>("Details");
    EXPECT_EQ(table->item(0, 2)->text(), "prueba de fábrica");
    EXPECT_EQ(table->item(0, 6)->text(), "bq, Ana, /a.ocf, se paró: Error, PIN bloqueado");
    EXPECT_EQ(table->item(1, 3)->text(), "cortado");
    EXPECT_FALSE(measured->isVisible());
    table->selectRow(0);
    EXPECT_TRUE(measured->isVisible());
    EXPECT_EQ(measured->toPlainText(), "número nuevo 1203050001\nVBat = 4.69 (>= 5) FALLO");
    Press(modal, Qt::Key_Escape);
  });
  Tool("Historial")->trigger();
  EXPECT_EQ(modals.Left(), 0U);
}

TEST_F(WindowHistory, TellsOfWhatWasInterruptedAndOffersAWayOut) {
  ReadLogger();
  LedgerEntry cut = ledger.entries.back();
  cut.kind = LedgerKind::Writing;
  cut.state = LedgerState::UnderWay;
  cut.former = cut.content;
  ledger.Add(cut);
  Restart();
  ASSERT_FALSE(dialogs.boxes.empty());
  EXPECT_NE(dialogs.boxes.back().text.find("contenga su configuración anterior"), std::string::npos)
      << dialogs.boxes.back().text;
  ModalScript modals;
  modals.Expect(Chooses("Leer y comparar"));
  Window().show();
  Connect();
  loop.RunFor(seconds(40));
  EXPECT_EQ(modals.Left(), 0U);
  EXPECT_EQ(dialogs.boxes.back().text, "El registrador contiene la configuración nueva.")
      << "both hashes are the same here";
  const std::size_t told = dialogs.boxes.size();
  Restart();
  EXPECT_EQ(dialogs.boxes.size(), told) << "it is known now";
}

/// The ways out of a writing that was cut off, one session each; another logger is not asked about.
TEST_F(WindowHistory, EachWayOutOfAnInterruptionLeadsWhereItSays) {
  ReadLogger();
  LedgerEntry cut = ledger.entries.back();
  DeviceConf wanted = Core().conf;
  const std::string former = std::exchange(wanted.General.DNAME, "nueva");
  const std::string octets = ContentOf(files, wanted, Core().profile);
  cut.kind = LedgerKind::Writing;
  cut.state = LedgerState::UnderWay;
  cut.former = std::exchange(cut.content, Sha256(octets));
  ledger.KeepContent(cut.content, octets);
  LedgerEntry foreign = cut;
  foreign.serial = "OTHER";
  ledger.Add(foreign);
  struct Case {
    const char* way;
    bool isCutAnew, writes;
    std::string name;      ///< of the logger behind it
    std::size_t stayOpen;  ///< interruptions
  };
  for (const Case& c : {Case{"Más tarde", true, false, "otra", 2},
                        {"Escribir la nueva", false, true, "nueva", 1},
                        {"Reponer la anterior", true, true, former, 1},
                        {"No avisar más", true, false, "otra", 1}}) {
    SCOPED_TRACE(c.way);
    sim::Configuration changed = logger->Conf();
    changed.name = "otra";
    logger->SetConf(changed);
    if (c.isCutAnew) ledger.Add(cut);
    Restart();
    ModalScript modals;
    modals.Expect(Chooses(c.way));
    if (c.writes) modals.Expect([](QWidget* modal) { AgreeToWrite(modal, false); });
    Window().show();
    Connect();
    loop.RunFor(seconds(60));
    EXPECT_EQ(modals.Left(), 0U);
    EXPECT_EQ(FromCodePage(logger->Conf().name), c.name);
    EXPECT_EQ(FindInterrupted(ledger).size(), c.stayOpen);
  }
}

TEST_F(WindowHistory, ALedgerThatCannotBeUsedIsTold) {
  ledger.fault = "the disk is gone";
  Restart();
  auto* told = Window().findChild<QLabel*>("LedgerFault");
  ASSERT_NE(told, nullptr);
  EXPECT_EQ(told->text(), "No se guarda nada en el libro de registro: the disk is gone");
  ModalScript modals;
  modals.Expect([&](QWidget* modal) {
    QStringList texts;
    for (const QLabel* label : modal->findChildren<QLabel*>()) texts << label->text();
    EXPECT_TRUE(texts.contains("No se puede leer el libro de registro: the disk is gone"));
    Press(modal, Qt::Key_Escape);
  });
  Tool("Historial")->trigger();
  EXPECT_EQ(modals.Left(), 0U);
}

}  // namespace
}  // namespace ostrel
