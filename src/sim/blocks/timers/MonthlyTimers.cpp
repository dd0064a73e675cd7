#include "sim/blocks/timers/MonthlyTimers.h"

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

MonthlyTimer& MonthlyOf(const Work& w) { return w.Channel(w.conf.monthlyTimers, kTimers); }

void SetMonthly(const Work& w) {
  MonthlyTimer& timer = MonthlyOf(w);
  w.in.Expect("=");
  timer.time = w.in.TimeOfDay();
  w.in.Expect(",MASK=");
  timer.days = w.in.Bits32();
  timer.actions = ReadActions(w.in, ",ACT=");
  w.in.End();
}

struct MonthlyTimers {
  static constexpr StatementRule kRules[] = {
      {"MT", SetMonthly},
      {"-MT",
       [](const Work& w) {
         MonthlyOf(w) = {};
         w.in.End();
       }},
  };

  static bool Stands(const Identity& self) { return self.Has(kMonthlyTimers); }

  static void Tell(const Configuration& conf, const Identity&, Report& out) {
    for (std::size_t i = 0; i < conf.monthlyTimers.size(); ++i) {
      const MonthlyTimer& timer = conf.monthlyTimers[i];
      out.Start("MTIMER").Add(i).Add(timer.days).Add(timer.time);
      out.Start("MTIMER.ACTION").Add(i).AddPlaces({&timer.actions});
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    for (MonthlyTimer& timer : conf.monthlyTimers) {
      if (!make.Wanted()) continue;
      timer.time = make.Between(0, kWholeDay - 1);
      timer.days = 1U << make.Between(0, 31) | 1U << make.Between(0, 31);
      timer.actions = make.ActionList();
    }
  }

  static void Demonstrate(Demonstration& demo) {
    // On the first and on the last.
    demo.Say("MT0=6:00:00,MASK= 2147483649,ACT= 79");
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("monthly-timer", conf.monthlyTimers, visit, [&](const std::string& prefix, auto& t) {
      visit(prefix + "time", t.time);
      visit(prefix + "days", t.days);
      visit(prefix + "actions", t.actions);
    });
  }
};

}  // namespace

constinit const Block kMonthlyTimerBlock = MakeBlock<MonthlyTimers>();

}  // namespace ostrel::sim
