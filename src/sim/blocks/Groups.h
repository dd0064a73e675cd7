#pragma once

namespace ostrel::sim {

struct Block;

/// How a group of analog inputs is powered before it is read. There are as many as inputs.
struct PowerGroup {
  int output = 0;
  int volts = 0;
  float period = 0;  ///< hundredths of a second

  bool operator==(const PowerGroup&) const = default;
};

extern const Block kGroupBlock;

}  // namespace ostrel::sim
