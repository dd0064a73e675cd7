#pragma once

#include <vector>

#include "model/DeviceConf.h"
#include "shell/Comparison.h"

namespace ostrel {

class Configurator;
class Navigation;

/// Knows whether the configuration, with what stands on the page in front, differs from the state
/// that was last saved, sent or read. It looks without committing anything.
class UnsavedMark {
 public:
  UnsavedMark(Configurator& configurator, Navigation& navigation)
      : configurator_(configurator), navigation_(navigation) {}

  /// The present state is safe in a file or in a logger.
  void Keep();
  /// Whether anything is neither saved nor sent. While a download replaces the model, as before.
  bool Changed();
  /// The configuration as it would be if the page in front were committed.
  DeviceConf WithFront();

 private:
  Configurator& configurator_;
  Navigation& navigation_;
  std::vector<FieldLine> kept_;
  DeviceConf looked_;  ///< what was looked at last, to spare looking twice
  std::string lookedModel_;
  bool changed_ = false;
};

}  // namespace ostrel
