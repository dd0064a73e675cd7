#include "desktop/UnsavedMark.h"

#include <utility>

#include "base/Scope.h"
#include "shell/Configurator.h"
#include "shell/Navigation.h"

namespace ostrel {

DeviceConf UnsavedMark::WithFront() {
  const Lent untouched(configurator_.conf, DeviceConf(configurator_.conf));
  navigation_.CommitFront();
  return configurator_.conf;
}

void UnsavedMark::Keep(const DeviceConf& safe) {
  kept_ = FieldLines(configurator_, safe);
  looked_.reset();
}

bool UnsavedMark::Changed() {
  if (configurator_.ComBusy) return changed_;
  DeviceConf present = WithFront();
  const std::string& model = configurator_.profile.TargetType;
  if (present == looked_ && model == lookedModel_) return changed_;
  looked_ = std::move(present);
  lookedModel_ = model;
  changed_ = FieldLines(configurator_, *looked_) != kept_;
  return changed_;
}

}  // namespace ostrel
