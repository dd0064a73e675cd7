#pragma once

#include <cstdint>
#include <string>

#include "base/Bounded.h"
#include "model/LiveRead.h"
#include "platform/DateTime.h"

namespace ostrel {

inline constexpr int kLiveFlags = 16;     ///< flags of which a logger tells the state
inline constexpr int kMathRegisters = 8;  ///< registers of which a logger tells the content

/// The last live values of a logger, with the names and units that it holds itself.
struct RealTimeData {
  DateTime DeviceClock;
  LiveRead ClockRead;            ///< what became of it in this session
  std::int16_t DigitalMask = 0;  ///< states of the digital inputs, one bit each
  std::int16_t OutputMask = 0;
  std::int32_t FlagMask = 0;
  Bounded<float, 5> AnalogValue;
  Bounded<std::string, 5> AnalogName, AnalogUnit;
  Bounded<float, 33> ModbusValue;
  Bounded<std::string, 33> ModbusName, ModbusUnit;
  Bounded<float, 5> AuxValue;
  Bounded<std::string, 5> AuxName, AuxUnit;
  Bounded<float, 5> AuxMeasure;
  Bounded<std::int32_t, 10> CounterValue;
  Bounded<std::string, 10> CounterName;
  Bounded<float, 10> FlowValue;
  Bounded<std::string, 10> FlowName, FlowUnit;
  Bounded<float, 9> MathValue;
  Bounded<std::string, 9> MathName, MathUnit;
  Bounded<std::string, 9> MathRaw;
  Bounded<float, 129> ModuloValue;
  Bounded<std::string, 129> ModuloName, ModuloUnit;
  /// What became of each answer with values in the rounds of this session.
  Bounded<LiveRead, kLiveAnswers> reads;

  const LiveRead& ReadOf(LiveAnswer answer) const { return reads[static_cast<int>(answer)]; }
};

/// The totals of the pulse counters.
using TotalCounts = Bounded<std::int32_t, 10>;

}  // namespace ostrel
