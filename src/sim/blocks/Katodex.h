#pragma once

namespace ostrel::sim {

struct Block;

/// How a cathodic protection is measured while it is off.
struct OffMeasurement {
  int seconds = 1;       ///< 1 to 3
  int sampleRate = 3;    ///< 3, 5, 10, 20 or 30
  float shuntRatio = 0;  ///< amperes of a volt

  bool operator==(const OffMeasurement&) const = default;
};

/// It is told in a download; no statement sets it.
extern const Block kKatodexBlock;

}  // namespace ostrel::sim
