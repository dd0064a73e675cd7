#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "base/Values.h"
#include "model/Assign.h"

namespace ostrel {

/// Text in the braces of a line: `n` of 2 is the text inside the first braces. An opening brace
/// advances the count, a closing one ends the text; the two are not matched.
std::string_view BracedFieldOfLine(std::string_view line, int n);

/// A cursor over the comma-separated fields of one received line, from field 2 on: each read takes
/// the next field. Fields beyond the last are empty and read as 0.
class LineReader {
 public:
  explicit LineReader(std::string_view line);

  std::string_view Field();
  std::string Text() { return std::string(Field()); }
  double Number() { return NumVal(Field()); }
  /// The next field as an index. What fits no index is -1, which no record has.
  std::int32_t Index() { return RoundToEven<std::int32_t>(Number()).value_or(-1); }
  void Skip(int fields);

  void Into(std::string& field) { field = Text(); }
  /// A number outside the field's width leaves the field as it was.
  template <class T>
  requires std::is_arithmetic_v<T>
  void Into(T& field) { Assign(field, Number()); }

  /// The whole line, for what is not comma-separated.
  std::string_view Line() const { return line_; }

 private:
  std::string_view line_;
  std::size_t position_ = 0;  ///< start of the next field; beyond the end when there is none
};

}  // namespace ostrel
