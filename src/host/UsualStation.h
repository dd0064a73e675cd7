#pragma once

#include "factory/Station.h"

namespace ostrel {

/// The station of factory tests where nobody has named one: the user at this machine, with a folder
/// of its own in the user's data folder. It needs an application object.
Station UsualStation();

}  // namespace ostrel
