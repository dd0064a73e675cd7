#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {
namespace {

/// Finds what is typed, from the cursor on and then from the start. New text would carry the place
/// that was found out of sight, so it is held back from then on.
QLineEdit* FindBox(FormView& view, QPlainTextEdit* text, QCheckBox* pause) {
  auto* box = view.Own(new QLineEdit(&view));
  box->setObjectName("Find");
  box->setClearButtonEnabled(true);
  box->setPlaceholderText(Words::tr("Find in the text"));
  box->setAccessibleName(Words::tr("Find in the text"));
  QObject::connect(box, &QLineEdit::returnPressed, text, [box, text, pause] {
    if (box->text().isEmpty()) return;
    pause->setChecked(true);
    if (text->find(box->text())) return;
    text->moveCursor(QTextCursor::Start);
    text->find(box->text());
  });
  return box;
}

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
  row->addWidget(FindBox(view, text, pause), 1);
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
