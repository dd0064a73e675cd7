#pragma once

#include <optional>
#include <vector>

#include "model/DeviceConf.h"
#include "shell/words/Phrase.h"

namespace ostrel {

class Configurator;

// Whether a configuration goes to the logger that it is for, as far as the ledger knows. Where that
// is nothing, nothing is said.

/// What speaks against it before anything has been asked of the logger: the file, or what stands on
/// the pages, was last used with another logger, or with a firmware of other features. A file that
/// the ledger does not have by its name is known by its content.
std::vector<Phrase> DoubtsOfIdentity(const Configurator& configurator);

/// Whether the file was used with the logger that answers, so that what it holds can be judged.
bool HaveMet(const Configurator& configurator);

/// What speaks against it once the logger was read: it holds what the file never held nor was
/// written, so that somebody else has changed it since.
std::optional<Phrase> DoubtOfHeld(const Configurator& configurator, const DeviceConf& held);

}  // namespace ostrel
