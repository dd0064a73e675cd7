#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "link/Line.h"

namespace ostrel {

/// What a board on a test fixture reads of itself.
struct TestFrame {
  std::int16_t InputBits = 0;  ///< digital inputs, one bit each
  float A0 = 0, A1 = 0, A2 = 0, A3 = 0;
  float BatteryVolts = 0;
  std::int16_t GsmState = 0;
};

/// Which values of a frame have come with the answer.
struct TestFrameCame {
  bool InputBits = false;
  bool A0 = false, A1 = false, A2 = false, A3 = false;
  bool BatteryVolts = false;
  bool GsmState = false;
};

/// Sends an order to a board under test and waits for its answer; true when that confirms it.
bool OrderTest(Line& line, std::string message);

/// Reads a frame. `scale` makes volts or degrees of the numbers in `A0` to `A3`. Without a good
/// answer the frame stays as it was; with one, so does a value that its field cannot hold.
TestFrameCame ReadTestFrame(Line& line, double scale, TestFrame& frame);

}  // namespace ostrel
