#include "desktop/window/GroupTable.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/window/FieldText.h"

namespace ostrel {

GroupTable::GroupTable(QWidget* parent)
    : QWidget(parent), heading_(new QLabel(this)), table_(new QTableWidget(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 12, 16, 16);
  heading_->setObjectName("Heading");
  heading_->setTextFormat(Qt::PlainText);
  column->addWidget(heading_);
  table_->setObjectName("GroupTable");
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table_->setAlternatingRowColors(true);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(24);
  column->addWidget(table_);
  connect(table_, &QTableWidget::cellActivated, this, [this](int row, int) {
    if (OnChannel) OnChannel(nodes_[static_cast<std::size_t>(row)]);
  });
}

void GroupTable::ShowGroup(const QString& title, const ChannelTable& table, bool isS100) {
  heading_->setText(title);
  table_->setAccessibleName(title);
  constexpr int kOwnColumns = 2;  // channel and alarm, ahead of the fields
  const int chosen = table_->currentRow();
  table_->clear();
  nodes_.clear();
  channels_.clear();
  table_->setColumnCount(static_cast<int>(table.columns.size()) + kOwnColumns);
  table_->setRowCount(static_cast<int>(table.rows.size()));
  QStringList headers{Words::tr("Channel"), Words::tr("Alarm")};
  for (const FieldMeta& column : table.columns) headers << Capitalised(WordsOf(column));
  table_->setHorizontalHeaderLabels(headers);
  for (int row = 0; row < table_->rowCount(); ++row) {
    const ChannelTable::Row& channel = table.rows[static_cast<std::size_t>(row)];
    nodes_.push_back(channel.node);
    channels_.push_back(channel.channel);
    int column = 0;
    const auto add = [&](const QString& text) {
      table_->setItem(row, column++, new QTableWidgetItem(text));
    };
    add(QString::number(channel.channel));
    add(channel.hasAlarm ? Words::tr("yes") : QString());
    for (const auto& field : channel.cells)
      add(field ? ValueText(field->value, field->meta, isS100) : QString());
  }
  table_->resizeColumnsToContents();
  if (table_->rowCount() > 0)
    table_->setCurrentCell(std::clamp(chosen, 0, table_->rowCount() - 1), 0);
}

std::vector<int> GroupTable::SelectedChannels() const {
  std::vector<int> channels;
  for (const QModelIndex& row : table_->selectionModel()->selectedRows())
    channels.push_back(channels_[static_cast<std::size_t>(row.row())]);
  return channels;
}

}  // namespace ostrel
