#include "shell/files/UnsavedMark.h"

#include "shell/Configurator.h"
#include "shell/files/EditHistory.h"
#include "shell/navigation/Navigation.h"

namespace ostrel {

DeviceConf UnsavedMark::WithFront() const {
  DeviceConf present = configurator_.conf;
  if (const Page* front = navigation_.FrontPage()) front->SaveInto(present);
  return present;
}

void UnsavedMark::Keep(const DeviceConf& safe) {
  kept_ = safe;
  Touch();
}

bool UnsavedMark::Changed() {
  if (configurator_.ComBusy || !touched_) return changed_;
  touched_ = false;
  const DeviceConf present = WithFront();
  changed_ = !ReadsAlike(present, kept_, configurator_.profile);
  return changed_;
}

}  // namespace ostrel
