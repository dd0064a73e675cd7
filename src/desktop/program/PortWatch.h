#pragma once

#include <QFileSystemWatcher>
#include <QString>
#include <map>
#include <set>
#include <string>

#include "controls/Controls.h"
#include "desktop/forms/Guard.h"
#include "platform/EventLoop.h"
#include "platform/SerialPort.h"

namespace ostrel {

/// Keeps the list of ports up to what is plugged in, without opening anything and without losing
/// the operator's choice, and knows the device behind each.
class PortWatch {
 public:
  PortWatch(ComboBox& ports, SerialPort& port, EventLoop& loop, Guard guard);
  ~PortWatch();

  /// Begins to follow the machine; the list as it stands has been made by a scan.
  void Start();
  /// Brings the list up to the machine: ports that came are added in the order of their numbers,
  /// ports that went are taken out. A chosen port that comes back is chosen again.
  void Refresh();
  /// "COM7 - /dev/ttyUSB0" for a row "COM7".
  QString RowText(const ListRow& row) const;
  /// The device behind a row of the list, or its name where none is known.
  QString DeviceOf(const std::string& name) const;

 private:
  ComboBox& ports_;
  SerialPort& port_;
  EventLoop& loop_;
  Guard guard_;
  QFileSystemWatcher watcher_;
  TimerId pending_ = 0;
  std::map<int, PortEntry> known_;
  std::string gone_;     ///< the chosen port that was unplugged
  std::string standIn_;  ///< what is chosen in its place
};

}  // namespace ostrel
