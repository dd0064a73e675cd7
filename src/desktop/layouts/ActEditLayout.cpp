#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"
#include "model/ActionList.h"

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

/// The actions of a list as a text that another list, or a letter, can take: a line an action.
QString ActionsText(const ListBox& list) {
  QStringList lines;
  for (const ListRow& row : list.Rows()) lines << ToQt(row.text);
  return lines.join(u'\n');
}

/// Puts the actions that a text names in the place of a list. A text without any leaves the list.
void TakeActions(const QString& text, const ListBox& offered, ListBox& list) {
  std::vector<ListRow> named;
  for (const QString& line : text.split(u'\n')) {
    const int number = line.section(u'-', 0, 0).trimmed().toInt();
    for (const ListRow& row : offered.Rows())
      if (number > 0 && row.value == number && named.size() < kActionPlaces) named.push_back(row);
  }
  if (named.empty()) return;
  list.Clear();
  for (const ListRow& row : named) list.Add(row.text, row.value);
}

/// Buttons that copy the list to the clipboard, and put it in the place of the list.
QWidget* CopyButtons(FormView& view, QListWidget& chosen) {
  auto* place = new QWidget(&view);
  auto* row = new QHBoxLayout(place);
  row->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const QString& words, const char* name, QKeySequence::StandardKey keys,
                       auto run) {
    auto* button = view.Own(new QPushButton(words, place));
    button->setObjectName(name);
    row->addWidget(button);
    auto* shortcut = new QShortcut(keys, &chosen);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(button, &QPushButton::clicked, &view, run);
    QObject::connect(shortcut, &QShortcut::activated, &view, run);
  };
  const Form& form = view.GetForm();
  add(Words::tr("Copy the list"), "CopyList", QKeySequence::Copy, [&form] {
    QGuiApplication::clipboard()->setText(ActionsText(form.Get<ListBox>("DeviceList")));
  });
  add(Words::tr("Paste the list"), "PasteList", QKeySequence::Paste, [&form] {
    TakeActions(QGuiApplication::clipboard()->text(), form.Get<ListBox>("RefList"),
                form.Get<ListBox>("DeviceList"));
  });
  return place;
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
  right->addWidget(CopyButtons(view, *chosen));
  right->addWidget(hint);
  lists->addLayout(right, 1, 2);
  lists->setColumnStretch(0, 1);
  lists->setColumnStretch(2, 1);
  for (const auto* list : {"RefList", "DeviceList"}) view.Show(list)->setMinimumSize(280, 320);
  dialog->addLayout(lists, 1);
  dialog->addLayout(EndButtons(view.Show("OKButton"), view.Show("CancelButton")));
}

}  // namespace ostrel
