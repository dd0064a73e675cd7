#include "sim/blocks/Katodex.h"

#include "sim/blocks/Block.h"

namespace ostrel::sim {
namespace {

struct Katodex {
  static constexpr std::span<const StatementRule> kRules{};

  static bool Stands(const Identity& self) { return self.Traits().aux > 0; }

  static void Tell(const Configuration& conf, const Identity&, Report& out) {
    const OffMeasurement& off = conf.offMeasurement;
    out.Start("KTX").Add(off.seconds).Add(off.sampleRate).Add(off.shuntRatio);
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    constexpr int kRates[] = {3, 5, 10, 20, 30};
    conf.offMeasurement = {.seconds = make.Between(1, 3),
                           .sampleRate = make.Pick(kRates),
                           .shuntRatio = make.Value(0, 999)};
  }

  static void Demonstrate(Demonstration& demo) {
    demo.Conf().offMeasurement = {.seconds = 2, .sampleRate = 10, .shuntRatio = 0.5F};
  }

  static void Visit(auto& conf, auto& visit) {
    auto& off = conf.offMeasurement;
    visit("off.seconds", off.seconds);
    visit("off.sample-rate", off.sampleRate);
    visit("off.shunt-ratio", off.shuntRatio);
  }
};

}  // namespace

constinit const Block kKatodexBlock = MakeBlock<Katodex>();

}  // namespace ostrel::sim
