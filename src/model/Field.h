#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

#include "base/Values.h"
#include "model/DeviceConf.h"

namespace ostrel {

// A field of the model, by its kind. Readers and writers of whole records are visitors over these;
// each handles every kind, or does not compile.
using FieldRef = std::variant<std::string*, std::int16_t*, std::int32_t*, float*, double*, Bool16*,
                              TimeOfDay*, std::uint8_t*, ConfPhone*>;
using FieldView = std::variant<const std::string*, const std::int16_t*, const std::int32_t*,
                               const float*, const double*, const Bool16*, const TimeOfDay*,
                               const std::uint8_t*, const ConfPhone*>;

/// A value of a field on its own.
using FieldValue = std::variant<std::string, std::int16_t, std::int32_t, float, double, Bool16,
                                TimeOfDay, std::uint8_t, ConfPhone>;

/// Gets one field of a configuration with its address and what is known of it.
using FieldVisitor = std::function<void(const FieldId& id, const FieldMeta& meta, FieldRef field)>;
/// The same for those who only look.
using FieldViewer = std::function<void(const FieldId& id, const FieldMeta& meta, FieldView field)>;

/// The text of a field in a configuration file. `isS100` decides how channels are named.
std::string FieldText(const FieldView& field, bool isS100);

/// Reads the text of a field in a configuration file. An empty text gives False and 0; a text that
/// does not convert, or a number outside the field's width, leaves the field as it was.
void SetFieldText(const FieldRef& field, std::string_view text);

/// Copies the value of a field to another of the same kind.
void CopyField(const FieldView& from, const FieldRef& to);

/// Whether two fields of one kind have the same value.
bool IsSameValue(const FieldView& a, const FieldView& b);

/// The same field for looking only.
FieldView ViewOf(const FieldRef& field);
FieldView ViewOf(const FieldValue& value);

/// The value of a field, taken out of its record.
FieldValue ValueOf(const FieldView& field);

/// What is known of a member of a record, as its description tells it.
template <class Record, class T>
FieldMeta MetaOf(T Record::*member) {
  const Record record{};
  FieldMeta found{};
  Describe(record, [&](const FieldMeta& meta, const auto& field, FieldSlot = {}) {
    if (static_cast<const void*>(&field) == static_cast<const void*>(&(record.*member)))
      found = meta;
  });
  return found;
}

}  // namespace ostrel
