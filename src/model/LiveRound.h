#pragma once

#include <chrono>
#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/DeviceInfo.h"
#include "model/RealTimeData.h"
#include "model/TargetProfile.h"
#include "platform/Clock.h"

namespace ostrel {

struct DeviceConf;

/// What a logger measures, in the order in which faces show it.
enum class LiveKind {
  Digital,
  Output,
  Flag,
  Analog,
  Counter,
  Flow,
  Math,
  MathRegister,
  Modbus,
  Probe,
  Module
};

/// Whether values of a kind are on or off instead of a number.
constexpr bool IsState(LiveKind kind) { return kind <= LiveKind::Flag; }

/// Whether numbers of a kind have more digits than a short float, as most of them come.
constexpr bool IsWide(LiveKind kind) {
  return kind == LiveKind::Counter || kind == LiveKind::MathRegister;
}

/// Which value of a logger it is; the same through sessions and programs.
struct LiveId {
  LiveKind kind;
  int index;

  auto operator<=>(const LiveId&) const = default;
};

/// "AI0", "FL3", "DO1": how a value is named in files, and where it has no name of its own.
std::string LiveTag(LiveId id);
/// The reverse; nothing for any other text.
std::optional<LiveId> LiveIdOf(std::string_view tag);

/// One value of a logger as a round left it.
struct LiveValue {
  LiveId id;
  std::string name;              ///< as the logger holds it, or is printed on it; may be empty
  std::string unit;              ///< as the logger holds it; may be empty
  std::optional<double> number;  ///< of what is no state; nothing until it came in this session
  std::optional<bool> on;        ///< of a state; likewise
  LiveRead read;                 ///< what became of its answer

  bool HasValue() const { return number || on; }
  /// Whether it came in this very round: what did not is left out of plots and recordings.
  bool IsFresh() const { return HasValue() && read.missed == 0; }
};

/// A moment of the computer's wall clock.
struct WallTime {
  std::chrono::milliseconds local{};  ///< since 1 January 1970 at midnight, local time
  std::chrono::minutes utcOffset{};   ///< how far that is ahead of universal time

  /// The local date and time, to the second.
  DateTime LocalSeconds() const {
    return FromSeconds(std::chrono::floor<std::chrono::seconds>(local).count());
  }
  bool operator==(const WallTime&) const = default;
};

inline WallTime WallTimeOf(const Clock& clock) { return {clock.LocalTime(), clock.UtcOffset()}; }

/// All live values of a model and firmware after one round of reading.
struct LiveRound {
  WallTime at;
  std::vector<LiveValue> values;  ///< by kind, then by index

  /// The value; null when this model and firmware have none such.
  const LiveValue* Find(LiveId id) const;
};

/// The values that a model and firmware have, as the records hold them now.
LiveRound TakeRound(const RealTimeData& live, const TargetProfile& profile, const DeviceInfo& info,
                    const WallTime& now);

/// A round with names for the digital inputs, of which a logger tells none: those of a
/// configuration stand for them.
LiveRound WithNames(LiveRound round, const DeviceConf& conf);

/// A number of a kind in the digits that it came with: "12.5", "1042".
std::string LiveNumberText(LiveKind kind, double number);

/// The same of a value, and "1" or "0" of a state; empty for a value that has not come.
std::string LiveText(const LiveValue& value);

/// The name of a value, or its tag where that is empty.
std::string LiveName(LiveId id, const std::string& name);

}  // namespace ostrel
