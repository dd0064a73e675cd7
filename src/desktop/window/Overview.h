#pragma once

#include <optional>
#include <string>

#include "desktop/window/FindingsPanel.h"
#include "desktop/window/GroupTable.h"
#include "desktop/window/PageArea.h"
#include "desktop/window/TreePane.h"
#include "shell/files/UnsavedMark.h"

namespace ostrel {

/// The alarm configuration that a form shows.
int ShownConfig(const Form& form);

/// Keeps tree, page in front, table of a group and panel of findings up to what the configuration
/// on the pages holds. It looks when it is asked, and only where something may have changed.
class Overview {
 public:
  struct Parts {
    Configurator& configurator;
    UnsavedMark& unsaved;
    TreePane& tree;
    PageArea& pages;
    GroupTable& group;
    FindingsPanel& findings;
  };

  explicit Overview(const Parts& parts) : parts_(parts) {}

  /// Brings all up to the configuration, unless a transfer owns it.
  void Look();
  /// The node in front has changed: the notes of its page, or its table.
  void ShowNode(const std::string& node);
  /// All anew at the next look, as after a change of language.
  void Forget() { seen_.reset(); }

 private:
  void Examine();
  void ShowFront();

  Parts parts_;
  std::string node_;
  std::optional<unsigned> seen_;  ///< the touch that was last looked at
  DeviceConf present_, kept_;
  std::vector<FoundByRule> found_;
  std::vector<PlacedFinding> placed_;
};

}  // namespace ostrel
