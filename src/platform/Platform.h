#pragma once

namespace ostrel {

class Clock;
class Dialogs;
class EventLoop;
class Files;
class Ledger;
class Processes;
class SerialPort;
class Settings;

/// The outside world of one configurator, handed down by reference.
struct Platform {
  EventLoop& loop;
  SerialPort& port;
  Settings& settings;
  Dialogs& dialogs;
  Files& files;
  Processes& processes;
  Clock& clock;
  Ledger* ledger = nullptr;  ///< null where nothing is kept

  /// The same world where others ask the operator.
  Platform With(Dialogs& others) const {
    return {loop, port, settings, others, files, processes, clock, ledger};
  }
  /// The same world with other files.
  Platform With(Files& other) const {
    return {loop, port, settings, dialogs, other, processes, clock, ledger};
  }
  /// The same world with other ports.
  Platform With(SerialPort& other) const {
    return {loop, other, settings, dialogs, files, processes, clock, ledger};
  }
};

}  // namespace ostrel
