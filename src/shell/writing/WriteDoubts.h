#pragma once

#include <optional>
#include <string>
#include <vector>

#include "shell/check/CheckRules.h"
#include "shell/session/FaultWords.h"

namespace ostrel {

class Configurator;

/// What `check` finds in a configuration that no logger can hold, or that a cut file lacks.
/// `document` is the file that it was read from; null for one that was not.
std::vector<FoundByRule> ErrorsIn(const ModelConfiguration& configuration,
                                  std::optional<std::int32_t> features, const IniClass* document,
                                  Files& files, const Translation& translate);

/// What a file lacks that a configuration was read from; nothing when it is whole.
std::optional<Phrase> WhatLacks(const ModelConfiguration& configuration, const std::string& path,
                                Files& files, const Translation& translate);

/// What speaks against writing the configuration of a configurator into the logger that answers,
/// as sentences for people. Empty when nothing does.
std::vector<Phrase> DoubtsOfWriting(const Configurator& configurator);

}  // namespace ostrel
