#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// The pages that stay open once they have been opened: those of single MODBUS channels, of
/// expansion inputs and of one test. The page shown next covers them.
inline constexpr std::array<std::string_view, 3> kPagesThatStayOpen{"E_MODBUS", "E_Modular",
                                                                    "TestBQ"};

/// Shows one page at a time and knows which is in front. A page is deactivated, and so commits,
/// when it loses the front, and activated when it gets it. A page that stays open has the front
/// again as soon as nothing covers it. After a change of the model the page in front is activated
/// anew, since what it offers hangs on the model.
class Navigation {
 public:
  explicit Navigation(Configurator& configurator,
                      std::span<const std::string_view> staysOpen = kPagesThatStayOpen);
  ~Navigation();
  Navigation(const Navigation&) = delete;
  Navigation& operator=(const Navigation&) = delete;

  /// What a click on a node of the tree does.
  NodeResult NodeClick(std::string_view key);
  /// Hides every page but those that stay open.
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
  /// Runs after the model has changed, for the tree. Set by the window.
  std::function<void()> OnTargetChanged;

 private:
  Form* FormNamed(std::string_view name) const;
  bool StaysOpen(std::string_view name) const;
  void Hide();
  NodeResult Open(std::string_view key);
  void Show(std::string_view name);
  void Settle();
  void Activate();
  void Deactivate();

  Configurator& configurator_;
  std::span<const std::string_view> staysOpen_;
  std::vector<std::string> open_;  ///< names of the forms that are shown, the covered ones first
  bool isActive_ = false;          ///< the last of them has the front
};

}  // namespace ostrel
