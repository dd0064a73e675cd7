#include <cstdint>

#include "sim/blocks/Block.h"

namespace ostrel::sim {

Configuration RandomConfiguration(Model model, std::uint32_t features, std::uint64_t seed,
                                  double density) {
  const Identity self{model, features};
  Configuration conf;
  Random seeds(seed);
  for (const Block* block : Blocks()) {
    // Each kind draws from a stream of its own, so that a further one changes none of the others.
    RandomParts parts(self, seeds.Next(), density);
    if (block->stands(self)) block->makeUp(parts, conf);
  }
  return conf;
}

}  // namespace ostrel::sim
