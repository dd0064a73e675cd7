#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <type_traits>

namespace ostrel {

/// `T` is the record, const or not: one `Describe` serves readers and writers.
template <class T, class Record>
concept Is = std::same_as<std::remove_const_t<T>, Record>;

/// What a value stands for beyond its type.
enum class FieldSense {
  Plain,
  Enabled,    ///< whether an alarm or a timer is in force at all
  Action,     ///< number of an action; 0 or below for none
  Week,       ///< days of the week, bit 0 Monday to bit 6 Sunday
  Month,      ///< days of the month, bit 0 the first to bit 30; bit 31 the last, whichever
  Condition,  ///< 0 the constant "TRUE", n flag F(n-1)
  Statement,  ///< a whole statement: commas and braces belong to it
};

/// How the number of a list place stands in the key of a file: "ACTHI( 0 7)" or "TLFM 7".
enum class PlaceForm { InBrackets, Bare };

/// What a code of a field stands for, in words for people.
struct CodeWords {
  std::int32_t code;
  std::string_view words;
};

/// Numbers that make sense for a field. A logger takes others; nobody means them.
struct SensibleRange {
  double least = -std::numeric_limits<double>::max();
  double most = std::numeric_limits<double>::max();
};

/// What is known of a field besides its value.
struct FieldMeta {
  std::string_view word;   ///< word of its key in a file
  std::string_view words;  ///< its name for people
  FieldSense sense = FieldSense::Plain;
  int longest = 0;  ///< most characters that an operator may type; 0 for no limit
  PlaceForm placeForm = PlaceForm::InBrackets;
  std::string_view unit = {};             ///< of a number: "s", "readings"; empty for none
  SensibleRange range = {};               ///< of a number
  std::span<const CodeWords> codes = {};  ///< of a number that stands for something, all of them
  bool isSecret = false;  ///< a password: shown, compared and traced only when asked for
};

/// A number with the unit that it is in.
constexpr FieldMeta NumberMeta(std::string_view word, std::string_view words, std::string_view unit,
                               SensibleRange range, int longest = 0) {
  return {.word = word, .words = words, .longest = longest, .unit = unit, .range = range};
}

/// A code, and what each of its values stands for.
constexpr FieldMeta CodeMeta(std::string_view word, std::string_view words,
                             std::span<const CodeWords> codes) {
  return {.word = word, .words = words, .codes = codes};
}

/// A text field of a limited length.
constexpr FieldMeta TextMeta(std::string_view word, std::string_view words, int longest) {
  return {.word = word, .words = words, .longest = longest};
}

/// A password.
constexpr FieldMeta SecretMeta(std::string_view word, std::string_view words) {
  return {.word = word, .words = words, .isSecret = true};
}

/// Which of the values of one word a field is, where a record has several.
struct FieldSlot {
  int config = -1;  ///< alarm configuration; -1 for a field of the channel itself
  int place = -1;   ///< place in a list; -1 for a single value
};

/// A section of a file with one record, or one of the sections of numbered records.
struct SectionMeta {
  std::string_view word;        ///< "DIGITAL"
  std::string_view words;       ///< "digital input", for people
  std::string_view maskPrefix;  ///< "DI", as masks of telephones call it; empty where none does
};

/// The address of a field within a whole configuration.
struct FieldId {
  const SectionMeta* section = nullptr;
  int channel = -1;  ///< number of the record; -1 where there is only one
  std::string_view word;
  FieldSlot slot;
};

inline bool operator==(const FieldId& a, const FieldId& b) {
  return a.section->word == b.section->word && a.channel == b.channel && a.word == b.word &&
         a.slot.config == b.slot.config && a.slot.place == b.slot.place;
}

}  // namespace ostrel
