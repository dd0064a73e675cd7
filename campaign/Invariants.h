#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Tally.h"
#include "blocks/Receiver.h"
#include "shell/Configurator.h"
#include "sim/Logger.h"

namespace ostrel::campaign {

/// What the program's words say of a logger's configuration, its voice-call list or its firmware.
enum class Claim {
  Nothing,
  AsBefore,
  Either,
  TakenOver,
  ListDoubtful,
  NoFirmware,
  FirmwareDoubtful,
  FirmwareKept
};

/// What a fault's outcome claims; nothing for words that are not known here.
std::optional<Claim> ClaimOf(const std::string& outcome);

/// A logger's configuration without its voice-call list, which goes ways of its own.
sim::Configuration HeldBy(const sim::Logger& logger);

/// What a configuration becomes by the statements of a program, octet by octet as they would be
/// sent. Nothing where the logger refuses one.
std::optional<sim::Configuration> After(const sim::Configuration& held, const sim::Identity& self,
                                        const DeviceConf& sent, const Receiver& receiver);

/// A configuration as a program reads it off its lines.
DeviceConf ReadOff(const sim::Configuration& held, const sim::Identity& self,
                   const Configurator& program);
/// Its lines as they come, in UTF-8.
std::vector<std::string> LinesOf(const sim::Configuration& held, const sim::Identity& self);

/// The longest time of the logger that a step may take, by the waits and attempts of its dialogues.
Duration LongestOf(Step step, Configurator& program, const sim::Logger& logger);

/// What is wrong with a program between two dialogues; empty for nothing.
std::string WrongAtRest(const Configurator& program);

}  // namespace ostrel::campaign
