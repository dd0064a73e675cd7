#include "sim/blocks/Auxiliaries.h"

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

AuxiliaryInput& AuxiliaryOf(const Work& w) {
  return w.Channel(w.conf.auxiliaries, w.self.Traits().aux);
}

void SetUpAuxiliary(const Work& w) {
  AuxiliaryInput& input = AuxiliaryOf(w);
  w.SetNames(input);
  input.scale = w.in.TwoPoints();
  input.on = true;
  w.in.End();
}

struct Auxiliaries {
  static constexpr StatementRule kRules[] = {
      {"AUXCONF", SetUpAuxiliary},
      {"DISAUX", [](const Work& w) { Disable(w.in, AuxiliaryOf(w)); }},
      {"+ALMAUX", [](const Work& w) { ReadLevelAlarm(w.in, AuxiliaryOf(w).alarms); }},
      {"-ALMAUX", [](const Work& w) { RemoveAlarm(w.in, AuxiliaryOf(w).alarms); }},
  };

  static bool Stands(const Identity& self) { return self.Traits().aux > 0; }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    for (int i = 0; i < self.Traits().aux; ++i) {
      const AuxiliaryInput& input = conf.auxiliaries[static_cast<std::size_t>(i)];
      out.Start("AUX").Add(i).Add(input.name).Add(input.unit).Add(input.on ? 1 : 0);
      out.Add("").Add(input.scale);  // a field that nobody uses stands before the scale
      out.LevelAlarms("AUX", i, input.alarms);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    for (int i = 0; i < make.Self().Traits().aux; ++i) {
      AuxiliaryInput& input = conf.auxiliaries[static_cast<std::size_t>(i)];
      if (make.Wanted()) {
        input.name = make.Text(19);
        input.unit = make.Unit();
        input.on = true;
        input.scale = make.TwoPoints();
      }
      make.LevelAlarms(input.alarms);
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayAll({"AUXCONF0=Tensi\xF3n rectificador,UNIT=V,BSVAL= 0,FSVAL= 15,BSUNIT= 0,FSUNIT= 15",
                 "AUXCONF1=Corriente,UNIT=A,BSVAL= 0,FSVAL= 150,BSUNIT= 0,FSUNIT= 30",
                 "+ALMAUX0=Rectificador sin tensi\xF3n,INDEX= 0,MAX= 14,MIN= 1,HIST= .5,P= 2,"
                 "SREST,EQ= 0,ACTHI=,ACTLO= 80,ACTNOM= 80"});
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("aux", conf.auxiliaries, visit, [&](const std::string& prefix, auto& input) {
      visit(prefix + "name", input.name);
      visit(prefix + "unit", input.unit);
      visit(prefix + "on", input.on);
      VisitScale(prefix, input.scale, visit);
      VisitAlarms(prefix, input.alarms, visit);
    });
  }
};

}  // namespace

constinit const Block kAuxiliaryBlock = MakeBlock<Auxiliaries>();

}  // namespace ostrel::sim
