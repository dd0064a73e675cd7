#include <QListWidget>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"
#include "model/ConfMacro.h"

namespace ostrel {
namespace {

Card EntryCard(FormView& view) {
  const Card card = MakeCard(view, Words::tr("New line"));
  AddField(card, view.LabelFor("MacroNum", std::string_view("Label4")),
           Narrow(view.Show("MacroNum"), 8));
  AddField(card, view.LabelFor("MacroName", std::string_view("Label1")),
           Narrow(view.Show("MacroName"), 30));
  AddField(card, view.LabelFor("MacroCommand", std::string_view("Label2")),
           view.Show("MacroCommand"));
  card.grid->addWidget(
      Joined(view, {view.Show("AddBut"), view.Show("AddEqBut")}, Qt::Horizontal, true),
      card.grid->rowCount(), 1);
  card.grid->setColumnStretch(1, 1);
  return card;
}

/// Greys the lines that no logger gets. A line keeps its row as long as it stands.
void GreyUnsent(QListWidget& list) {
  const auto grey = [&list] {
    for (int row = kMacroPlacesSent; row < list.count(); ++row) {
      list.item(row)->setForeground(list.palette().brush(QPalette::Disabled, QPalette::Text));
      list.item(row)->setToolTip(Words::tr("This line is not sent to the logger."));
    }
  };
  QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &list, grey);
  grey();
}

}  // namespace

void LayOutMacros(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addWidget(EntryCard(view).box);
  const Card lines = MakeCard(view, Words::tr("Lines"));
  lines.grid->addWidget(view.LabelFor("MacroPool", std::string_view("Label8")), 0, 0);
  lines.grid->addWidget(view.Show("FreeMem"), 0, 1, Qt::AlignRight);
  auto* list = view.Show<QListWidget>("MacroPool");
  list->setUniformItemSizes(true);
  list->setMinimumHeight(200);
  GreyUnsent(*list);
  lines.grid->addWidget(list, 1, 0, 1, 2);
  auto* unsent = view.Show<QLabel>("NotSent");
  unsent->setWordWrap(true);
  lines.grid->addWidget(unsent, 2, 0, 1, 2);
  lines.grid->addWidget(view.Show("DelBut"), 3, 0, Qt::AlignLeft);
  lines.grid->setRowStretch(1, 1);
  lines.grid->setColumnStretch(0, 1);
  page->addWidget(lines.box, 1);
}

}  // namespace ostrel
