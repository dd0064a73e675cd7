#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ostrel {

// The arithmetic of the two calculators. Names of units are Spanish, as the language table knows
// them.

/// A unit in which the amount of a pulse is told.
struct PulseUnit {
  std::string_view name;
  std::string_view word;  ///< on a command line
  double factor;          ///< to the base unit: a litre, or the unit that nobody names
};
inline constexpr std::array<PulseUnit, 3> kPulseUnits{{
    {"Litros", "l", 1},
    {"m3", "m3", 1000},
    {"Otra unidad", "other", 1},
}};

/// A unit in which a flow is to be told.
struct FlowUnit {
  std::string_view name;
  std::string_view word;
  double divisor;  ///< base units of its amount
  double seconds;  ///< of its time
};
inline constexpr std::array<FlowUnit, 4> kFlowUnits{{
    {"Litros / segundo", "l/s", 1, 1},
    {"m3 / hora", "m3/h", 1000, 3600},
    {"Otra unidad / segundo", "other/s", 1, 1},
    {"Otra unidad / hora", "other/h", 1, 3600},
}};

/// The ratio of a flow channel: the flow that one pulse within the time base, in seconds, stands
/// for, as the number that its text shows. Nothing for a time base of 0, or a result that no 32-bit
/// float holds.
std::optional<float> PulseRatio(float amount, const PulseUnit& unit, std::int16_t timeBase,
                                const FlowUnit& flow);

/// Bits of a mask, which count from 0.
inline constexpr int kMaskBits = 16;

/// The mask that has a bit more.
constexpr std::int32_t WithBit(std::int32_t mask, int bit) { return mask | std::int32_t{1} << bit; }

}  // namespace ostrel
