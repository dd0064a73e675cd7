#pragma once

#include <QPalette>

namespace ostrel {

/// Whether texts stand on dark in a palette: colours of their own must be light there.
inline bool IsDark(const QPalette& palette) {
  constexpr int kMiddle = 128;
  return palette.color(QPalette::Base).lightness() < kMiddle;
}

}  // namespace ostrel
