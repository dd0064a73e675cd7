#pragma once

#include <map>

#include "platform/PortFacts.h"

namespace ostrel {

/// Facts of ports as a test sets them; a number without any is no device of the machine.
class FakeInspector final : public PortInspector {
 public:
  PortFacts Inspect(int number) override { return facts[number]; }
  std::map<int, PortFacts> facts;
};

}  // namespace ostrel
