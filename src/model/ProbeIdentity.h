#pragma once

#include <string>

namespace ostrel {

/// The identity that a 1-Wire probe has burnt in, as two halves of four dotted octets each.
struct ProbeIdentity {
  std::string first, second;

  bool operator==(const ProbeIdentity&) const = default;
};

}  // namespace ostrel
