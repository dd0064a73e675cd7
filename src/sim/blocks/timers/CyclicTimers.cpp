#include "sim/blocks/timers/CyclicTimers.h"

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

CyclicTimer& CyclicOf(const Work& w) { return w.Channel(w.conf.cyclicTimers, kTimers); }

void SetCyclic(const Work& w) {
  CyclicTimer& timer = CyclicOf(w);
  w.in.Expect("=");
  timer.period = w.in.Decimal();
  ReadRange(w.in, timer);
  timer.flag = ReadFlag(w.in);
  timer.actions = ReadActions(w.in, ",ACT=");
  w.in.End();
}

struct CyclicTimers {
  static constexpr StatementRule kRules[] = {
      {"CT", SetCyclic},
      {"-CT",
       [](const Work& w) {
         CyclicOf(w) = {};
         w.in.End();
       }},
  };

  static bool Stands(const Identity&) { return true; }

  static void Tell(const Configuration& conf, const Identity&, Report& out) {
    for (std::size_t i = 0; i < conf.cyclicTimers.size(); ++i) {
      const CyclicTimer& timer = conf.cyclicTimers[i];
      out.Start("CTIMER").Add(i).Add(timer.week).Add(timer.start).Add(timer.stop);
      out.Add(timer.period).Add(timer.flag);
      out.Start("CTIMER.ACTION").Add(i).AddPlaces({&timer.actions});
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    for (CyclicTimer& timer : conf.cyclicTimers) {
      if (!make.Wanted()) continue;
      timer.period = static_cast<float>(make.Between(1, kWholeDay));
      make.Range(timer);
      timer.flag = make.Between(0, kFlags);
      timer.actions = make.ActionList();
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayAll({"CT0= 900,EQ= 0,ACT= 57 65",
                 "CT1= 60,START=8:00:00,STOP=20:00:00,WEEK=1111100,EQ= 1,ACT= 43"});
    if (demo.Self().Traits().modbus > 0) demo.Say("CT2= 600,EQ= 0,ACT= 70");
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("cyclic-timer", conf.cyclicTimers, visit, [&](const std::string& prefix, auto& t) {
      visit(prefix + "period", t.period);
      visit(prefix + "start", t.start);
      visit(prefix + "stop", t.stop);
      visit(prefix + "week", t.week);
      visit(prefix + "flag", t.flag);
      visit(prefix + "actions", t.actions);
    });
  }
};

}  // namespace

constinit const Block kCyclicTimerBlock = MakeBlock<CyclicTimers>();

}  // namespace ostrel::sim
