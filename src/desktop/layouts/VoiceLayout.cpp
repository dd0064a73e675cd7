#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {
namespace {

constexpr int kGap = 8;  // between the controls of a row or column, in pixels

/// A box that leaves of a list only the rows that hold its text in view. A row that goes out of
/// view is selected no more, and one that is selected out of view empties the box.
QLineEdit* FilterFor(FormView& view, QListWidget* list) {
  auto* box = view.Own(new QLineEdit(&view));
  box->setObjectName("Filter");
  box->setClearButtonEnabled(true);
  box->setPlaceholderText(Words::tr("Filter the numbers"));
  box->setAccessibleName(Words::tr("Filter the numbers"));
  const auto filter = [list, box] {
    for (int row = 0; row < list->count(); ++row)
      list->item(row)->setHidden(!list->item(row)->text().contains(box->text()));
    if (list->currentItem() && list->currentItem()->isHidden()) list->setCurrentRow(-1);
  };
  // The rows' own signals rest while the page sets them; looked at when all of them are set.
  QObject::connect(
      list->selectionModel(), &QItemSelectionModel::currentChanged, box,
      [list, box] {
        if (list->currentItem() && list->currentItem()->isHidden()) box->clear();
      },
      Qt::QueuedConnection);
  QObject::connect(box, &QLineEdit::textChanged, list, filter);
  QObject::connect(list->model(), &QAbstractItemModel::rowsInserted, list, filter);
  QObject::connect(list->model(), &QAbstractItemModel::dataChanged, list, filter);
  return box;
}

/// The keys of pasting press a button as long as the list has the focus.
void PasteByKeys(QListWidget* list, QPushButton* button) {
  auto* shortcut = new QShortcut(QKeySequence(QKeySequence::Paste), list);
  shortcut->setContext(Qt::WidgetShortcut);
  QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
}

Card ListCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Numbers"));
  auto* entry = new QHBoxLayout;
  entry->setSpacing(kGap);
  entry->addWidget(view.LabelFor("PhoneText", std::string_view("PhoneLabel")));
  entry->addWidget(view.Show("PhoneText"), 1);
  for (const auto* name : {"Add", "SearchBut"}) entry->addWidget(view.Show(name));
  card.grid->addLayout(entry, 0, 0, 1, 2);
  auto* list = static_cast<QListWidget*>(view.ShowNamed("PhoneList", Words::tr("Numbers")));
  list->setMinimumHeight(220);
  list->setUniformItemSizes(true);
  card.grid->addWidget(FilterFor(view, list), 1, 0);
  card.grid->addWidget(list, 2, 0);
  auto* paste = view.Show<QPushButton>("PasteBut");
  PasteByKeys(list, paste);
  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(kGap);
  for (QWidget* button : {view.Show("Del"), static_cast<QWidget*>(paste), view.Show("ImportBut"),
                          view.Show("ExportBut")})
    buttons->addWidget(button);
  buttons->addStretch(1);
  card.grid->addLayout(buttons, 2, 1);
  card.grid->setColumnStretch(0, 1);
  card.grid->setRowStretch(2, 1);
  return card;
}

Card CallCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Call"));
  AddField(card, view.LabelFor("PNMacro", std::string_view("MacroLabel")),
           Narrow(view.Show("PNMacro"), 8));
  card.grid->addWidget(view.Show("ACKCheck"), card.grid->rowCount(), 0, 1, 2);
  card.grid->setColumnStretch(1, 1);
  return card;
}

Card LoggerCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("Logger"));
  auto* moves = new QHBoxLayout;
  moves->setSpacing(kGap);
  for (const auto* name : {"ReadBut", "WriteBut"}) moves->addWidget(view.Show(name));
  moves->addWidget(view.ShowNamed("PBar", Words::tr("Progress")), 1);
  moves->addWidget(view.Show("StateLabel"));
  card.grid->addLayout(moves, 0, 0);
  auto* text = view.Show<QLabel>("WarningText");
  text->setWordWrap(true);
  auto* notice = new QHBoxLayout;
  notice->addWidget(view.Show("Warning"));
  notice->addWidget(text, 1);
  card.grid->addLayout(notice, 1, 0);
  return card;
}

}  // namespace

void LayOutVoice(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addWidget(ListCard(view).box, 1);
  page->addWidget(CallCard(view).box);
  page->addWidget(LoggerCard(view).box);
}

}  // namespace ostrel
