#include "sim/blocks/Groups.h"

#include "sim/blocks/Block.h"

namespace ostrel::sim {
namespace {

void SetGroup(const Work& w) {
  PowerGroup& group = w.Channel(w.conf.groups, w.self.Traits().analogs);
  w.in.Expect("=");
  group.output = w.in.Whole(kLeast16, kMost16);
  w.in.Expect(",T=");
  group.period = w.in.Decimal();
  w.in.Expect(",V=");
  group.volts = w.in.Whole(kLeast16, kMost16);
  w.in.End();
}

struct Groups {
  static constexpr StatementRule kRules[] = {{"AGRP", SetGroup}};

  static bool Stands(const Identity& self) { return self.Traits().analogs > 0; }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    for (int i = 0; i < self.Traits().analogs; ++i) {
      const PowerGroup& group = conf.groups[static_cast<std::size_t>(i)];
      out.Start("GROUP").Add(i).Add(group.output).Add(group.volts).Add(group.period);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    constexpr int kVolts[] = {0, 12, 24};
    for (int i = 0; i < make.Self().Traits().analogs; ++i) {
      if (!make.Wanted()) continue;
      conf.groups[static_cast<std::size_t>(i)] = {
          .output = make.Between(0, 3),
          .volts = make.Pick(kVolts),
          .period = static_cast<float>(make.Between(0, 9999))};
    }
  }

  static void Demonstrate(Demonstration& demo) { demo.Say("AGRP0= 0,T= 100,V= 12"); }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("group", conf.groups, visit, [&](const std::string& prefix, auto& group) {
      visit(prefix + "output", group.output);
      visit(prefix + "volts", group.volts);
      visit(prefix + "period", group.period);
    });
  }
};

}  // namespace

constinit const Block kGroupBlock = MakeBlock<Groups>();

}  // namespace ostrel::sim
