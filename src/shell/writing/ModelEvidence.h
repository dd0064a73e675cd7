#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "link/dialogues/LiveCommands.h"

namespace ostrel {

// What a logger tells of its model, without being asked for it.

/// Models that may be meant, in the order of `TargetModels`.
using ModelSet = std::array<bool, 6>;

inline constexpr ModelSet kAnyModel{true, true, true, true, true, true};

/// Display name of the model that the greeting of a logger names; empty when it names none.
std::string_view ModelInGreeting(std::string_view greeting);

/// The models that have all channels of which the lines of a download tell anything.
ModelSet ModelsOfStream(std::span<const std::string> lines);

/// The models that have no more channels than these answers tell the names of.
ModelSet ModelsOfNames(std::span<const NameAnswer> told);

}  // namespace ostrel
