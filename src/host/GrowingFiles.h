#pragma once

#include <memory>
#include <ostream>
#include <string>

namespace ostrel {

/// Files that grow while a program runs. A file that holds something of another kind is not
/// touched, since it was named by mistake. A device or a pipe is written to where another program
/// reads it. Null when a file cannot be written, which `why` tells.

/// Opens a file for what passes on the line, readable by its owner alone, in place of a former
/// trace.
std::unique_ptr<std::ostream> OpenTrace(const std::string& path, std::string& why);

/// The same for a recording of live values. Who may read a new one is as for any new file.
std::unique_ptr<std::ostream> OpenRecording(const std::string& path, std::string& why);

/// The same for a recording of the line, which is its owner's alone.
std::unique_ptr<std::ostream> OpenLineRecording(const std::string& path, std::string& why);

/// Opens a log of what a console says, which is added to; a new one is readable by its owner alone,
/// and gets a line as its head, by which it is known later.
std::unique_ptr<std::ostream> OpenLog(const std::string& path, std::string& why);

}  // namespace ostrel
