#pragma once

#include <memory>

#include "Meddler.h"
#include "platform/Platform.h"
#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualFiles.h"
#include "platform/virtual/VirtualLedger.h"
#include "platform/virtual/VirtualLoop.h"
#include "platform/virtual/VirtualProcesses.h"
#include "platform/virtual/VirtualSettings.h"
#include "sim/Logger.h"

namespace ostrel::campaign {

/// What stands around a program: one logger at port 7, files, a ledger, and time of its own.
struct World {
  static constexpr std::int16_t kPort = 7;

  World(const sim::LoggerOptions& options, std::uint64_t seed) {
    port.AddDevice(kPort, "logger", "", [&](LineEnd& end) {
      auto made = std::make_unique<Meddler>(end, seed);
      meddler = made.get();
      auto far = std::make_unique<sim::Logger>(loop, *made, options);
      logger = far.get();
      made->device = std::move(far);
      return made;
    });
    clock.SetNow(options.clockStart);
  }
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  VirtualLoop loop;
  LinePort port{loop};
  VirtualSettings settings;
  VirtualDialogs dialogs;
  VirtualFiles files;
  VirtualProcesses processes;
  VirtualClock clock{DateTime{2026, 3, 2, 9, 5, 7}, loop};
  VirtualLedger ledger;
  Platform platform{loop, port, settings, dialogs, files, processes, clock, &ledger};
  Meddler* meddler = nullptr;
  sim::Logger* logger = nullptr;
};

}  // namespace ostrel::campaign
