#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/TargetProfile.h"

namespace ostrel {

/// One node of the tree by which an operator reaches every page. The key names a page and, behind
/// it, a channel; it never changes with the language.
struct TreeNode {
  std::string key;
  std::string text;
  std::string parent;     ///< key of the node above; empty for the root
  bool expanded = false;  ///< children are shown from the start

  bool operator==(const TreeNode&) const = default;
};

/// The nodes of a model's tree, each behind its parent, in the order in which they are shown.
std::vector<TreeNode> BuildNavigationTree(
    const TargetProfile& model, const std::function<std::string(std::string_view)>& translate);

/// The node of a model's factory test, which no tree has by itself; nothing for a model without.
std::optional<TreeNode> FactoryNode(const TargetProfile& model);

}  // namespace ostrel
