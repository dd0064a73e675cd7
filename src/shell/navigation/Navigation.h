#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "model/TargetProfile.h"
#include "shell/navigation/FormId.h"

namespace ostrel {

class Configurator;
class Form;
class FrontForm;
class Page;

/// What a click on a node came to.
enum class NodeResult {
  Shown,    ///< a page is in front
  Nothing,  ///< the node opens nothing
  Rests,    ///< nothing may be opened while a logger gets new firmware
};

/// Where a node leads.
struct NodeTarget {
  FormId form;
  std::optional<std::int16_t> index;  ///< channel that the page shows; none for a page without

  bool operator==(const NodeTarget&) const = default;
};

/// The page of a node's key; nothing for a key that opens none. `universal` lets the root open the
/// choice of the model.
std::optional<NodeTarget> FindNodeTarget(std::string_view key, const TargetProfile& model,
                                         bool universal);

/// Key of the node under which a page shows a record; empty when none does. `channel` is -1 for
/// what a logger has only once.
std::string NodeOf(PageId page, int channel);

/// The page that shows the channels of a group; nothing for a node that is no such group.
std::optional<PageId> PageOfGroup(std::string_view key);

/// The pages that stay open once they have been opened: those of single MODBUS channels, of
/// expansion inputs and of one test. The page shown next covers them.
inline constexpr std::array<FormId, 3> kPagesThatStayOpen{PageId::E_MODBUS, PageId::E_Modular,
                                                          ToolId::TestBQ};

/// Shows one page at a time and knows which is in front. A page is deactivated, and so commits,
/// when it loses the front, and activated when it gets it. A page that stays open has the front
/// again as soon as nothing covers it. After a change of the model the page in front is activated
/// anew, since what it offers hangs on the model.
class Navigation {
 public:
  explicit Navigation(Configurator& configurator,
                      std::span<const FormId> staysOpen = kPagesThatStayOpen);
  ~Navigation();
  Navigation(const Navigation&) = delete;
  Navigation& operator=(const Navigation&) = delete;

  /// What a click on a node of the tree does.
  NodeResult NodeClick(std::string_view key);
  /// Hides every page but those that stay open.
  void HideAll();
  /// Brings a page, or the choice of the model, to the front. False when this build has none.
  bool ShowForm(FormId id);
  /// Commits the page in front to the model.
  void CommitFront();

  /// The form in front; null when there is none.
  Form* Front() const;
  /// The page in front; null when there is none, or another form has the front.
  Page* FrontPage() const;

  /// Runs after another form is in front, or none. Set by the window.
  std::function<void()> OnFrontChanged;
  /// Runs after the model has changed, for the tree. Set by the window.
  std::function<void()> OnTargetChanged;

 private:
  Page* PageOf(FormId id) const;
  FrontForm* ToolOf(FormId id) const;
  Form* FormOf(FormId id) const;
  bool StaysOpen(FormId id) const;
  void Hide();
  NodeResult Open(std::string_view key);
  void Show(FormId id);
  void Settle();
  void Activate();
  void Deactivate();

  Configurator& configurator_;
  std::span<const FormId> staysOpen_;
  std::vector<FormId> open_;  ///< the forms that are shown, the covered ones first
  bool isActive_ = false;     ///< the last of them has the front
};

}  // namespace ostrel
