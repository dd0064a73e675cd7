#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace ostrel {

/// A kind of file that grows while a program runs.
struct GrowingKind {
  bool (*isFirstLine)(std::string_view line);  ///< how a former one begins
  const char* name;                            ///< such as "a trace"
  bool isOwnersAlone;                          ///< nobody else may read it
};

// The set of the system underneath brings these.

/// Opens a file of a kind, which replaces a former one of that kind or an empty file, and nothing
/// else. A device or a pipe is written to where another program reads it. Null when it cannot be
/// written, which `why` tells.
std::unique_ptr<std::ostream> OpenGrowing(const std::string& path, const GrowingKind& kind,
                                          std::string& why);

/// Opens a file to add to what it holds; a new one is readable by its owner alone. Null when it
/// cannot be written, which `why` tells.
std::unique_ptr<std::ostream> OpenToAppend(const std::string& path, std::string& why);

}  // namespace ostrel
