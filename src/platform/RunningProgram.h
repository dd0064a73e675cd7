#pragma once

#include <functional>
#include <string>

namespace ostrel {

/// Who runs this program, and how running programs are told apart.
struct RunningProgram {
  std::string user;  ///< as the machine knows him
  /// A process, by its number, as no other one is ever named: by the start of its machine and its
  /// own. The name of one that does not run is that of no process.
  std::function<std::string(const std::string& number)> nameOf;
};

// The set of the system underneath brings these.

RunningProgram ThisProgram();

/// Shows a document in the program that the user's desktop has for it.
bool ShowDocument(const std::string& path);

}  // namespace ostrel
