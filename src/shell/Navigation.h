#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "model/TargetProfile.h"

namespace ostrel {

class Configurator;
class Form;
class Page;

/// What a click on a node came to.
enum class NodeResult {
  Shown,     ///< a page is in front
  Nothing,   ///< the node opens nothing
  NotBuilt,  ///< the node's page does not exist in this build
};

/// Where a node leads.
struct NodeTarget {
  std::string_view page;
  std::optional<std::int16_t> index;  ///< channel that the page shows; none for a page without
};

/// The page of a node's key; nothing for a key that opens none. `universal` lets the root open the
/// choice of the model.
std::optional<NodeTarget> FindNodeTarget(std::string_view key, const TargetProfile& model,
                                         bool universal);

/// Shows one page at a time and knows which is in front. A page is deactivated, and so commits,
/// when it loses the front, and activated when it gets it.
class Navigation {
 public:
  explicit Navigation(Configurator& configurator) : configurator_(configurator) {}

  /// What a click on a node of the tree does.
  NodeResult NodeClick(std::string_view key);
  /// Hides every page but those that stay open once they have been opened.
  void HideAll();
  /// Brings a page, or the choice of the model, to the front. False when there is none of the name.
  bool ShowForm(std::string_view name);
  /// Commits the page in front to the model.
  void CommitFront();

  /// The form in front; null when there is none.
  Form* Front() const;
  /// The page in front; null when there is none, or another form has the front.
  Page* FrontPage() const;
  /// The page in front; null when there is none or the front is not a page.

  /// Runs after another form is in front, or none. Set by the window.
  std::function<void()> OnFrontChanged;

 private:
  Form* FormNamed(std::string_view name) const;
  void Deactivate();

  Configurator& configurator_;
  std::string front_;  ///< name of the form in front; empty for none
};

}  // namespace ostrel
