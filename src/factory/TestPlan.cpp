#include "factory/TestPlan.h"

#include <array>

namespace ostrel {

std::span<const TestPlan* const> TestPlans() {
  static constexpr std::array<const TestPlan*, 3> kPlans{&kTest, &kTestKA2, &kTestBQ};
  return kPlans;
}

}  // namespace ostrel
