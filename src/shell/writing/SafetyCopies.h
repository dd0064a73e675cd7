#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/DeviceConf.h"
#include "model/TargetProfile.h"
#include "platform/Clock.h"
#include "platform/Files.h"

namespace ostrel {

/// The folder of the configurations that loggers were known to hold, named by serial number and
/// time: "Q1234567-20260302-090507.ocf". Beside a copy of what was read stand the logger's own
/// lines, "Q1234567-20260302-090507.lines", since a file does not keep every text as it is. Folder
/// and copies are for their owner alone: passwords and telephones stand in them.
class SafetyCopies {
 public:
  /// What keeping a copy came to, and where it stands.
  struct Kept {
    FileResult result;
    std::string path;
  };
  /// What a logger of a serial number holds. There are no lines of what was not read from it.
  struct Held {
    const DeviceConf& conf;
    const TargetProfile& profile;
    std::string_view serialNumber;
    std::span<const std::string> lines{};
  };

  SafetyCopies(Files& files, const Clock& clock, const std::string& dataFolder)
      : files_(files), clock_(clock), folder_(dataFolder + "/backups") {}

  /// Keeps a configuration. A copy that stands is never overwritten, whoever makes one at the same
  /// moment.
  Kept Keep(const Held& held);
  /// A copy that stands.
  struct Copy {
    std::string name;    ///< "Q1234567-20260302-090507"
    std::string serial;  ///< as it can stand in a name
    std::string date;    ///< "2026-03-02 09:05:07"
    std::string model;   ///< display name; empty where the copy tells none
  };
  /// All copies, the oldest first.
  std::vector<Copy> List() const;
  std::string PathOf(const std::string& name) const;
  /// Whether a copy is of a logger of this serial number; true where its name tells none.
  static bool IsOf(const std::string& name, std::string_view serialNumber);
  /// The logger's own lines beside a copy; none where none stand.
  std::vector<std::string> Lines(const std::string& name) const;
  /// Where the logger's own lines stand beside a copy.
  static std::string LinesBeside(const std::string& copy);
  const std::string& Folder() const { return folder_; }

 private:
  Files& files_;
  const Clock& clock_;
  std::string folder_;
};

}  // namespace ostrel
