#pragma once

#include <QStyledItemDelegate>

namespace ostrel {

/// What stands at a node of the tree beside its text.
enum NodeRole {
  kNodeKey = Qt::UserRole,
  kNodeOpen,   ///< expanded ahead of filtering
  kNodeName,   ///< of its channel
  kNodeRed,    ///< words for its red colour; empty for one that is not red
  kNodeMarks,  ///< of the node, as `NodeMark` bits
};

/// Signs at the right of a node.
enum NodeMark { kMarkAlarm = 1, kMarkChanged = 2, kMarkWarning = 4, kMarkError = 8 };

/// Draws the name of a channel behind its number, and the marks of a node at the right.
class NodeDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace ostrel
