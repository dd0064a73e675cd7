#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "shell/acceptance/AcceptanceFile.h"

namespace ostrel {

/// The acceptance that is under way. Each change is on the disk before it is told as done; what
/// could not be kept is kept with the next change.
class AcceptanceWork {
 public:
  AcceptanceWork(Files& files, const Clock& clock, const std::string& dataFolder)
      : files_(files, dataFolder), clock_(clock) {}

  /// Takes the inputs of a configuration, with what was noted of them on this logger before.
  /// `subject` says which logger and configuration; without a serial number nothing can be noted.
  /// Where the configuration gets a name only now, what was noted of its inputs goes along.
  void Begin(const Acceptance& subject);

  const Acceptance& Present() const { return present_; }
  bool MayNote() const { return !present_.serialNumber.empty() && !isForeign_; }
  /// Why what was noted before cannot be read, or what was noted last cannot be kept; else empty.
  const std::string& Error() const { return error_; }

  /// Gives a verdict, with the value of that moment. `Verdict::Open` takes one back.
  void Judge(std::size_t place, Verdict verdict, const std::string& value);
  void Note(std::size_t place, const std::string& note);

 private:
  void Keep() { error_ = files_.Keep(present_).error; }

  AcceptanceFiles files_;
  const Clock& clock_;
  Acceptance present_;
  std::string error_;
  bool isForeign_ = false;  ///< what stands in the file cannot be read, and must not be lost
};

}  // namespace ostrel
