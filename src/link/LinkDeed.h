#pragma once

#include <string>

#include "platform/Ledger.h"

namespace ostrel {

/// Something that is done with a logger, for those who keep book of it.
struct LinkDeed {
  LedgerKind kind;
  std::string detail{};  ///< "output 3 on"
  std::string file{};    ///< that holds what is written, where that is known
  std::string text{};    ///< what is written, where no other kind of deed keeps it
  std::string port{};    ///< of a session: "COM7"
  std::string phone{};   ///< of a session: the number dialled; empty on a cable
};

}  // namespace ostrel
