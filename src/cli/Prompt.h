#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ostrel::cli {

/// Whether an operator can be asked: standard input and standard error are terminals.
bool HasOperator();

/// Asks on standard error and reads one line of standard input, without echo when `echo` is false.
/// Nothing when the input ends or a signal comes.
std::optional<std::string> AskOnTerminal(std::string_view prompt, bool echo);

}  // namespace ostrel::cli
