#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Bounded.h"
#include "model/Describe.h"

namespace ostrel {

/// Places for macros and equations; one more exists and stays empty.
inline constexpr int kMacroPlaces = 56;
/// A logger gets the lines of the first places alone.
inline constexpr int kMacroPlacesSent = 40;
/// Characters of all lines together that a logger has room for.
inline constexpr int kMacroMemory = 1024;
/// Macros that an action can start, from 0 on.
inline constexpr int kMacrosOfActions = 39;
/// Equations, one for each flag.
inline constexpr int kEquations = 16;

/// Macros of a logger and equations of its flags: whole statements in the order of entry, not of
/// their numbers. An empty text is an empty place.
struct ConfMacro {
  Bounded<std::string, kMacroPlaces + 1> LINE;
  std::int16_t MacroPoolCount = 0;  ///< place of the next line of a download

  bool operator==(const ConfMacro&) const = default;
};

template <Is<ConfMacro> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [line, poolCount] = r;
  for (int place = 0; place < kMacroPlaces; ++place)
    visit(FieldMeta{.word = "LINE", .words = "line", .sense = FieldSense::Statement}, line[place],
          FieldSlot{.place = place});
}

/// A line of the pool taken apart: "MACRO7={command,NAME=name}" or "F3={command}".
struct MacroLine {
  bool isEquation = false;
  int number = 0;
  std::string_view command;
  std::string_view name{};  ///< of a macro that has one
};

/// The word of a macro's line, that of an equation's, and what stands ahead of a macro's name.
inline constexpr std::string_view kMacroWord = "MACRO";
inline constexpr std::string_view kEquationWord = "F";
inline constexpr std::string_view kMacroName = ",NAME=";

/// A line of the pool put together of its word, its number and what stands in its braces.
std::string PoolLine(std::string_view word, std::int32_t number, std::string_view body);

/// Takes a line apart. Nothing for one that a logger would not take: another word, a number that is
/// none, no braces around the rest or one more within it.
std::optional<MacroLine> ReadMacroLine(std::string_view line);

}  // namespace ostrel
