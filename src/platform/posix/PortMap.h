#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Settings.h"

namespace ostrel {

/// Which device stands behind which port number: a fixed table of the system's serial devices, and
/// a list of the user's own, which goes first.
class PortMap {
 public:
  explicit PortMap(std::map<int, std::string> userList = {});
  /// With the list of the user's settings, "161=/dev/one;162=/dev/two". Parts that cannot be read
  /// and numbers outside 1 to 250 are passed over.
  static PortMap FromSettings(const Settings& settings);

  /// Path of a number's device, which need not exist; empty for a number without.
  std::string DeviceOf(int number) const;
  /// Number of a path, also when it is a link to a listed device. An unlisted path takes a free
  /// number from 161 to 250 for the life of this map; 0 when none is left.
  int NumberFor(const std::string& path);
  /// All numbers that have a device, in order.
  std::vector<int> Numbers() const;

 private:
  int Find(const std::string& path) const;

  std::map<int, std::string> userList_;
};

}  // namespace ostrel
