#pragma once

#include <QString>

#include "shell/SessionState.h"

namespace ostrel {

/// What went wrong, what helps and how the logger stands, in sentences of the window's language.
/// `device` names what stands behind the port.
QString FaultText(const SessionFault& fault, const QString& device);

}  // namespace ostrel
