#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace ostrel {

// What a program has of the terminal that it was started from. The set of the system underneath
// brings these.

/// Gives a program that was started without a standard input an empty one. Else the next file that
/// it opens would take the place, and its input would never end.
void HoldStandardInput();

/// Has texts in UTF-8 shown as such, and the octets of standard output passed on as they are.
void PrepareConsole();

/// The words of the command line behind the program's name, in UTF-8.
std::vector<std::string> ArgumentsOf(int argc, char** argv);

/// Whether an operator can be asked: standard input and standard error are terminals.
bool HasOperator();
bool OutIsTerminal();
bool ErrIsTerminal();

/// Asks on standard error and reads one line of standard input, without echo when `echo` is false.
/// Nothing when the input ends or a signal comes.
std::optional<std::string> AskOnTerminal(std::string_view prompt, bool echo);

/// Reads an open descriptor to its end, or with `lineOnly` to the end of its first line, which is
/// left out. It must not hold more than any file that is read.
FileResult ReadDescriptor(int descriptor, bool lineOnly, std::string& octets);

}  // namespace ostrel
