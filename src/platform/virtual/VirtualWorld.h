#pragma once

#include "platform/Platform.h"
#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualFiles.h"
#include "platform/virtual/VirtualLedger.h"
#include "platform/virtual/VirtualLoop.h"
#include "platform/virtual/VirtualProcesses.h"
#include "platform/virtual/VirtualSettings.h"

namespace ostrel {

/// The outside world of a program, all of it in memory and on virtual time.
struct VirtualWorld {
  VirtualLoop loop;
  LinePort port{loop};
  VirtualSettings settings;
  VirtualDialogs dialogs;
  VirtualFiles files;
  VirtualProcesses processes;
  VirtualClock clock{DateTime{2026, 3, 2, 9, 5, 7}, loop};
  VirtualLedger ledger;
  Platform platform{loop, port, settings, dialogs, files, processes, clock, &ledger};
};

}  // namespace ostrel
