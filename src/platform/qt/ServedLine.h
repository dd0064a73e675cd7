#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/Line.h"
#include "platform/qt/QtEventLoop.h"

namespace ostrel {

/// A device of this process where other programs open it like a serial port.
class ServedLine {
 public:
  using Attach = std::function<std::unique_ptr<LineDevice>(LineEnd& end)>;

  virtual ~ServedLine() = default;
  /// What other programs open.
  virtual std::string Path() const = 0;
  /// Lets them find it by a name of the user's choice, as long as this lives. Gives why that cannot
  /// be; empty for success.
  virtual std::string FindAs(const std::string& name) = 0;
};

/// Puts a device on a line of its own. Paced, octets take their line time each way. Throws
/// `std::system_error` when the system has no line to give. The loop must outlive it. The set of
/// the system underneath brings this.
std::unique_ptr<ServedLine> ServeDevice(QtEventLoop& loop, const ServedLine::Attach& attach,
                                        bool paced);

}  // namespace ostrel
