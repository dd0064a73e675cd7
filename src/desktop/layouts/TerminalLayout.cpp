#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {
namespace {

/// Finds what is typed, forwards with Return and backwards with Shift, and says where it is not
/// there. New text would carry the place that was found out of sight, so it is held back from then
/// on.
class FindBox final : public QLineEdit {
 public:
  FindBox(QPlainTextEdit& text, QCheckBox& pause, QLabel& missed)
      : text_(text), pause_(pause), missed_(missed) {
    setObjectName("Find");
    setClearButtonEnabled(true);
    setPlaceholderText(Words::tr("Find in the text"));
    setAccessibleName(Words::tr("Find in the text"));
    connect(this, &QLineEdit::textChanged, &missed, &QWidget::hide);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    QLineEdit::keyPressEvent(event);
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || text().isEmpty()) return;
    const bool isFound = Find(event->modifiers().testFlag(Qt::ShiftModifier));
    if (isFound) pause_.setChecked(true);
    missed_.setVisible(!isFound);
  }

 private:
  /// From the cursor on, and then from the other end. Where nothing is found the cursor stays.
  bool Find(bool backwards) {
    const auto way = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (text_.find(text(), way)) return true;
    const QTextCursor before = text_.textCursor();
    text_.moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    if (text_.find(text(), way)) return true;
    text_.setTextCursor(before);
    return false;
  }

  QPlainTextEdit& text_;
  QCheckBox& pause_;
  QLabel& missed_;
};

Card SendCard(FormView& view) {
  const Card card = MakeCard(view, std::string_view("EnviarFrame"));
  int row = 0;
  for (const auto& [box, button, words] :
       {std::tuple{"TextComando", "EnviarBut", Words::tr("Command:")},
        {"TextTrama", "TramaBut", Words::tr("Frame, with its \"#\":")}}) {
    card.grid->addWidget(view.LabelFor(box, words), row, 0);
    auto* edit = view.Show<QLineEdit>(box);
    auto* send = view.Show<QPushButton>(button);
    QObject::connect(edit, &QLineEdit::returnPressed, send, &QPushButton::click);
    card.grid->addWidget(edit, row, 1);
    card.grid->addWidget(send, row++, 2);
  }
  card.grid->addWidget(view.Show("TraceEnable"), 0, 3);
  card.grid->addWidget(view.Show("TraceDisable"), 1, 3);
  card.grid->setColumnStretch(1, 1);
  return card;
}

Card ConsoleCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Console"));
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  auto* pause = view.Show<QCheckBox>("PauseCheck");
  for (QWidget* widget :
       {view.Show("StampCheck"), static_cast<QWidget*>(pause), view.Show("LogCheck")})
    row->addWidget(widget);
  auto* text = static_cast<QPlainTextEdit*>(view.ShowNamed("TextWin", Words::tr("Console")));
  auto* missed = view.Own(new QLabel(Words::tr("Not found"), &view));
  missed->setObjectName("NotFound");
  missed->hide();
  row->addWidget(view.Own(new FindBox(*text, *pause, *missed)), 1);
  row->addWidget(missed);
  for (const auto* name : {"SaveBut", "BorrarBut"}) row->addWidget(view.Show(name));
  card.grid->addLayout(row, 0, 0);
  text->setMinimumHeight(160);
  card.grid->addWidget(text, 1, 0);
  card.grid->addWidget(view.Show("LabelLines"), 2, 0);
  card.grid->setRowStretch(1, 1);
  return card;
}

}  // namespace

void LayOutTerminal(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addWidget(SendCard(view).box);
  page->addWidget(ConsoleCard(view).box, 1);
}

}  // namespace ostrel
