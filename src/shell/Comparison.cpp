#include "shell/Comparison.h"

#include <map>
#include <utility>

#include "shell/Configurator.h"

namespace ostrel {

std::vector<FieldLine> FieldLines(const Configurator& configurator, const DeviceConf& conf) {
  std::vector<FieldLine> lines;
  DeviceConf copy = conf;
  const bool isS100 = configurator.profile.IsS100;
  configurator.VisitFields(
      copy, [&](const std::string& section, const std::string& key, FieldRef field) {
        if (const auto* phone = std::get_if<ConfPhone*>(&field); phone && (*phone)->TLF.empty())
          return;
        lines.push_back({section, key, FieldText(field, isS100)});
      });
  return lines;
}

std::vector<FieldDifference> CompareFields(const std::vector<FieldLine>& left,
                                           const std::vector<FieldLine>& right) {
  using Address = std::pair<std::string_view, std::string_view>;
  std::map<Address, std::string_view> others;
  for (const FieldLine& line : right) others[{line.section, line.key}] = line.text;
  std::vector<FieldDifference> differences;
  for (const FieldLine& line : left) {
    const auto other = others.find({line.section, line.key});
    const std::string text(other == others.end() ? std::string_view() : other->second);
    if (text != line.text) differences.push_back({line.section, line.key, line.text, text});
    if (other != others.end()) others.erase(other);
  }
  for (const FieldLine& line : right)
    if (others.contains({line.section, line.key}) && !line.text.empty())
      differences.push_back({line.section, line.key, "", line.text});
  return differences;
}

}  // namespace ostrel
