#pragma once

#include "link/Line.h"
#include "model/ProbeIdentity.h"

namespace ostrel {

/// Asks for the identity of the one probe on the logger's 1-Wire bus. A fault leaves `identity` as
/// it was.
LinkFault ReadProbe(Line& line, ProbeIdentity& identity);

}  // namespace ostrel
