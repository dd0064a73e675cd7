#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ostrel::sim {

struct Block;

inline constexpr std::size_t kVoiceNumbers = 250;
inline constexpr int kNoMacro = -1;
inline constexpr int kMostVoiceMacro = 39;

/// Numbers whose voice calls may start a macro. No download tells them; they have requests of their
/// own.
struct VoiceList {
  std::vector<std::string> numbers;
  int macro = kNoMacro;  ///< 0 to 39

  bool operator==(const VoiceList&) const = default;
};

/// Check sum of the numbers, one after the other without anything between them.
std::uint16_t VoiceSum(const VoiceList& voice);

extern const Block kVoiceBlock;

}  // namespace ostrel::sim
