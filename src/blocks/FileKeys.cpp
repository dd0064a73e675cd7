#include "blocks/FileKeys.h"

#include "base/Numbers.h"

namespace ostrel {

std::string SectionName(const SectionMeta& section, int channel) {
  std::string name(section.word);
  if (channel >= 0) name += NumText(channel);
  return name;
}

std::string KeyName(const FieldId& id, PlaceForm form) {
  std::string key(id.word);
  const auto& [config, place] = id.slot;
  if (config < 0 && place < 0) return key;
  const bool hasBrackets = form == PlaceForm::InBrackets;
  if (hasBrackets) key += '(';
  if (config >= 0) key += NumText(config);
  if (place >= 0) key += NumText(place);
  if (hasBrackets) key += ')';
  return key;
}

}  // namespace ostrel
