#include "shell/UnsavedMark.h"

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
  Touch();
}

bool UnsavedMark::Changed() {
  if (configurator_.ComBusy || !touched_) return changed_;
  changed_ = FieldLines(configurator_, WithFront()) != kept_;
  touched_ = false;  // looking at the page in front touches it
  return changed_;
}

}  // namespace ostrel
