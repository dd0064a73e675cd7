#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "shell/acceptance/Acceptance.h"

namespace ostrel {

/// An acceptance as it is kept: comma-separated values, of which the first row names the form with
/// its version, the logger and the configuration.
std::string AcceptanceText(const Acceptance& acceptance);

/// The reverse. Nothing for any other text, nor for a version that is not known.
std::optional<Acceptance> ReadAcceptance(std::string_view text);

/// The same for other programs: a row of headings and a row a point, each with the logger and the
/// configuration. `translate` gives the words for headings, kinds and verdicts.
std::string AcceptanceTable(const Acceptance& acceptance, const Translation& translate);

/// The folder of the acceptances of a user, a file for each logger and configuration.
class AcceptanceFiles {
 public:
  AcceptanceFiles(Files& files, const std::string& dataFolder)
      : files_(files), folder_(dataFolder + "/acceptance") {}

  /// What stands of a logger and a configuration. One that was never begun has no points; one that
  /// cannot be read is told in `result`, and must not be replaced.
  struct Kept {
    FileResult result;
    Acceptance acceptance;
  };
  Kept Read(const std::string& serialNumber, const std::string& configuration) const;
  /// The one of a logger in which a verdict was given last; nothing when there is none.
  std::optional<Acceptance> Latest(const std::string& serialNumber) const;
  /// Replaces what stands, in one step.
  FileResult Keep(const Acceptance& acceptance);
  std::string PathOf(const std::string& serialNumber, const std::string& configuration) const;

 private:
  Files& files_;
  std::string folder_;
};

}  // namespace ostrel
