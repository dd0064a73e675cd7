#include "sim/blocks/Analogs.h"

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

AnalogInput& AnalogOf(const Work& w) { return w.Channel(w.conf.analogs, w.self.Traits().analogs); }

void SetUpAnalog(const Work& w) {
  AnalogInput& input = AnalogOf(w);
  w.SetNames(input);
  // Without a word for the interface, the one in force stays.
  if (w.in.HasToken(",CURRENT"))
    input.interface = Interface::Current;
  else if (w.in.HasToken(",5V"))
    input.interface = Interface::Volts5;
  else if (w.in.HasToken(",10V"))
    input.interface = Interface::Volts10;
  else if (w.in.HasToken(",PRESSURE"))
    input.interface = Interface::Pressure;
  input.scale = w.in.TwoPoints();
  w.in.Expect(",GROUP=");
  input.group = w.in.Whole(0, kAnalogs - 1);
  w.in.End();
}

void ReadAnalogAlarm(const Work& w) {
  const auto persistence =
      w.self.Has(kAnalogPersistence) ? Persistence::Told : Persistence::Unknown;
  ReadLevelAlarm(w.in, AnalogOf(w).alarms, persistence);
}

struct Analogs {
  static constexpr StatementRule kRules[] = {
      {"AICONF", SetUpAnalog},
      {"DISAI", [](const Work& w) { Disable(w.in, AnalogOf(w)); }},
      {"+ALMA", ReadAnalogAlarm},
      {"-ALMA", [](const Work& w) { RemoveAlarm(w.in, AnalogOf(w).alarms); }},
  };

  static bool Stands(const Identity& self) { return self.Traits().analogs > 0; }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    for (int i = 0; i < self.Traits().analogs; ++i) {
      const AnalogInput& input = conf.analogs[static_cast<std::size_t>(i)];
      out.Start("ANALOG").Add(i).Add(input.name).Add(input.unit);
      out.Add(static_cast<int>(input.interface)).Add(input.group).Add(input.scale);
      out.LevelAlarms("ANALOG", i, input.alarms);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    const Identity& self = make.Self();
    for (int i = 0; i < self.Traits().analogs; ++i) {
      AnalogInput& input = conf.analogs[static_cast<std::size_t>(i)];
      if (make.Wanted()) {
        constexpr Interface kKinds[] = {Interface::Current, Interface::Volts5, Interface::Volts10};
        input.name = make.Text(19);
        input.unit = make.Unit();
        input.interface = self.model == Model::BQ ? Interface::Pressure : make.Pick(kKinds);
        input.scale = make.TwoPoints();
        input.group = make.Between(0, kAnalogs - 1);
      }
      make.LevelAlarms(input.alarms);
      if (self.Has(kAnalogPersistence)) continue;
      for (Alarm& alarm : input.alarms) alarm.persistence = 0;
    }
  }

  static void Demonstrate(Demonstration& demo) {
    if (demo.Self().model == Model::BQ) {
      demo.Say(
          "AICONF0=Presi\xF3n red,UNIT=bar,PRESSURE,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 10,"
          "GROUP= 0");
    } else {
      demo.SayEach({"AICONF?=Nivel dep\xF3sito,UNIT=m,CURRENT,BSVAL= 4,FSVAL= 20,BSUNIT= 0,"
                    "FSUNIT= 6.5,GROUP= 0",
                    "AICONF?=Presi\xF3n salida,UNIT=bar,CURRENT,BSVAL= 4,FSVAL= 20,BSUNIT= 0,"
                    "FSUNIT= 16,GROUP= 0",
                    "AICONF?=Cloro libre,UNIT=mg/l,CURRENT,BSVAL= 4,FSVAL= 20,BSUNIT= 0,"
                    "FSUNIT= 2,GROUP= 1",
                    "AICONF?=Turbidez,UNIT=NTU,10V,BSVAL= 0,FSVAL= 10,BSUNIT= 0,FSUNIT= 100,"
                    "GROUP= 1"},
                   demo.Self().Traits().analogs);
    }
    demo.Say(
        "+ALMA0=Nivel o presi\xF3n fuera de rango,INDEX= 0,MAX= 6.2,MIN= .8,HIST= .1,P= 3,SREST,"
        "EQ= 0,ACTHI= 80,ACTLO= 80 43,ACTNOM= 80");
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("analog", conf.analogs, visit, [&](const std::string& prefix, auto& input) {
      visit(prefix + "name", input.name);
      visit(prefix + "unit", input.unit);
      visit(prefix + "interface", input.interface, Interface::Pressure);
      VisitScale(prefix, input.scale, visit);
      visit(prefix + "group", input.group);
      VisitAlarms(prefix, input.alarms, visit);
    });
  }
};

}  // namespace

constinit const Block kAnalogBlock = MakeBlock<Analogs>();

}  // namespace ostrel::sim
