#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace ostrel::cli {

/// Whether an operator can be asked: standard input and standard error are terminals.
bool HasOperator();

/// Asks on standard error and reads one line of standard input, without echo when `echo` is false.
/// Nothing when the input ends or a signal comes.
std::optional<std::string> AskOnTerminal(std::string_view prompt, bool echo);

/// Reads an open descriptor to its end, or with `lineOnly` to the end of its first line, which is
/// left out. It must not hold more than any file that is read.
FileResult ReadDescriptor(int descriptor, bool lineOnly, std::string& octets);

}  // namespace ostrel::cli
