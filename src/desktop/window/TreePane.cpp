#include "desktop/window/TreePane.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <utility>

#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

constexpr int kKeyRole = Qt::UserRole;
constexpr int kOpenRole = Qt::UserRole + 1;  // expanded ahead of filtering

}  // namespace

TreePane::TreePane(QWidget* parent)
    : QWidget(parent), filter_(new QLineEdit(this)), tree_(new QTreeWidget(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 0, 8);
  column->addWidget(filter_);
  column->addWidget(tree_);
  filter_->setClearButtonEnabled(true);
  filter_->setObjectName("Filter");
  filter_->installEventFilter(this);
  tree_->setObjectName("Tree");
  tree_->setHeaderHidden(true);
  tree_->setUniformRowHeights(true);
  tree_->setRootIsDecorated(true);
  tree_->setIndentation(16);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) { Filter(text); });
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item && !quiet_ && OnNode) OnNode(FromQt(item->data(0, kKeyRole).toString()));
  });
  Retranslate();
}

void TreePane::Retranslate() {
  filter_->setPlaceholderText(Words::tr("Filter"));
  filter_->setAccessibleName(Words::tr("Filter of the tree"));
  tree_->setAccessibleName(Words::tr("Pages"));
}

void TreePane::FocusFilter() {
  filter_->setFocus();
  filter_->selectAll();
}

void TreePane::SetNodes(const std::vector<TreeNode>& nodes) {
  const bool wasQuiet = std::exchange(quiet_, true);
  const QTreeWidgetItem* current = tree_->currentItem();
  const std::string key = current ? FromQt(current->data(0, kKeyRole).toString()) : "";
  const std::set<QString> open = OpenKeys();
  tree_->clear();
  for (const TreeNode& node : nodes) {
    QTreeWidgetItem* parent = Find(node.parent);
    auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(tree_);
    item->setText(0, ToQt(node.text));
    item->setData(0, kKeyRole, ToQt(node.key));
    item->setExpanded(node.expanded || open.contains(ToQt(node.key)));
  }
  Filter(filter_->text());
  Select(key);
  quiet_ = wasQuiet;
}

void TreePane::Paint(const std::function<bool(const std::string& key)>& isRed,
                     const QString& mark) {
  constexpr QColor kRedOnLight(208, 0, 0), kRedOnDark(255, 107, 107);
  constexpr int kMiddle = 128;
  const bool isDark = palette().color(QPalette::Base).lightness() < kMiddle;
  for (QTreeWidgetItemIterator it(tree_); *it; ++it) {
    QTreeWidgetItem& item = **it;
    const bool red = isRed(FromQt(item.data(0, kKeyRole).toString()));
    const QVariant colour = red ? QVariant(QBrush(isDark ? kRedOnDark : kRedOnLight)) : QVariant();
    if (item.data(0, Qt::ForegroundRole) == colour) continue;
    item.setData(0, Qt::ForegroundRole, colour);
    item.setToolTip(0, red ? mark : QString());
    item.setData(0, Qt::AccessibleDescriptionRole, red ? mark : QString());
  }
}

/// Keys of the groups that are open, or will be when the filter is taken away.
std::set<QString> TreePane::OpenKeys() const {
  std::set<QString> keys;
  for (QTreeWidgetItemIterator it(tree_); *it; ++it) {
    const QVariant unfiltered = (*it)->data(0, kOpenRole);
    if (unfiltered.isValid() ? unfiltered.toBool() : (*it)->isExpanded())
      keys.insert((*it)->data(0, kKeyRole).toString());
  }
  return keys;
}

void TreePane::Select(std::string_view key) {
  const bool wasQuiet = std::exchange(quiet_, true);
  if (QTreeWidgetItem* item = Find(key)) tree_->setCurrentItem(item);
  quiet_ = wasQuiet;
}

QTreeWidgetItem* TreePane::Find(std::string_view key) const {
  for (QTreeWidgetItemIterator it(tree_); *it; ++it)
    if ((*it)->data(0, kKeyRole).toString() == ToQt(key)) return *it;
  return nullptr;
}

void TreePane::Filter(const QString& text) {
  for (QTreeWidgetItemIterator it(tree_); *it; ++it) {
    // What was open is remembered when filtering starts and comes back at its end.
    QTreeWidgetItem& item = **it;
    if (!text.isEmpty() && !item.data(0, kOpenRole).isValid())
      item.setData(0, kOpenRole, item.isExpanded());
    if (text.isEmpty() && item.data(0, kOpenRole).isValid()) {
      item.setExpanded(item.data(0, kOpenRole).toBool());
      item.setData(0, kOpenRole, QVariant());
    }
  }
  for (int i = 0; i < tree_->topLevelItemCount(); ++i)
    FilterItem(*tree_->topLevelItem(i), text, false);
}

/// Shows an item when it matches, or one below or above it does. Says whether it is shown.
bool TreePane::FilterItem(QTreeWidgetItem& item, const QString& text, bool parentMatches) {
  const bool matches =
      parentMatches || (item.parent() && item.text(0).contains(text, Qt::CaseInsensitive));
  bool below = false;
  for (int i = 0; i < item.childCount(); ++i)
    below = FilterItem(*item.child(i), text, matches) || below;
  const bool shown = text.isEmpty() || matches || below || !item.parent();
  item.setHidden(!shown);
  if (!text.isEmpty()) item.setExpanded(below);
  return shown;
}

bool TreePane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Down) {
    tree_->setFocus();
    return true;
  }
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  if (filter_->text().isEmpty()) return true;
  // The first page that is left; most groups have none.
  const auto shown = QTreeWidgetItemIterator::NotHidden | QTreeWidgetItemIterator::NoChildren;
  if (QTreeWidgetItem* item = *QTreeWidgetItemIterator(tree_, shown); item && item->parent()) {
    tree_->setCurrentItem(item);
    tree_->setFocus();
  }
  return true;
}

}  // namespace ostrel
