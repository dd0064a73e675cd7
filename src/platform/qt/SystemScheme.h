#pragma once

#include <optional>

namespace ostrel {

/// Whether the desktop asks for dark windows; nothing where it asks for neither kind. The set of
/// the system underneath brings this.
std::optional<bool> DesktopWantsDark();

}  // namespace ostrel
