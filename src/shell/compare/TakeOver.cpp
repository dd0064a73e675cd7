#include "shell/compare/TakeOver.h"

#include <string>
#include <unordered_set>

#include "blocks/Configuration.h"

namespace ostrel {

void CopyFields(const DeviceConf& from, DeviceConf& to, const TargetProfile& profile,
                const std::vector<FieldId>& fields) {
  const auto address = [](const FieldId& id) {
    return SectionName(id) + '/' + std::string(id.word) + '/' + std::to_string(id.slot.config) +
           '/' + std::to_string(id.slot.place);
  };
  std::unordered_set<std::string> wanted;
  for (const FieldId& id : fields) wanted.insert(address(id));
  const std::vector<ConstField> sources = FieldsOf(from, profile);
  const std::vector<Field> targets = FieldsOf(to, profile);
  for (std::size_t i = 0; i < targets.size(); ++i)
    if (wanted.contains(address(targets[i].id))) CopyField(sources[i].value, targets[i].value);
}

}  // namespace ostrel
