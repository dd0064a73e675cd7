#pragma once

#include <string>

#include "model/DeviceInfo.h"
#include "model/TargetProfile.h"

namespace ostrel {

/// Which logger values come from. One that has not told its serial number, as when its information
/// failed to come, may be any of its model.
struct LoggerIdentity {
  std::string model;
  std::string serialNumber;  ///< empty while it is not known
};

inline LoggerIdentity IdentityOf(const TargetProfile& profile, const DeviceInfo& info) {
  return {profile.TargetName, info.SerialNumber};
}

enum class LoggerChange {
  None,
  Doubtful,  ///< it has told no serial number, and the one before had
  Other
};

/// Follows from which logger values come, through sessions.
class LoggerFollower {
 public:
  /// Takes the logger of the next values, and compares it with the last one that is known.
  LoggerChange Follow(const LoggerIdentity& present) {
    const std::string& number = last_.serialNumber;
    const bool isSameModel = last_.model.empty() || last_.model == present.model;
    if (isSameModel && !number.empty() && present.serialNumber.empty())
      return LoggerChange::Doubtful;
    const bool isSame = isSameModel && (number.empty() || number == present.serialNumber);
    last_ = present;
    return isSame ? LoggerChange::None : LoggerChange::Other;
  }

 private:
  LoggerIdentity last_;
};

}  // namespace ostrel
