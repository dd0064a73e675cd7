#pragma once

#include "model/DeviceConf.h"

namespace ostrel {

class Configurator;
class Navigation;

/// Knows whether the configuration, with what stands on the page in front, differs from the state
/// that was last saved, sent or read. It looks without committing anything.
class UnsavedMark {
 public:
  UnsavedMark(Configurator& configurator, Navigation& navigation)
      : configurator_(configurator), navigation_(navigation) {}

  /// A state is safe in a file or in a logger.
  void Keep(const DeviceConf& safe);
  /// The configuration, the page in front or the model may have changed since the last look.
  void Touch() {
    touched_ = true;
    ++touches_;
  }
  /// Grows with each touch, for those who look only when something may have changed.
  unsigned Touches() const { return touches_; }
  /// The state that was last saved, sent or read.
  const DeviceConf& Kept() const { return kept_; }
  /// Whether anything is neither saved nor sent. Looks only when something may have changed, and
  /// not while a download replaces the model.
  bool Changed();
  /// The configuration as it would be if the page in front were committed.
  DeviceConf WithFront() const;

 private:
  Configurator& configurator_;
  Navigation& navigation_;
  DeviceConf kept_;
  bool touched_ = true;
  bool changed_ = false;
  unsigned touches_ = 0;
};

}  // namespace ostrel
