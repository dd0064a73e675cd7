#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTreeWidget>

#include "OpenWindow.h"
#include "desktop/program/Language.h"
#include "tools/HexFiles.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

class ConsoleTools : public OpenWindow {
 protected:
  ConsoleTools() { UseLanguage("en"); }

  TextView& Console() { return Core().terminal.GetForm().Get<TextView>("TextWin"); }
  /// Tries to close the window, and stays: what was asked, or nothing where it was closed unasked.
  QString AskedAtClosing() {
    Window().close();
    auto* box = Window().findChild<QMessageBox*>();
    if (!box || !box->isVisible()) return {};
    const QString asked = box->text();
    box->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return asked;
  }
};

TEST_F(ConsoleTools, TheConsoleShowsEachLineOnceAndItsEnd) {
  Window().show();
  Window().GoTo("Terminal");
  auto* text = On<QPlainTextEdit>(*desktop, "TextWin");
  Console().Append("one\r");
  Console().Append("\ntwo\rthree á\n");
  EXPECT_EQ(text->toPlainText(), "one\ntwo\nthree á\n");
  for (int i = 0; i < 200; ++i) Console().Append("needle\n");
  EXPECT_EQ(text->verticalScrollBar()->value(), text->verticalScrollBar()->maximum());
  auto* find = Window().Pages().Front()->findChild<QLineEdit*>("Find");
  Press(find, Qt::Key_Return);
  EXPECT_FALSE(On<QCheckBox>(*desktop, "PauseCheck")->isChecked()) << "nothing is sought";
  Type(find, "THREE");
  Press(find, Qt::Key_Return);
  EXPECT_EQ(text->textCursor().selectedText(), "three");
  const auto isMissed = [&] {
    return Window().Pages().Front()->findChild<QLabel*>("NotFound")->isVisibleTo(&Window());
  };
  const int found = text->textCursor().position();
  Type(find, "threefold");
  Press(find, Qt::Key_Return);
  EXPECT_TRUE(isMissed());
  EXPECT_EQ(text->textCursor().position(), found);
  Type(find, "e");
  EXPECT_FALSE(isMissed());
  Press(find, Qt::Key_Return);
  EXPECT_GT(text->textCursor().position(), found);
  for (int i = 0; i < 2; ++i) Press(find, Qt::Key_Return, {}, Qt::ShiftModifier);
  EXPECT_LT(text->textCursor().position(), found);
  EXPECT_TRUE(On<QCheckBox>(*desktop, "PauseCheck")->isChecked())
      << "what was found stays in sight";
  Window().Pages().Redraw();
  text = On<QPlainTextEdit>(*desktop, "TextWin");
  EXPECT_TRUE(text->toPlainText().startsWith("one\ntwo\n"));
  Console().Clear();
  Console().Append("new");
  EXPECT_EQ(text->toPlainText(), "new");
}

TEST_F(ConsoleTools, TenMegabytesDoNotSlowTheConsole) {
  Window().show();
  Window().GoTo("Terminal");
  std::string piece;
  while (piece.size() < 1000) piece += "08:30:05 DI=3 AI0=1.25 AI1=2.5\r\n";
  const auto append = [&](int count) {
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < count; ++i) {
      Console().Append(piece);
      QCoreApplication::processEvents();
    }
    return timer.elapsed();
  };
  const qint64 first = append(500);
  append(9'500);
  const qint64 last = append(500);
  EXPECT_GT(Console().Text().size(), 10'000'000U);
  EXPECT_LE(last, 3 * first + 100) << "ms; the first 500 pieces took " << first;
}

TEST_F(ConsoleTools, TheArrowKeysBringBackWhatWasSent) {
  ConnectTo(sim::Model::BP);
  Window().GoTo("Terminal");
  auto* box = On<QLineEdit>(*desktop, "TextComando");
  Type(box, "VER");
  Press(box, Qt::Key_Return);
  loop.RunFor(seconds(1));
  EXPECT_EQ(Console().Text().substr(0, 8), "Tavro BP");
  Type(box, "x");
  Core().terminal.GetForm().Get<TextBox>("TextComando").OnArrow(-1);
  EXPECT_EQ(box->text(), "VER");
}

/// The operator stays on the page, and does not leave a logger without firmware unasked.
TEST_F(ConsoleTools, AnUpdateKeepsTheWindowAsLongAsFlashIsErased) {
  AddLogger(sim::Model::BP, {{.kind = sim::FaultKind::RefuseLoader}});
  port.SetPaced(true);
  Window().show();
  Connect(seconds(15));
  Window().GoTo("E_Digital_3");
  NameOf().Type("gate");
  Window().GoTo("Firmware");
  for (const auto& [box, name, octets] : {std::tuple{"FirmPath", "image.hex", HexFile(400)},
                                          {"LoaderPath", "CopyFlash.hex", HexFile(3)}}) {
    files.Create(Path(name));
    files.Write(Path(name), octets);
    Type(On(*desktop, box), ToQt(Path(name)));
  }
  int looks = 0;
  loop.After(seconds(12), "look", [&] {
    ++looks;
    EXPECT_EQ(LinkWords(), "Updating");
    EXPECT_FALSE(Window().Tree().Tree().isEnabled());
    EXPECT_FALSE(Tool("Abrir")->isEnabled() || SessionTool("ReadTool")->isEnabled());
    Window().GoTo("General");
    EXPECT_EQ(desktop->Navigator().Front()->Name(), "Firm");
    const auto* meter = Window().Pages().Front()->findChild<QWidget*>("TransferMeter");
    ASSERT_TRUE(meter && meter->isVisibleTo(&Window()));
    EXPECT_TRUE(meter->findChild<QLabel*>("TimeLeft")->text().endsWith(" left"));
    EXPECT_EQ(AskedAtClosing(),
              "The flash of the logger is erased. Leaving now leaves it without firmware. Changes "
              "that are neither saved nor sent are lost.");
  });
  static_cast<QAbstractButton*>(On(*desktop, "StarBut"))->click();
  EXPECT_EQ(looks, 1);
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].text, "¡Error!");
  auto* strip = Window().findChild<FaultNote*>("FaultStrip");
  EXPECT_TRUE(strip->Text().contains("answered something else")) << FromQt(strip->Text());
  EXPECT_TRUE(strip->Text().contains("start the update again"));
  EXPECT_TRUE(Window().Tree().Tree().isEnabled());
  EXPECT_NE(AskedAtClosing(), "") << "its flash is still erased";
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(ConsoleTools, AnUpdateWhoseOrderMayHaveBeenHeardKeepsTheWindowToo) {
  AddLogger(sim::Model::BP);
  Window().show();
  Connect();
  port.HoldOutput(kPort, true);
  Core().session.SendFirmware({"ab", "cd"}, [](FirmwareStage) {});
  EXPECT_TRUE(AskedAtClosing().startsWith("The flash of the logger may be erased."));
  EXPECT_TRUE(Window().isVisible());
}

}  // namespace
}  // namespace ostrel
