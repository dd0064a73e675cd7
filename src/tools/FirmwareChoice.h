#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "link/dialogues/FirmwareDialogue.h"
#include "platform/Files.h"

namespace ostrel {

/// Where the files of an update stand.
struct FirmwarePaths {
  std::string image, loader;
};

/// Whether both are named, and the loader by the name that it must have somewhere in its path.
/// Without it nobody may go on; a folder of that name is as good as a file, so files that are
/// swapped are looked for beside.
bool AreNamed(const FirmwarePaths& paths);

/// Reads both files whole. After a failure `failed` is the path of the file that cannot be read.
FileResult ReadFirmware(Files& files, const FirmwarePaths& paths, FirmwareFiles& into,
                        std::string& failed);

/// What looks wrong with what is sent of the files of an update, one sentence each in the language
/// in use. A logger that is sent such files may be left without firmware; the operator may know
/// better.
std::vector<std::string> FirmwareDoubts(
    const FirmwarePaths& paths, const FirmwareFiles& files,
    const std::function<std::string(std::string_view text)>& translate);

}  // namespace ostrel
