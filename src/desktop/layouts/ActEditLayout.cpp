#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"

namespace ostrel {

namespace {

/// Leaves the rows of a list that a text is in, and selects the first of them.
void ShowMatches(QListWidget& list, const QString& text) {
  int first = -1;
  for (int row = 0; row < list.count(); ++row) {
    const bool matches = list.item(row)->text().contains(text, Qt::CaseInsensitive);
    list.setRowHidden(row, !matches);
    if (matches && first < 0) first = row;
  }
  if (!text.isEmpty()) list.setCurrentRow(first);
}

}  // namespace

void LayOutActEdit(FormView& view) {
  auto* dialog = new QVBoxLayout(&view);
  auto* lists = new QGridLayout;
  lists->addWidget(view.LabelFor("RefList", std::string_view("LabelRef")), 0, 0);
  auto* offered = view.Show<QListWidget>("RefList");
  auto* search = view.Own(new QLineEdit(&view));
  search->setObjectName("Search");
  search->setPlaceholderText(Words::tr("Search"));
  search->setAccessibleName(Words::tr("Search the available actions"));
  search->setClearButtonEnabled(true);
  QObject::connect(search, &QLineEdit::textChanged, offered,
                   [offered](const QString& text) { ShowMatches(*offered, text); });
  auto* left = new QVBoxLayout;
  left->addWidget(search);
  left->addWidget(offered);
  lists->addLayout(left, 1, 0);
  auto* moves = new QVBoxLayout;
  moves->addStretch(1);
  moves->addWidget(view.Show("AddButton"));
  moves->addWidget(view.Show("DelButton"));
  moves->addStretch(1);
  lists->addLayout(moves, 1, 1);
  lists->addWidget(view.LabelFor("DeviceList", std::string_view("LabelDevice")), 0, 2);
  auto* chosen = view.Show<QListWidget>("DeviceList");
  auto* remove = new QShortcut(QKeySequence::Delete, chosen);
  remove->setContext(Qt::WidgetShortcut);
  QObject::connect(remove, &QShortcut::activated, view.Show<QAbstractButton>("DelButton"),
                   &QAbstractButton::click);
  auto* hint = new QLabel(
      Words::tr("They run from top to bottom. Drag them, or move them by Alt and the arrow keys; "
                "Delete removes."),
      &view);
  hint->setWordWrap(true);
  auto* right = new QVBoxLayout;
  right->addWidget(chosen);
  right->addWidget(hint);
  lists->addLayout(right, 1, 2);
  lists->setColumnStretch(0, 1);
  lists->setColumnStretch(2, 1);
  for (const auto* list : {"RefList", "DeviceList"}) view.Show(list)->setMinimumSize(280, 320);
  dialog->addLayout(lists, 1);
  dialog->addLayout(EndButtons(view.Show("OKButton"), view.Show("CancelButton")));
}

}  // namespace ostrel
