#pragma once

#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "platform/virtual/LinePort.h"

namespace ostrel {

/// Numbers of the simulated loggers' ports.
inline constexpr int kFirstDemoPort = 251;
inline constexpr int kLastDemoPort = 256;

/// Puts six simulated loggers, one of each model, at the demo ports, with clocks set and a small
/// configuration each. Their lines are as slow as a cable.
void AddDemoLoggers(LinePort& port, EventLoop& loop, const Clock& clock);

}  // namespace ostrel
