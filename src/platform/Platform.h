#pragma once

namespace ostrel {

class Clock;
class Dialogs;
class EventLoop;
class Files;
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
};

}  // namespace ostrel
