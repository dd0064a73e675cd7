#pragma once

#include <string>
#include <vector>

#include "factory/TestRecord.h"
#include "platform/Files.h"
#include "platform/Platform.h"

namespace ostrel {

/// The table of a test's records in a folder: "test-main.csv".
std::string RecordPath(const std::string& folder, const std::string& test);

/// Adds the record of a board to the table of its test, as one row that is on the disk when this
/// returns. A new table begins with a row of headings: those of the run, then two for each of
/// `values`, the names of all that the test can measure. Stations that share the folder wait for
/// each other.
FileResult KeepRecord(const Platform& platform, const std::string& folder, const TestRecord& record,
                      const std::vector<std::string>& values);

}  // namespace ostrel
