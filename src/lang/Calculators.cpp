#include "lang/Calculators.h"

#include "base/Numbers.h"

namespace ostrel {
std::optional<float> PulseRatio(float amount, const PulseUnit& unit, std::int16_t timeBase,
                                const FlowUnit& flow) {
  if (timeBase == 0) return {};
  const auto whole = ToFloat(amount * unit.factor);
  if (!whole) return {};
  const auto ratio = ToFloat(static_cast<double>(*whole / static_cast<float>(flow.divisor)) /
                             (timeBase / flow.seconds));
  return ratio ? ToFloat(NumVal(NumText(*ratio))) : std::nullopt;
}

}  // namespace ostrel
