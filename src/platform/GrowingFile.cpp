#include "platform/GrowingFile.h"

namespace ostrel {

Held WhatIsHeld(std::string_view start, const GrowingKind& kind) {
  if (start.empty()) return Held::Nothing;
  return kind.isFirstLine(start.substr(0, start.find('\n'))) ? Held::FormerOne
                                                             : Held::SomethingElse;
}

std::string WordsOfAnother(const GrowingKind& kind) {
  return std::string("it holds something else than ") + kind.name;
}

}  // namespace ostrel
