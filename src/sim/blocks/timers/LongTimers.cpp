#include "sim/blocks/timers/LongTimers.h"

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

LongTimer& LongOf(const Work& w) { return w.Channel(w.conf.longTimers, kTimers); }

void SetLong(const Work& w) {
  LongTimer& timer = LongOf(w);
  w.in.Expect("=");
  timer.seconds = w.in.Whole(0, kMost32);
  timer.actions = ReadActions(w.in, ",ACT=");
  w.in.End();
}

struct LongTimers {
  static constexpr StatementRule kRules[] = {
      {"LT", SetLong},
      {"-LT",
       [](const Work& w) {
         LongOf(w) = {};
         w.in.End();
       }},
  };

  static bool Stands(const Identity&) { return true; }

  static void Tell(const Configuration& conf, const Identity&, Report& out) {
    for (std::size_t i = 0; i < conf.longTimers.size(); ++i) {
      const LongTimer& timer = conf.longTimers[i];
      out.Start("LTIMER").Add(i).Add(timer.seconds);
      out.Start("LTIMER.ACTION").Add(i).AddPlaces({&timer.actions});
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    constexpr int kMostDays = kMost32 / kWholeDay;
    for (LongTimer& timer : conf.longTimers) {
      if (make.Wanted())
        timer = {.seconds = kWholeDay * make.Between(1, kMostDays), .actions = make.ActionList()};
    }
  }

  static void Demonstrate(Demonstration& demo) { demo.Say("LT0= 86400,ACT= 42"); }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("long-timer", conf.longTimers, visit, [&](const std::string& prefix, auto& timer) {
      visit(prefix + "seconds", timer.seconds);
      visit(prefix + "actions", timer.actions);
    });
  }
};

}  // namespace

constinit const Block kLongTimerBlock = MakeBlock<LongTimers>();

}  // namespace ostrel::sim
