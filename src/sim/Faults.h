#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sim/Random.h"

namespace ostrel::sim {

/// What can go wrong with a simulated logger; `FaultHelp` tells each.
enum class FaultKind {
  DropOctet,
  FlipBit,
  Duplicate,
  Delay,
  BadChecksum,
  CarrierDrop,
  Vanish,
  Silent,
  SilentAfterRecord,
  SilentAfterStatement,
  RefuseStatement,
  TornRefusal,
  WrongClosing,
  RefuseCommand,
  SilentAfterNumber,
  WrongSum,
  Noise,
  Echo,
  RefuseErase,
  ReadyLate,
  NoAliveMark,
  SilentAfterOctet,
  RefuseLoader
};

/// One fault switch. Where `last` is above `first`, each strike draws its number between the two.
struct Fault {
  FaultKind kind = FaultKind::Silent;
  int first = 1;
  int last = 1;
  int milliseconds = 0;  ///< of a delay or lateness, or between the parts of a torn refusal
  bool once = false;     ///< acts a single time

  bool operator==(const Fault&) const = default;
};

using Faults = std::vector<Fault>;

/// Reads a switch such as "drop-octet@120", "delay@3:500!once" or "flip-bit@1-900". Nothing when
/// it is none; `error` then tells why.
std::optional<Fault> ParseFault(std::string_view text, std::string& error);
/// The text that `ParseFault` reads as this fault.
std::string FaultText(const Fault& fault);
/// All switches, one a line with what it does and counts.
std::string FaultHelp();

/// Decides when the switches strike. Same faults, seed and course of events: same strikes.
class FaultPlan {
 public:
  FaultPlan(const Faults& faults, std::uint64_t seed);

  bool Empty() const { return switches_.empty(); }
  /// One more of what this kind counts has come up; the fault that strikes it, if any.
  std::optional<Fault> Count(FaultKind kind);
  /// What this kind numbers has come to `number`; the fault that strikes there, if any.
  std::optional<Fault> At(FaultKind kind, int number);
  /// A random whole number from 0 to `last`, for what a strike does.
  int Draw(int last) { return random_.Between(0, last); }

 private:
  struct Switch {
    Fault fault;
    int aim = 1;    ///< where it strikes next
    int count = 0;  ///< since the last strike
    bool spent = false;
  };

  std::optional<Fault> Strike(Switch& one);

  Random random_;
  std::vector<Switch> switches_;
};

}  // namespace ostrel::sim
