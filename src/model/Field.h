#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

#include "base/Values.h"
#include "model/DeviceConf.h"

namespace ostrel {

/// A field of the model, by its kind. Readers and writers of whole records are visitors over these.
using FieldRef = std::variant<std::string*, std::int16_t*, std::int32_t*, float*, Bool16*,
                              TimeOfDay*, std::uint8_t*, ConfPhone*>;

/// Gets one field with the section and the key that it has in a configuration file.
using FieldVisitor =
    std::function<void(const std::string& section, const std::string& key, FieldRef field)>;

/// The text of a field in a configuration file. `isS100` decides how channels are named.
std::string FieldText(const FieldRef& field, bool isS100);

/// Reads the text of a field in a configuration file. An empty text gives False and 0; a text that
/// does not convert, or a number outside the field's width, leaves the field as it was.
void SetFieldText(const FieldRef& field, std::string_view text);

/// Copies the value of a field to another of the same kind.
void CopyField(const FieldRef& from, const FieldRef& to);

}  // namespace ostrel
