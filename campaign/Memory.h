#pragma once

#include <cstddef>

namespace ostrel::campaign {

/// What `new` has given out in this process and was not given back.
struct Memory {
  std::size_t blocks = 0;
  std::size_t octets = 0;
  std::size_t mostOctets = 0;  ///< since `ForgetMost`
};

const Memory& MemoryInUse();
void ForgetMost();

}  // namespace ostrel::campaign
