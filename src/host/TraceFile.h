#pragma once

#include <memory>
#include <ostream>
#include <string>

namespace ostrel {

/// Opens a file for what passes on the line, readable by its owner alone. A former trace is
/// replaced; any other file that holds something is not, since it was named by mistake. A device or
/// a pipe is written to where another program reads it. Null when it cannot be written, which `why`
/// tells.
std::unique_ptr<std::ostream> OpenTrace(const std::string& path, std::string& why);

/// The same for a recording of live values, which takes the place of a former one alone. Who may
/// read a new one is as for any new file.
std::unique_ptr<std::ostream> OpenRecording(const std::string& path, std::string& why);
/// Opens a text file to add to what it holds; a new one is readable by its owner alone. A device or
/// a pipe is written to where another program reads it. Null when it cannot be written, which `why`
/// tells.
std::unique_ptr<std::ostream> OpenLog(const std::string& path, std::string& why);

/// The same for a recording of the line, which is its owner's alone.
std::unique_ptr<std::ostream> OpenLineRecording(const std::string& path, std::string& why);

}  // namespace ostrel
