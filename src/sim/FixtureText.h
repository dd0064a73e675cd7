#pragma once

#include <string>
#include <string_view>

#include "sim/Fixture.h"
#include "sim/Model.h"

namespace ostrel::sim {

/// Reads how the fixture, and the board of a model in it, behave: a word and its values a line, as
/// `FixtureHelp` tells them; "#" begins a remark. What the text does not tell stays as it is in
/// `script`. Gives what is wrong, behind the number of its line; empty when all was read.
std::string ReadFixture(std::string_view text, Model model, FixtureScript& script);

/// All words with their values, one a line.
std::string FixtureHelp();

}  // namespace ostrel::sim
