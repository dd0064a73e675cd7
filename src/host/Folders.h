#pragma once

#include <string>

namespace ostrel {

/// The user's own folder of this product.
std::string UserDataFolder();
/// The folder of what was installed beside the programs. It needs an application object.
std::string ShippedFolder();
/// The translation table in a folder.
inline std::string LangIn(const std::string& folder) { return folder + "/Lang.txt"; }

}  // namespace ostrel
