#pragma once

#include <array>
#include <string>

namespace ostrel::sim {

struct Block;

inline constexpr int kPhones = 20;
inline constexpr int kMaskPlaces = 16;
inline constexpr int kNoChannel = 255;

/// The places of a mask, all empty.
constexpr std::array<int, kMaskPlaces> NoChannels() {
  std::array<int, kMaskPlaces> places{};
  places.fill(kNoChannel);
  return places;
}

struct Phone {
  std::string number;  ///< empty in a free slot
  int priority = 0;    ///< 0 none, 1 to 8
  int privilege = 0;   ///< 0 to 3
  int maskMode = 0;    ///< 0 no mask, 1 include, 2 exclude
  std::array<int, kMaskPlaces> channels = NoChannels();

  bool operator==(const Phone&) const = default;
};

extern const Block kTelephoneBlock;

}  // namespace ostrel::sim
