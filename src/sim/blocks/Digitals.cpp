#include "sim/blocks/Digitals.h"

#include <string_view>

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

DigitalInput& DigitalOf(const Work& w) {
  return w.Channel(w.conf.digitals, w.self.Traits().digitals);
}

void NameDigital(const Work& w) {
  DigitalInput& input = DigitalOf(w);
  w.in.Expect("=");
  input.name = w.in.Text();
  if (w.self.Has(kNormallyClosed)) input.normallyClosed = w.in.HasToken(",NC");
  w.in.End();
}

struct Digitals {
  static constexpr StatementRule kRules[] = {
      {"DINAME", NameDigital},
      {"+ALMD", [](const Work& w) { ReadContactAlarm(w.in, DigitalOf(w).alarms); }},
      {"-ALMD", [](const Work& w) { RemoveAlarm(w.in, DigitalOf(w).alarms); }},
  };

  static bool Stands(const Identity& self) { return self.Traits().digitals > 0; }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    for (int i = 0; i < self.Traits().digitals; ++i) {
      const DigitalInput& input = conf.digitals[static_cast<std::size_t>(i)];
      out.Start("DIGITAL").Add(i).Add(input.name).Add(input.normallyClosed ? 1 : 0);
      out.ContactAlarms("DIGITAL", i, input.alarms);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    for (int i = 0; i < make.Self().Traits().digitals; ++i) {
      DigitalInput& input = conf.digitals[static_cast<std::size_t>(i)];
      if (make.Wanted()) input.name = make.Text(19);
      input.normallyClosed = make.Self().Has(kNormallyClosed) && make.Wanted();
      make.ContactAlarms(input.alarms);
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayEach({"DINAME?=Boya m\xE1xima", "DINAME?=Boya m\xEDnima", "DINAME?=Bomba 1 marcha",
                  "DINAME?=Bomba 1 t\xE9rmico", "DINAME?=Intrusi\xF3n", "DINAME?=Bomba 2 marcha",
                  "DINAME?=Bomba 2 t\xE9rmico", "DINAME?=Red 230V", "DINAME?=Fallo red"},
                 demo.Self().Traits().digitals);
    demo.SayAll(
        {"+ALMD0=Dep\xF3sito lleno,INDEX= 0,PC= 5,PO= 5,SREST,RING,EQ= 0,ACTCLOSE= 80,ACTOPEN=",
         "+ALMD1=Dep\xF3sito vac\xEDo,INDEX= 0,PC= 5,PO= 10,SREST,RESEND,RING,EQ= 0,"
         "ACTCLOSE= 80 43,ACTOPEN= 80"});
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("digital", conf.digitals, visit, [&](const std::string& prefix, auto& input) {
      visit(prefix + "name", input.name);
      visit(prefix + "normally-closed", input.normallyClosed);
      VisitAlarms(prefix, input.alarms, visit);
    });
  }
};

}  // namespace

constinit const Block kDigitalBlock = MakeBlock<Digitals>();

}  // namespace ostrel::sim
