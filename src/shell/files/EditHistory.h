#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "model/DeviceConf.h"
#include "model/TargetProfile.h"

namespace ostrel {

/// Whether two configurations of a model read alike: a file holds the same texts for both.
bool ReadsAlike(const DeviceConf& one, const DeviceConf& other, const TargetProfile& profile);

/// The states of a configuration since it was opened, a step for each page that was edited.
class EditHistory {
 public:
  static constexpr std::size_t kMost = 100;

  /// A new configuration: what was edited before cannot be undone.
  void Start(const DeviceConf& state);
  /// Takes in the present state. It is a step of the page at `node` when it reads otherwise than
  /// the last one; what was undone cannot be redone then.
  void Note(const DeviceConf& present, const TargetProfile& profile, const std::string& node);

  /// Whether a state reads otherwise than the one that is shown.
  bool IsEdited(const DeviceConf& present, const TargetProfile& profile) const {
    return !steps_.empty() && !ReadsAlike(present, steps_[at_].state, profile);
  }
  bool CanUndo() const { return at_ > 0; }
  bool CanRedo() const { return at_ + 1 < steps_.size(); }
  /// A state to go to, and the node of the page that was edited.
  struct Step {
    DeviceConf state;
    std::string node;
  };
  /// The state before the last step. There must be one.
  Step Undo();
  /// The state after the step that was undone last. There must be one.
  Step Redo();

 private:
  std::deque<Step> steps_;  ///< the first one is the state at the start
  std::size_t at_ = 0;      ///< the one that is shown
};

}  // namespace ostrel
