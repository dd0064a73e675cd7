#pragma once

#include <functional>
#include <string>

#include "platform/Files.h"
#include "platform/Platform.h"

namespace ostrel {

/// Runs `work` on what the stations of a folder share, while no other one does. Waits for another
/// one up to five seconds, serving events; a failure has run nothing.
FileResult WhileFolderLocked(const Platform& platform, const std::string& folder,
                             const std::function<void()>& work);

}  // namespace ostrel
