#pragma once

#include <QString>

#include "shell/session/FaultWords.h"

namespace ostrel {

/// A phrase as a sentence of its own, in the window's language; empty for none.
QString SentenceOf(const Phrase& phrase);

/// What went wrong, what helps and how the logger stands, in sentences of the window's language.
/// `device` names what stands behind the port.
QString FaultText(const SessionFault& fault, const QString& device);

}  // namespace ostrel
