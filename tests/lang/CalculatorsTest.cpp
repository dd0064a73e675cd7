#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "lang/Calculators.h"

namespace ostrel {
namespace {

TEST(Calculators, PulseRatio) {
  struct Case {
    float amount;
    std::size_t unit;
    std::int16_t timeBase;
    std::size_t flow;
    const char* ratio;
  };
  for (const Case& c :
       {Case{0.01F, 1, 60, 1, "0.6"}, Case{2, 1, 1, 0, "2000"}, Case{5, 2, 10, 2, "0.5"},
        Case{5, 2, 10, 3, "1800"}, Case{1, 1, -1, 1, "-3600"}, Case{0, 0, 1, 0, "0"}}) {
    const auto ratio = PulseRatio(c.amount, kPulseUnits[c.unit], c.timeBase, kFlowUnits[c.flow]);
    EXPECT_EQ(DecText(ratio.value()), c.ratio);
  }
  EXPECT_FALSE(PulseRatio(1, kPulseUnits[0], 0, kFlowUnits[0]));
  EXPECT_FALSE(PulseRatio(3e38F, kPulseUnits[1], 1, kFlowUnits[0])) << "no float holds it";
}

}  // namespace
}  // namespace ostrel
