#include "desktop/UnsavedMark.h"

#include <utility>

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
  kept_ = Texts(safe);
  looked_.reset();
}

bool UnsavedMark::Changed() {
  if (configurator_.ComBusy) return changed_;
  DeviceConf present = WithFront();
  const std::string& model = configurator_.profile.TargetType;
  if (present == looked_ && model == lookedModel_) return changed_;
  looked_ = std::move(present);
  lookedModel_ = model;
  changed_ = Texts(*looked_) != kept_;
  return changed_;
}

std::vector<std::string> UnsavedMark::Texts(const DeviceConf& conf) const {
  std::vector<std::string> texts;
  for (const ConstField& field : FieldsOf(conf, configurator_.profile))
    texts.push_back(FieldText(field.value, configurator_.profile.IsS100));
  return texts;
}

}  // namespace ostrel
