#include "shell/navigation/NodeMarks.h"

#include "blocks/expansion/ExpansionInputs.h"

namespace ostrel {

std::vector<std::string> RedNodes(const DeviceConf& conf) {
  std::vector<std::string> keys;
  for (std::size_t i = 0; i < conf.Modulo.size(); ++i)
    if (conf.Modulo[i].MODO != kModeOff) keys.push_back("Modulo_" + std::to_string(i));
  return keys;
}

}  // namespace ostrel
