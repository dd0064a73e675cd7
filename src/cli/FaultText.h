#pragma once

#include <string>
#include <string_view>

#include "link/LinkFault.h"

namespace ostrel::cli {

/// What a dialogue moves: the numbers of its faults count these.
enum class Transfer { None, Download, Upload };

/// One sentence on what went wrong on a link, with what helps where something does.
std::string FaultText(const LinkFault& fault, std::string_view port, Transfer transfer);

}  // namespace ostrel::cli
