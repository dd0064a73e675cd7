#pragma once

#include <memory>

#include "platform/SerialDevice.h"
#include "platform/Settings.h"
#include "platform/qt/QtEventLoop.h"
#ifdef _WIN32
#include "platform/windows/ConsoleEvents.h"
#include "platform/windows/WindowsFiles.h"
#else
#include "platform/posix/PosixFiles.h"
#include "platform/posix/SignalPipe.h"
#endif

namespace ostrel {

// What the system underneath brings, under one name whichever it is.
#ifdef _WIN32
using SystemFiles = WindowsFiles;
using EndSignals = ConsoleEvents;
#else
using SystemFiles = PosixFiles;
using EndSignals = SignalPipe;
#endif

/// Ahead of an application that draws and shows no window: has it do without a display.
void DrawWithoutDisplay();

/// The serial devices of this machine, with what the user's settings say of their numbers.
std::unique_ptr<SerialDevices> MachineDevices(QtEventLoop& loop, const Settings& settings);

}  // namespace ostrel
