#pragma once

namespace ostrel::sim {

/// How an analog input is wired, by the codes that the logger reports.
enum class Interface : int { Off = 0, Current = 1, Volts5 = 2, Volts10 = 3, Pressure = 4 };

/// Two points of the line from a signal to its value.
struct Scale {
  float signalStart = 0;
  float signalEnd = 0;
  float valueAtStart = 0;
  float valueAtEnd = 0;

  bool operator==(const Scale&) const = default;
};

}  // namespace ostrel::sim
