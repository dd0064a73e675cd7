#pragma once

#include <string>

#include "platform/Files.h"

namespace ostrel::cli {

/// Gives a program that was started without a standard input an empty one. Else the next file that
/// it opens would take the place, and its input would never end.
void HoldStandardInput();

/// Reads an open descriptor to its end, or with `lineOnly` to the end of its first line, which is
/// left out. It must not hold more than any file that is read.
FileResult ReadDescriptor(int descriptor, bool lineOnly, std::string& octets);

}  // namespace ostrel::cli
