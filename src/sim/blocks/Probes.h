#pragma once

#include <array>
#include <string>

#include "sim/Alarm.h"

namespace ostrel::sim {

struct Block;

inline constexpr int kProbes = 4;

/// What a 1-Wire probe measures, by the codes that the logger reports.
enum class ProbeKind : int { Off = 0, Temperature = 1, Humidity = 2 };

/// The eight octets of a probe's identity; all zero where it is the only one on the bus.
using ProbeIdentity = std::array<int, 8>;

struct Probe {
  std::string name;
  std::string unit;
  ProbeKind kind = ProbeKind::Off;
  ProbeIdentity identity{};
  AlarmRow alarms;

  bool operator==(const Probe&) const = default;
};

/// The octets in three digits each, with commas between them.
std::string IdentityText(const ProbeIdentity& identity);

extern const Block kProbeBlock;

}  // namespace ostrel::sim
