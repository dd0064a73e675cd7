#include "desktop/window/TreePane.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <utility>

#include "desktop/forms/DarkPalette.h"
#include "desktop/forms/Words.h"
#include "desktop/window/NodeDelegate.h"

namespace ostrel {
namespace {

int MarksOf(const NodeFacts& facts) {
  int marks = (facts.hasAlarm ? kMarkAlarm : 0) | (facts.isChanged ? kMarkChanged : 0);
  if (facts.worst) marks |= *facts.worst == Severity::Error ? kMarkError : kMarkWarning;
  return marks;
}

/// Marks in words, for those who do not see them.
QString MarkWords(int marks) {
  QStringList words;
  if (marks & kMarkAlarm) words << Words::tr("alarm enabled");
  if (marks & kMarkChanged) words << Words::tr("changed");
  if (marks & kMarkError) words << Words::tr("the check finds an error");
  if (marks & kMarkWarning) words << Words::tr("the check has a warning");
  return words.join(", ");
}

/// Says in words what colour, name and marks of an item show.
void Describe(QTreeWidgetItem& item) {
  QStringList words{item.data(0, kNodeRed).toString(), item.data(0, kNodeName).toString(),
                    MarkWords(item.data(0, kNodeMarks).toInt())};
  words.removeAll(QString());
  const QString description = words.join(", ");
  item.setToolTip(0, description);
  item.setData(0, Qt::AccessibleDescriptionRole, description);
}

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
  tree_->setItemDelegate(new NodeDelegate(tree_));
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) { Filter(text); });
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item && !quiet_ && OnNode) OnNode(FromQt(item->data(0, kNodeKey).toString()));
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
  const std::string key = current ? FromQt(current->data(0, kNodeKey).toString()) : "";
  const std::set<QString> open = OpenKeys();
  tree_->clear();
  painted_.reset();
  for (const TreeNode& node : nodes) {
    QTreeWidgetItem* parent = Find(node.parent);
    auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(tree_);
    item->setText(0, ToQt(node.text));
    item->setData(0, kNodeKey, ToQt(node.key));
    item->setExpanded(node.expanded || open.contains(ToQt(node.key)));
  }
  Filter(filter_->text());
  Select(key);
  quiet_ = wasQuiet;
}

void TreePane::Paint(const std::vector<std::string>& redKeys, const QString& mark) {
  constexpr QColor kRedOnLight(208, 0, 0), kRedOnDark(255, 107, 107);
  const bool isDark = IsDark(palette());
  if (painted_ && painted_->first == redKeys && painted_->second == isDark) return;
  painted_ = {redKeys, isDark};
  const std::set<std::string> reds(redKeys.begin(), redKeys.end());
  for (QTreeWidgetItemIterator it(tree_); *it; ++it) {
    QTreeWidgetItem& item = **it;
    const bool red = reds.contains(FromQt(item.data(0, kNodeKey).toString()));
    const QVariant colour = red ? QVariant(QBrush(isDark ? kRedOnDark : kRedOnLight)) : QVariant();
    if (item.data(0, Qt::ForegroundRole) == colour) continue;
    item.setData(0, Qt::ForegroundRole, colour);
    item.setData(0, kNodeRed, red ? mark : QString());
    Describe(item);
  }
}

void TreePane::Decorate(const FactTable& facts) {
  for (int i = 0; i < tree_->topLevelItemCount(); ++i) DecorateItem(*tree_->topLevelItem(i), facts);
  Filter(filter_->text());
}

int TreePane::DecorateItem(QTreeWidgetItem& item, const FactTable& facts) {
  const auto found = facts.find(FromQt(item.data(0, kNodeKey).toString()));
  int marks = found == facts.end() ? 0 : MarksOf(found->second);
  for (int i = 0; i < item.childCount(); ++i) marks |= DecorateItem(*item.child(i), facts);
  if (!item.parent()) return marks;  // it would have the marks of all
  item.setData(0, kNodeName, found == facts.end() ? QString() : ToQt(found->second.name));
  item.setData(0, kNodeMarks, marks);
  Describe(item);
  return marks;
}

QString TreePane::TextOf(std::string_view key) const {
  const QTreeWidgetItem* item = Find(key);
  return item ? item->text(0) : QString();
}

/// Keys of the groups that are open, or will be when the filter is taken away.
std::set<QString> TreePane::OpenKeys() const {
  std::set<QString> keys;
  for (QTreeWidgetItemIterator it(tree_); *it; ++it) {
    const QVariant unfiltered = (*it)->data(0, kNodeOpen);
    if (unfiltered.isValid() ? unfiltered.toBool() : (*it)->isExpanded())
      keys.insert((*it)->data(0, kNodeKey).toString());
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
    if ((*it)->data(0, kNodeKey).toString() == ToQt(key)) return *it;
  return nullptr;
}

void TreePane::Filter(const QString& text) {
  for (QTreeWidgetItemIterator it(tree_); *it; ++it) {
    // What was open is remembered when filtering starts and comes back at its end.
    QTreeWidgetItem& item = **it;
    if (!text.isEmpty() && !item.data(0, kNodeOpen).isValid())
      item.setData(0, kNodeOpen, item.isExpanded());
    if (text.isEmpty() && item.data(0, kNodeOpen).isValid()) {
      item.setExpanded(item.data(0, kNodeOpen).toBool());
      item.setData(0, kNodeOpen, QVariant());
    }
  }
  for (int i = 0; i < tree_->topLevelItemCount(); ++i)
    FilterItem(*tree_->topLevelItem(i), text, false);
}

/// Shows an item when it matches, or one below or above it does. Says whether it is shown.
bool TreePane::FilterItem(QTreeWidgetItem& item, const QString& text, bool parentMatches) {
  const bool matches =
      parentMatches ||
      (item.parent() && (item.text(0).contains(text, Qt::CaseInsensitive) ||
                         item.data(0, kNodeName).toString().contains(text, Qt::CaseInsensitive)));
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
