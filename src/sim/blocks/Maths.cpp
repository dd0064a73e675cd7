#include "sim/blocks/Maths.h"

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

MathChannel& MathOf(const Work& w) { return w.Channel(w.conf.maths, w.self.Traits().maths); }

void SetUpMath(const Work& w) {
  MathChannel& channel = MathOf(w);
  w.SetNames(channel);
  w.in.Expect(",EQ=");
  channel.equation = w.in.Text();
  channel.on = true;
  w.in.End();
}

struct Maths {
  static constexpr StatementRule kRules[] = {
      {"MCCONF", SetUpMath},
      {"DISMC", [](const Work& w) { Disable(w.in, MathOf(w)); }},
      {"+ALMM", [](const Work& w) { ReadLevelAlarm(w.in, MathOf(w).alarms); }},
      {"-ALMM", [](const Work& w) { RemoveAlarm(w.in, MathOf(w).alarms); }},
  };

  static bool Stands(const Identity& self) { return self.Traits().maths > 0 && self.Has(kMath); }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    for (int i = 0; i < self.Traits().maths; ++i) {
      const MathChannel& channel = conf.maths[static_cast<std::size_t>(i)];
      out.Start("MATH").Add(i).Add(channel.name).Add(channel.unit).Add(channel.equation);
      out.Add(channel.on ? 1 : 0);
      out.LevelAlarms("MATH", i, channel.alarms);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    constexpr std::string_view kEquations[] = {"Q0-Q1", "A0*2+A1/3", "(A0+A1)*0.5", "A1*A1", "C7"};
    for (int i = 0; i < make.Self().Traits().maths; ++i) {
      MathChannel& channel = conf.maths[static_cast<std::size_t>(i)];
      if (make.Wanted()) {
        channel.name = make.Text(19);
        channel.unit = make.Unit();
        channel.equation = make.Pick(kEquations);
        channel.on = true;
      }
      make.LevelAlarms(channel.alarms);
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayAll({"MCCONF0=Balance,UNIT=m\xB3/h,EQ=Q0-Q1",
                 "+ALMM0=Balance anormal,INDEX= 0,MAX= 15,MIN=-5,HIST= 1,P= 2,SREST,EQ= 0,"
                 "ACTHI= 80,ACTLO= 80,ACTNOM="});
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("math", conf.maths, visit, [&](const std::string& prefix, auto& channel) {
      visit(prefix + "name", channel.name);
      visit(prefix + "unit", channel.unit);
      visit(prefix + "equation", channel.equation);
      visit(prefix + "on", channel.on);
      VisitAlarms(prefix, channel.alarms, visit);
    });
  }
};

}  // namespace

constinit const Block kMathBlock = MakeBlock<Maths>();

}  // namespace ostrel::sim
