#pragma once

#include <string_view>

#include "sim/Configuration.h"
#include "sim/StatementCursor.h"

namespace ostrel::sim {

/// Takes a statement of a block that is only kept as text: timers, flow meters, MODBUS, probes,
/// expansion inputs, math channels, macros, GPRS and FTP, auxiliary inputs. `word` is its leading
/// letters. Returns whether it is one of them; what is wrong with it is told to `in`, which stands
/// behind the word.
bool KeepStatement(std::string_view word, std::string_view statement, StatementCursor& in,
                   const Identity& self, Configuration& conf);

}  // namespace ostrel::sim
