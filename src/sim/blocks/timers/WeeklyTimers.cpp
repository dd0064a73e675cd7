#include "sim/blocks/timers/WeeklyTimers.h"

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

WeeklyTimer& WeeklyOf(const Work& w) { return w.Channel(w.conf.weeklyTimers, kTimers); }

void SetWeekly(const Work& w) {
  WeeklyTimer& timer = WeeklyOf(w);
  w.in.Expect("=");
  timer.time = w.in.TimeOfDay();
  w.in.Expect(",WEEK=");
  timer.week = w.in.Week();
  timer.actions = ReadActions(w.in, ",ACT=");
  w.in.End();
}

struct WeeklyTimers {
  static constexpr StatementRule kRules[] = {
      {"WT", SetWeekly},
      {"-WT",
       [](const Work& w) {
         WeeklyOf(w) = {};
         w.in.End();
       }},
  };

  static bool Stands(const Identity&) { return true; }

  static void Tell(const Configuration& conf, const Identity&, Report& out) {
    for (std::size_t i = 0; i < conf.weeklyTimers.size(); ++i) {
      const WeeklyTimer& timer = conf.weeklyTimers[i];
      out.Start("WTIMER").Add(i).Add(timer.week).Add(timer.time);
      out.Start("WTIMER.ACTION").Add(i).AddPlaces({&timer.actions});
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    for (WeeklyTimer& timer : conf.weeklyTimers) {
      if (make.Wanted())
        timer = {.time = make.Between(0, kWholeDay - 1),
                 .week = make.Between(1, kEveryDay),
                 .actions = make.ActionList()};
    }
  }

  static void Demonstrate(Demonstration& demo) { demo.Say("WT0=8:00:00,WEEK=1111100,ACT= 43"); }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("weekly-timer", conf.weeklyTimers, visit, [&](const std::string& prefix, auto& t) {
      visit(prefix + "time", t.time);
      visit(prefix + "week", t.week);
      visit(prefix + "actions", t.actions);
    });
  }
};

}  // namespace

constinit const Block kWeeklyTimerBlock = MakeBlock<WeeklyTimers>();

}  // namespace ostrel::sim
