#pragma once

#include <string>

#include "platform/DateTime.h"
#include "platform/Files.h"
#include "platform/Platform.h"

namespace ostrel {

/// The counter `NS` of the serial numbers that test stations give. It stands in the file
/// "TestOstrel.ini" of a folder, in the section "NS" under the key "NS"; stations that share the
/// folder share it. It is raised under a lock, so that none of them gives a number twice.
class SerialCounter {
 public:
  SerialCounter(const Platform& platform, std::string folder)
      : platform_(platform), folder_(std::move(folder)) {}

  /// Raises the counter, which starts over behind 9999, and brings its new value. After a failure
  /// no number may be given: another station may give it.
  FileResult Raise(int& value);
  /// The file in which it stands.
  std::string Path() const { return folder_ + "/TestOstrel.ini"; }

 private:
  FileResult RaiseLocked(int& value);

  const Platform& platform_;
  std::string folder_;
};

/// A serial number: the date in the form "yymmdd" as a number, then the counter in four digits.
std::string SerialOf(const DateTime& today, int counter);

}  // namespace ostrel
