#pragma once

#include <functional>
#include <string>

#include "model/Describe.h"

namespace ostrel {

/// Reads a key of a file; empty when it is absent.
using KeyReader = std::function<std::string(const std::string& section, const std::string& key)>;

/// The name of the section that a field stands in: "DIGITAL 3".
std::string SectionName(const SectionMeta& section, int channel);
inline std::string SectionName(const FieldId& id) { return SectionName(*id.section, id.channel); }

/// The key of a field within its section: "NOMBRE", "HABIL( 0)", "ACTHI( 0 7)", "TLFM 7".
std::string KeyName(const FieldId& id, PlaceForm form);

}  // namespace ostrel
