#include "desktop/window/CompareDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

QTableWidget* MakeTable(const ComparisonWords& words, const std::vector<Difference>& differences,
                        QWidget* parent) {
  auto* table = new QTableWidget(static_cast<int>(differences.size()), 4, parent);
  table->setHorizontalHeaderLabels(
      {Words::tr("Section"), Words::tr("Field"), words.before, words.after});
  table->setAccessibleName(Words::tr("Differences"));
  int row = 0;
  for (const Difference& difference : differences) {
    int column = 0;
    for (const std::string& text :
         {difference.Section(), difference.Key(), difference.before, difference.after})
      table->setItem(row, column++, new QTableWidgetItem(ToQt(text).trimmed()));
    ++row;
  }
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setAlternatingRowColors(true);
  table->setTabKeyNavigation(false);
  table->verticalHeader()->hide();
  table->resizeColumnsToContents();
  table->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
  table->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
  return table;
}

}  // namespace

CompareDialog::CompareDialog(const ComparisonWords& words,
                             const std::vector<Difference>& differences, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(words.title);
  auto* column = new QVBoxLayout(this);
  auto* summary = new QLabel(differences.empty() ? Words::tr("Both hold the same.")
                                                 : Words::tr("%n field(s) differ.", nullptr,
                                                             static_cast<int>(differences.size())),
                             this);
  summary->setObjectName("Summary");
  column->addWidget(summary);
  if (!words.note.isEmpty()) column->addWidget(new QLabel(words.note, this));
  column->addWidget(MakeTable(words, differences, this), 1);
  auto* buttons = new QDialogButtonBox(this);
  if (!words.accept.isEmpty()) buttons->addButton(words.accept, QDialogButtonBox::AcceptRole);
  buttons->addButton(words.accept.isEmpty() ? Words::tr("Close") : Words::tr("&Cancel"),
                     QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(760, 480);
}

}  // namespace ostrel
