#pragma once

#include "platform/Line.h"
#include "platform/Platform.h"
#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualFiles.h"
#include "platform/virtual/VirtualLoop.h"
#include "platform/virtual/VirtualProcesses.h"
#include "platform/virtual/VirtualSettings.h"

namespace ostrel {

/// A device that never speaks.
struct SilentDevice final : LineDevice {
  void Receive(std::string_view) override {}
  void SetTerminalReady(bool) override {}
};

/// The outside world of a test: everything in memory and on virtual time.
struct VirtualWorld {
  VirtualLoop loop;
  LinePort port{loop};
  VirtualSettings settings;
  VirtualDialogs dialogs;
  VirtualFiles files;
  VirtualProcesses processes;
  VirtualClock clock{DateTime{2026, 3, 2, 9, 5, 7}, loop};
  Platform platform{loop, port, settings, dialogs, files, processes, clock};
};

}  // namespace ostrel
