#pragma once

#include <QString>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/Files.h"

namespace ostrel {

class Configurator;

/// The folder of the configurations that loggers were known to hold, named by serial number and
/// time. The command line keeps its own there, too.
class SafetyCopies {
 public:
  SafetyCopies(Files& files, Clock& clock, std::string dataFolder)
      : files_(files), clock_(clock), folder_(std::move(dataFolder) + "/backups") {}

  /// Keeps the present configuration as what the connected logger holds now.
  FileResult Keep(Configurator& configurator);
  /// Paths of the copies, newest first, at most `most` of them.
  std::vector<QString> Newest(int most) const;
  const std::string& Folder() const { return folder_; }

 private:
  Files& files_;
  Clock& clock_;
  std::string folder_;
};

}  // namespace ostrel
