#include "model/Field.h"

#include <stdexcept>

#include "model/Assign.h"
#include "model/PhoneRow.h"

namespace ostrel {
namespace {

std::string Text(const std::string& field) { return field; }
std::string Text(Bool16 field) { return BoolText(field); }
std::string Text(TimeOfDay field) { return TimeText(field); }
template <class Number>
std::string Text(Number field) {
  return NumText(field);
}

void SetText(std::string& field, std::string_view text) { field = text; }
void SetText(Bool16& field, std::string_view text) { field = TextBool(text); }
void SetText(TimeOfDay& field, std::string_view text) { field = TextTime(text).value_or(field); }
void SetText(ConfPhone& field, std::string_view text) { ReadPhoneRow(text, field); }
template <class Number>
void SetText(Number& field, std::string_view text) {
  Assign(field, NumVal(text));
}

}  // namespace

std::string FieldText(const FieldView& field, bool isS100) {
  return std::visit(
      [&](const auto* typed) -> std::string {
        if constexpr (std::same_as<decltype(typed), const ConfPhone*>)
          return typed->TLF.empty() ? std::string() : PhoneRow(*typed, isS100);
        else
          return Text(*typed);
      },
      field);
}

void SetFieldText(const FieldRef& field, std::string_view text) {
  std::visit([&](auto* typed) { SetText(*typed, text); }, field);
}

void CopyField(const FieldView& from, const FieldRef& to) {
  std::visit(
      [&](auto* target) {
        const auto* const* source =
            std::get_if<const std::remove_pointer_t<decltype(target)>*>(&from);
        if (source == nullptr) throw std::logic_error("fields of different kinds");
        *target = **source;
      },
      to);
}

bool IsSameValue(const FieldView& a, const FieldView& b) {
  return std::visit(
      [&](const auto* value) {
        const auto* const* other = std::get_if<decltype(value)>(&b);
        return other != nullptr && **other == *value;
      },
      a);
}

FieldView ViewOf(const FieldRef& field) {
  return std::visit([](auto* typed) { return FieldView(typed); }, field);
}

FieldView ViewOf(const FieldValue& value) {
  return std::visit([](const auto& typed) { return FieldView(&typed); }, value);
}

FieldValue ValueOf(const FieldView& field) {
  return std::visit([](const auto* typed) { return FieldValue(*typed); }, field);
}

}  // namespace ostrel
