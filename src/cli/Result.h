#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <ostream>

namespace ostrel::cli {

/// A value for programs. Members keep the order in which they were given.
using Json = nlohmann::ordered_json;

/// What a command has to show: for programs, and for people. Only the form asked for is made.
struct Result {
  std::function<Json()> json;
  std::function<void(std::ostream& out)> text;
};

/// How a value is written: over several lines, or on one, as a stream of values needs it.
enum class JsonLayout { Indented, OneLine };

/// Writes a value and ends the line. Octets that are no UTF-8 become U+FFFD.
void WriteJson(std::ostream& out, const Json& value, JsonLayout layout = JsonLayout::Indented);

/// A float in the fewest digits that give it back; null for what is no finite number.
Json JsonNumber(float number);

}  // namespace ostrel::cli
