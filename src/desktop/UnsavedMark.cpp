#include "desktop/UnsavedMark.h"

#include <utility>

#include "shell/Configurator.h"
#include "shell/Navigation.h"

namespace ostrel {

DeviceConf UnsavedMark::WithFront() {
  const DeviceConf committed = configurator_.conf;
  navigation_.CommitFront();
  return std::exchange(configurator_.conf, committed);
}

void UnsavedMark::Keep() {
  looked_ = WithFront();
  lookedModel_ = configurator_.profile.TargetType;
  kept_ = FieldLines(configurator_, looked_);
  changed_ = false;
}

bool UnsavedMark::Changed() {
  if (configurator_.ComBusy) return changed_;
  DeviceConf present = WithFront();
  const std::string& model = configurator_.profile.TargetType;
  if (present == looked_ && model == lookedModel_) return changed_;
  looked_ = std::move(present);
  lookedModel_ = model;
  changed_ = FieldLines(configurator_, looked_) != kept_;
  return changed_;
}

}  // namespace ostrel
