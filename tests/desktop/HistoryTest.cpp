#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>

#include "OpenWindow.h"
#include "base/CodePage.h"
#include "base/Sha256.h"
#include "desktop/dialogs/CompareWindow.h"
#include "shell/files/ConfigurationFile.h"
#include "shell/ledger/Interrupted.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

class WindowHistory : public OpenWindow {
 protected:
  WindowHistory() { AddLogger(sim::Model::BP); }

  void Restart() {
    ledger.process += "+";
    OpenWindow::Restart();
  }
  void ReadLogger() {
    Window().show();
    Connect();
    SessionTool("ReadTool")->trigger();
    loop.RunFor(seconds(40));
  }
  /// A writing that was cut off, of which the ledger does not know that it has ended.
  LedgerEntry CutWriting() {
    LedgerEntry cut = ledger.entries.back();
    cut.kind = LedgerKind::Writing;
    cut.state = LedgerState::UnderWay;
    cut.former = cut.content;
    return cut;
  }
  void Edit(const std::string& name) {
    Core().conf.General.DNAME = name;
    Core().ShowConfiguration(Core().conf);
    Window().Look();
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
  modals.Expect([&](QWidget* modal) {
    auto* table = modal->findChild<QTableWidget*>();
    EXPECT_EQ(table->rowCount(), 2);
    table->selectRow(1);
    EXPECT_FALSE(modal->findChild<QPushButton*>("Open")->isEnabled()) << "a session holds nothing";
    EXPECT_EQ(table->item(0, 5)->text(), "COM7");
    EXPECT_EQ(table->item(0, 6)->text().section(u' ', 1), "registros");
    table->selectRow(0);
    const QString details = modal->findChild<QPlainTextEdit*>("Details")->toPlainText();
    for (const QString& known :
         {ToQt("usuario: user"), ToQt("prestaciones: 0x"), ToQt("intentos: 1"),
          ToQt("contenido: " + ledger.entries[1].content), ToQt("clase: lectura")})
      EXPECT_TRUE(details.contains(known)) << FromQt(details);
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
  EXPECT_EQ(Core().conf.General.DNAME, read);
  EXPECT_EQ(Core().ConfFilePath, Path("history/entry-2.ocf"));
  EXPECT_EQ(files.Read(Path("kept.ocf")), files.Read(Core().ConfFilePath));
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_NE(dialogs.boxes[0].text.find(Path("none/x.ocf")), std::string::npos);
  EXPECT_EQ(ledger.entries.back().serial, logger->Options().serial);
  const auto kept = files.Read(Core().ConfFilePath);
  Edit("edited");
  const std::size_t asked = dialogs.questions.size();
  Tool("Guardar")->trigger();
  EXPECT_EQ(dialogs.questions.size(), asked + 1) << "a former state stays as it is";
  EXPECT_EQ(files.Read(Path("history/entry-2.ocf")), kept);
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
  modals.Expect([&](QWidget* modal) {
    auto* table = modal->findChild<QTableWidget*>();
    auto* measured = modal->findChild<QPlainTextEdit*>("Details");
    EXPECT_EQ(table->item(0, 2)->text(), "prueba de fábrica");
    EXPECT_EQ(table->item(0, 6)->text(), "bq, Ana, /a.ocf, se paró: Error, PIN bloqueado");
    EXPECT_EQ(table->item(1, 3)->text(), "cortado");
    EXPECT_FALSE(measured->isVisible());
    table->selectRow(0);
    EXPECT_TRUE(measured->isVisible());
    EXPECT_TRUE(
        measured->toPlainText().endsWith("\nnúmero nuevo 1203050001\nVBat = 4.69 (>= 5) FALLO"));
    Press(modal, Qt::Key_Escape);
  });
  Tool("Historial")->trigger();
}

TEST_F(WindowHistory, TellsOfWhatWasInterruptedAndOffersAWayOut) {
  ReadLogger();
  ledger.Add(CutWriting());
  LedgerEntry list = CutWriting();
  list.kind = LedgerKind::VoiceWriting;
  ledger.Add(list);
  Restart();
  ASSERT_FALSE(dialogs.boxes.empty());
  EXPECT_NE(dialogs.boxes.back().text.find("contenga su configuración anterior"), std::string::npos)
      << dialogs.boxes.back().text;
  modals.Expect(Chooses("Leer y comparar"));
  modals.Expect([&](QWidget* modal) {
    EXPECT_FALSE(Core().session.OwnsModel()) << "one at a time";
    Chooses("No avisar más")(modal);
  });
  Window().show();
  Connect();
  loop.RunFor(seconds(40));
  EXPECT_EQ(dialogs.boxes.back().text, "El registrador contiene la configuración nueva.")
      << "both hashes are the same here";
  const std::size_t told = dialogs.boxes.size();
  Restart();
  EXPECT_EQ(dialogs.boxes.size(), told) << "it is known now";
}

/// The ways out of a writing that was cut off, one session each; another logger is not asked about.
TEST_F(WindowHistory, EachWayOutOfAnInterruptionLeadsWhereItSays) {
  ReadLogger();
  LedgerEntry cut = CutWriting();
  DeviceConf wanted = Core().conf;
  const std::string former = std::exchange(wanted.General.DNAME, "nueva");
  const std::string octets = ContentOf(files, wanted, Core().profile);
  cut.content = Sha256(octets);
  ledger.KeepContent(cut.content, octets);
  LedgerEntry foreign = cut;
  foreign.serial = "OTHER";
  ledger.Add(foreign);
  struct Case {
    const char* way;
    bool isCutAnew;
    const char* writing;   ///< the button that agrees to one
    std::string name;      ///< of the logger behind it
    std::size_t stayOpen;  ///< interruptions
  };
  for (const Case& c : {Case{"Más tarde", true, "", "otra", 2},
                        {"Escribir la nueva", false, "Plain", "nueva", 1},
                        {"Reponer la anterior", true, "Guarded", former, 1},
                        {"No avisar más", true, "", "otra", 1}}) {
    SCOPED_TRACE(c.way);
    Alter([](auto& held) { held.name = "otra"; });
    if (c.isCutAnew) ledger.Add(cut);
    Restart();
    modals.Expect(Chooses(c.way));
    if (*c.writing != '\0')
      modals.Expect([&](QWidget* modal) { AgreeToWrite(modal, *c.writing == 'G'); });
    Window().show();
    Connect();
    loop.RunFor(seconds(120));
    for (const MessageBox& box : dialogs.boxes)
      EXPECT_EQ(box.text.find("otros han cambiado"), std::string::npos) << "no accusation";
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
  modals.Expect([&](QWidget* modal) {
    QStringList texts;
    for (const QLabel* label : modal->findChildren<QLabel*>()) texts << label->text();
    EXPECT_TRUE(texts.contains("No se puede leer el libro de registro: the disk is gone"));
    Press(modal, Qt::Key_Escape);
  });
  Tool("Historial")->trigger();
}

}  // namespace
}  // namespace ostrel
