#pragma once

#include <QString>

#include "link/LinkFault.h"

namespace ostrel {

/// What went wrong in a dialogue and what helps, in the window's words. `device` names what stands
/// behind the port. Empty when nothing went wrong.
QString FaultWords(const LinkFault& fault, const QString& device);

}  // namespace ostrel
