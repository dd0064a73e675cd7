#pragma once

#include <cstdint>

#include "base/Bounded.h"

namespace ostrel {

/// List places that are read, written, sent and saved. The ninth place exists and stays untouched.
inline constexpr int kActionPlaces = 8;

/// Action numbers in the order in which they run; 0 or below is an empty place.
using ActionList = Bounded<std::int16_t, 9>;

/// How many actions a list has.
inline int CountActions(const ActionList& list) {
  int actions = 0;
  for (int place = 0; place < kActionPlaces; ++place) actions += list[place] > 0 ? 1 : 0;
  return actions;
}

/// Copies the places in use.
inline void CopyActions(const ActionList& from, ActionList& to) {
  for (int place = 0; place < kActionPlaces; ++place) to[place] = from[place];
}

}  // namespace ostrel
