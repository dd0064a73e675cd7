#pragma once

#include <QString>

#include "platform/Time.h"

namespace ostrel {

class Configurator;

/// What the link is doing, as the status bar tells it.
struct LinkState {
  enum class Kind { Idle, Detecting, Open, Reading, Writing } kind = Kind::Idle;
  int silentSeconds = 0;  ///< how long an answer has been awaited in vain; 0 below 2 s

  bool operator==(const LinkState&) const = default;
};

LinkState LinkStateOf(Configurator& configurator);

/// "reading", "reading, silent for 4 s".
QString LinkStateWords(const LinkState& state);

}  // namespace ostrel
