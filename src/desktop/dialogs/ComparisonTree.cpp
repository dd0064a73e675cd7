#include "desktop/dialogs/ComparisonTree.h"

#include <QHeaderView>
#include <algorithm>
#include <set>

#include "desktop/forms/Words.h"
#include "desktop/window/FieldText.h"
#include "pages/ActionCatalogue.h"

namespace ostrel {
namespace {

enum ComparisonColumn { kField, kBefore, kAfter, kComparisonColumns };

/// Where an item notes which difference it is; a group has none.
constexpr int kIndexRole = Qt::UserRole;

// Widths in pixels.
constexpr int kNameMargin = 16;
constexpr int kLeastName = 200;

}  // namespace

ComparisonTree::ComparisonTree(QWidget* parent) : QTreeWidget(parent) {
  setObjectName("Differences");
  setAccessibleName(Words::tr("Differences"));
  setColumnCount(kComparisonColumns);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setAlternatingRowColors(true);
  for (const int column : {kBefore, kAfter})
    header()->setSectionResizeMode(column, QHeaderView::Stretch);
  connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
    const QVariant index = item->data(kField, kIndexRole);
    if (!index.isValid() || !OnField) return;
    const Difference& chosen = differences_[index.toULongLong()];
    OnField(chosen.page, chosen.id);
  });
}

void ComparisonTree::SetSides(const QString& before, const QString& after) {
  setHeaderLabels({Words::tr("Field"), before, after});
}

void ComparisonTree::ShowDifferences(const std::vector<Difference>& differences,
                                     const TargetProfile& profile, const Names& translate) {
  clear();
  groups_.clear();
  actions_.clear();
  differences_ = differences;
  for (const ActionItem& item : OfferedActions(profile, translate))
    actions_[item.number] = ToQt(item.text);
  for (const bool isSent : {true, false})
    for (std::size_t i = 0; i < differences_.size(); ++i)
      if (differences_[i].isSent == isSent) AddRow(i, profile);
  expandAll();
  resizeColumnToContents(kField);
  setColumnWidth(kField, std::max(columnWidth(kField) + kNameMargin, kLeastName));
}

void ComparisonTree::AddRow(std::size_t index, const TargetProfile& profile) {
  const Difference& difference = differences_[index];
  const QString group = difference.isSent ? Capitalised(RecordText(difference.id))
                                          : Words::tr("Not sent to this logger");
  QTreeWidgetItem*& parent = groups_[group];
  if (!parent) {
    parent = new QTreeWidgetItem(this, {group});
    parent->setFirstColumnSpanned(true);
    QFont strong = font();
    strong.setBold(true);
    parent->setFont(kField, strong);
  }
  QString name = Capitalised(FieldName(difference.id, difference.meta));
  if (!difference.isSent) name = Capitalised(RecordText(difference.id)) + ": " + name;
  const QString before = ValueOf(difference, difference.valueBefore, profile.IsS100);
  QString after = ValueOf(difference, difference.valueAfter, profile.IsS100);
  // Two passwords look alike.
  if (difference.meta.isSecret && after == before) after = Words::tr("%1, another one").arg(after);
  auto* row = new QTreeWidgetItem(parent, {name, before, after});
  row->setData(kField, kIndexRole, static_cast<qulonglong>(index));
  for (const int column : {kBefore, kAfter}) row->setToolTip(column, row->text(column));
}

QString ComparisonTree::ValueOf(const Difference& difference,
                                const std::optional<FieldValue>& value, bool isS100) const {
  if (!value) return "-";
  const auto* number = std::get_if<std::int16_t>(&*value);
  if (number && difference.meta.sense == FieldSense::Action) {
    if (*number <= 0) return Words::tr("none");
    const auto action = actions_.find(*number);
    return action == actions_.end() ? QString::number(*number) : action->second;
  }
  const QString text = ValueText(ViewOf(*value), difference.meta, isS100);
  return text.isEmpty() ? Words::tr("empty") : text;
}

std::vector<const Difference*> ComparisonTree::Selected() const {
  std::set<std::size_t> chosen;
  const auto choose = [&](const QTreeWidgetItem* item) {
    chosen.insert(item->data(kField, kIndexRole).toULongLong());
  };
  for (const QTreeWidgetItem* item : selectedItems()) {
    if (item->parent()) choose(item);
    for (int child = 0; child < item->childCount(); ++child) choose(item->child(child));
  }
  std::vector<const Difference*> found;
  for (const std::size_t index : chosen) found.push_back(&differences_[index]);
  return found;
}

}  // namespace ostrel
