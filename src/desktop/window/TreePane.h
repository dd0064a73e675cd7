#pragma once

#include <QTreeWidget>
#include <QWidget>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/navigation/ChannelOverview.h"
#include "shell/navigation/NavigationTree.h"

class QLineEdit;

namespace ostrel {

/// The tree of all that can be opened, with a box above it that leaves the matching nodes.
class TreePane final : public QWidget {
 public:
  explicit TreePane(QWidget* parent);

  /// Shows another tree. Nothing is clicked by that.
  void SetNodes(const std::vector<TreeNode>& nodes);
  /// Gives the filter the focus, with its text selected.
  void FocusFilter();
  /// Marks a node as the one in front. Nothing is clicked by that.
  void Select(std::string_view key);
  /// Paints the nodes of these keys red, and no others. `mark` are words for those who do not see
  /// the colour.
  void Paint(const std::vector<std::string>& redKeys, const QString& mark);
  /// Puts names and marks beside the texts of nodes. A group shows the marks of what is below it.
  void Decorate(const FactTable& facts);
  /// The text of a node; empty when there is none.
  QString TextOf(std::string_view key) const;
  bool Has(std::string_view key) const { return Find(key) != nullptr; }
  /// The window's own words anew.
  void Retranslate();
  QTreeWidget& Tree() { return *tree_; }

  /// Runs when the operator goes to a node, by mouse or by key. Set by the window.
  std::function<void(const std::string& key)> OnNode;

 protected:
  /// Arrow down and Enter lead from the box to the first match.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Filter(const QString& text);
  bool FilterItem(QTreeWidgetItem& item, const QString& text, bool parentMatches);
  std::set<QString> OpenKeys() const;
  /// Decorates an item and what is below it. Gives the marks of both.
  int DecorateItem(QTreeWidgetItem& item, const FactTable& facts);
  QTreeWidgetItem* Find(std::string_view key) const;

  QLineEdit* filter_;
  QTreeWidget* tree_;
  bool quiet_ = false;
  /// What was painted last, on a dark ground or not. It is asked for each second.
  std::optional<std::pair<std::vector<std::string>, bool>> painted_;
};

}  // namespace ostrel
