#include "shell/UnsavedMark.h"

#include "blocks/Configuration.h"
#include "shell/Configurator.h"
#include "shell/Navigation.h"

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
  changed_ = present != kept_ && Texts(present) != Texts(kept_);
  return changed_;
}

std::vector<std::string> UnsavedMark::Texts(const DeviceConf& conf) const {
  std::vector<std::string> texts;
  for (const ConstField& field : FieldsOf(conf, configurator_.profile))
    texts.push_back(FieldText(field.value, configurator_.profile.IsS100));
  return texts;
}

}  // namespace ostrel
