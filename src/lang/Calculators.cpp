#include "lang/Calculators.h"

#include <cmath>
#include <limits>

namespace ostrel {

std::optional<float> PulseRatio(float amount, const PulseUnit& unit, std::int16_t timeBase,
                                const FlowUnit& flow) {
  if (timeBase == 0) return {};
  const double ratio = amount * unit.factor / flow.divisor / (timeBase / flow.seconds);
  if (!(std::abs(ratio) <= std::numeric_limits<float>::max())) return {};
  return static_cast<float>(ratio);
}

}  // namespace ostrel
