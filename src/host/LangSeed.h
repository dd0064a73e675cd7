#pragma once

#include <string>

#include "platform/Files.h"

namespace ostrel {

/// Makes the user's working copy of the translation table from the installed one, which is never
/// written. A copy that stands keeps every text in it and gets what the installed table has beyond
/// it: new rows, texts for empty fields, and columns of further languages, matched by their names
/// in the header. Gives the path of the working copy back, which does not exist where neither could
/// be read.
std::string SeedLang(Files& files, const std::string& shippedPath, const std::string& workingPath);

}  // namespace ostrel
