#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "World.h"

namespace ostrel::campaign {

/// What happens around a program at some exchange of its logger.
enum class Deed {
  NoPort,       ///< opening the port fails
  PullOut,      ///< the adapter is pulled out, and plugged in again behind the session
  HoldLine,     ///< flow control holds the line for a while
  FileFails,    ///< one of the next changes of a file fails
  FilesFail,    ///< all of them do from some on
  LedgerFails,  ///< nothing can be kept any more
  WrongCode,    ///< the operator gives a wrong access code, or none
  BreakOff,     ///< the operator interrupts
  Meddle,       ///< something else is asked of the link
  Kill          ///< the program ends at once
};

/// What goes wrong in one session.
struct Faults {
  struct Hurt {
    Damage damage{};
    bool isToProgram = false;
    int first = 1, last = 1;  ///< octets from one to the next
    bool once = false;
  };

  sim::Faults ofLogger;  ///< switches that the logger is made with
  std::vector<Hurt> ofLine;
  std::multimap<int, Deed> deeds;  ///< by the number of the exchange; at 0 before the first
  std::vector<std::size_t> kinds;  ///< places in the list of names
  std::string words;
};

/// Names of all kinds of faults, for a count.
const std::vector<std::string>& FaultNames();

/// None in one session of sixteen, else up to four.
Faults DrawFaults(sim::Random& random);

/// A whole number between two, small ones as often as large ones.
int DrawPlace(sim::Random& random, int first, int last);

}  // namespace ostrel::campaign
