#pragma once

#include <string>
#include <string_view>

#include "model/DeviceConf.h"
#include "model/TargetProfile.h"
#include "platform/Clock.h"
#include "platform/Files.h"

namespace ostrel {

/// The folder of the configurations that loggers were known to hold, named by serial number and
/// time: "Q1234567-20260302-090507.ocf". Folder and copies are for their owner alone: passwords
/// and telephones stand in them.
class SafetyCopies {
 public:
  /// What keeping a copy came to, and where it stands.
  struct Kept {
    FileResult result;
    std::string path;
  };

  SafetyCopies(Files& files, const Clock& clock, const std::string& dataFolder)
      : files_(files), clock_(clock), folder_(dataFolder + "/backups") {}

  /// Keeps a configuration as what the logger of a serial number holds. A copy that stands is never
  /// overwritten, whoever makes one at the same moment.
  Kept Keep(const DeviceConf& held, const TargetProfile& profile, std::string_view serialNumber);
  const std::string& Folder() const { return folder_; }

 private:
  Files& files_;
  const Clock& clock_;
  std::string folder_;
};

}  // namespace ostrel
