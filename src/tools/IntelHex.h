#pragma once

#include <string_view>

namespace ostrel {

/// The first thing that looks wrong in a file of Intel hex records.
struct HexFault {
  enum class Kind {
    None,
    NoRecord,     ///< a line is no record
    BadChecksum,  ///< a record is damaged
    NoEnd,        ///< the end record is missing
  } kind = Kind::None;
  int line = 0;  ///< counted from 1; 0 for a file as a whole

  bool operator==(const HexFault&) const = default;
};

/// Looks through a file. Empty lines are no fault, nor is anything behind the end record.
HexFault FirstHexFault(std::string_view octets);

}  // namespace ostrel
