#include "shell/NodeMarks.h"

#include "blocks/expansion/ExpansionInputs.h"
#include "shell/Navigation.h"

namespace ostrel {

bool IsRedNode(std::string_view key, const DeviceConf& conf) {
  constexpr std::string_view kStem = "Modulo_";
  if (!key.starts_with(kStem)) return false;
  const auto target = FindNodeTarget(key, {}, false);
  return target && target->index && conf.Modulo[*target->index].MODO != kModeOff;
}

}  // namespace ostrel
