#include "sim/blocks/Expansion.h"

#include <utility>

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

constexpr int kMostModule = 15;
constexpr int kMostInput = 7;
constexpr int kMostGroup = 15;

ExpansionInput& InputOf(const Work& w) {
  return w.Channel(w.conf.expansion, w.self.Traits().modules);
}

// ---- What is accepted

/// The input in a mode: what another mode held goes, its alarm too.
ExpansionInput& SwitchTo(const Work& w, ExpansionMode mode) {
  ExpansionInput& input = InputOf(w);
  ExpansionInput fresh;
  fresh.mode = mode;
  if (input.mode == mode) {
    fresh.interface = input.interface;
    fresh.alarms = std::move(input.alarms);
  }
  return input = std::move(fresh);
}

void ReadAddress(StatementCursor& in, ExpansionInput& input) {
  in.Expect(",ADRS=");
  input.module = in.Whole(0, kMostModule);
  in.Expect(",chanel=");
  input.input = in.Whole(0, kMostInput);
  in.Expect(",group=");
  input.group = in.Whole(0, kMostGroup);
}

void ReadRatio(StatementCursor& in, ExpansionInput& input) {
  in.Expect(",RATIO=");
  input.ratio = in.PlainDecimal();
  in.End();
}

void SetUpDigital(const Work& w) {
  ExpansionInput& input = SwitchTo(w, ExpansionMode::Digital);
  w.in.Expect("=");
  input.name = w.in.Text();
  ReadAddress(w.in, input);
  input.normallyClosed = w.in.HasToken(",NC");
  w.in.End();
}

void SetUpCounter(const Work& w) {
  ExpansionInput& input = SwitchTo(w, ExpansionMode::Counter);
  w.in.Expect("=");
  input.name = w.in.Text();
  ReadAddress(w.in, input);
  w.in.Expect(",UNIT=");
  input.unit = w.in.Text();
  ReadRatio(w.in, input);
}

void SetUpFlowInput(const Work& w) {
  ExpansionInput& input = SwitchTo(w, ExpansionMode::Flow);
  w.SetNames(input);
  ReadAddress(w.in, input);
  w.in.Expect(",TB=");
  input.timeBase = w.in.Whole(0, kMost16);
  w.in.Expect(",REGDAYMIN");
  ReadRatio(w.in, input);
}

void SetUpAnalogInput(const Work& w) {
  ExpansionInput& input = SwitchTo(w, ExpansionMode::Analog);
  w.SetNames(input);
  ReadAddress(w.in, input);
  // Without a word for the interface, the one in force stays.
  if (w.in.HasToken(",CURRENT"))
    input.interface = Interface::Current;
  else if (w.in.HasToken(",10V"))
    input.interface = Interface::Volts10;
  input.scale = w.in.TwoPoints();
  w.in.Expect(",GROUP=");
  if (w.in.Whole(0, kMostGroup) != input.group) w.in.Fail("two different groups");
  w.in.End();
}

/// The alarm of an input that is in a mode.
std::span<Alarm> AlarmIn(const Work& w, ExpansionMode mode) {
  ExpansionInput& input = InputOf(w);
  if (input.mode != mode) w.in.Fail("the input is in another mode");
  return input.alarms;
}

template <ExpansionMode mode>
void AddLevelAlarm(const Work& w) {
  ReadLevelAlarm(w.in, AlarmIn(w, mode));
}

template <ExpansionMode mode>
void TakeAlarmOut(const Work& w) {
  RemoveAlarm(w.in, AlarmIn(w, mode));
}

// ---- What is reported

void TellInput(int i, const ExpansionInput& input, Report& out) {
  constexpr std::string_view kLetters = ".DQCA";
  const std::string key = std::string("EXPINPUT.") + kLetters[static_cast<std::size_t>(input.mode)];
  out.Start(key).Add(i).Add(input.module).Add(input.input).Add(input.group);
  switch (input.mode) {
    case ExpansionMode::Off:
      return;
    case ExpansionMode::Digital:
      out.Add(input.normallyClosed ? 1 : 0).Add(input.name);
      return out.ContactAlarms(key, i, input.alarms);
    case ExpansionMode::Counter:
      out.Add(input.name).Add(input.unit).Add(input.ratio);
      return;
    case ExpansionMode::Flow:
      out.Add(input.name).Add(input.unit).Add(input.timeBase).Add(input.ratio);
      return out.LevelAlarms(key, i, input.alarms);
    case ExpansionMode::Analog:
      out.Add(input.name).Add(input.unit);
      out.Add(static_cast<int>(input.interface)).Add(input.scale);
      return out.LevelAlarms(key, i, input.alarms);
  }
}

void MakeUpInput(RandomParts& make, ExpansionInput& input) {
  constexpr ExpansionMode kModes[] = {ExpansionMode::Digital, ExpansionMode::Flow,
                                      ExpansionMode::Counter, ExpansionMode::Analog};
  constexpr Interface kInterfaces[] = {Interface::Current, Interface::Volts10};
  input.mode = make.Pick(kModes);
  input.module = make.Between(0, kMostModule);
  input.input = make.Between(0, kMostInput);
  input.group = make.Between(0, kMostGroup);
  input.name = make.Text(19);
  if (input.mode == ExpansionMode::Digital) {
    input.normallyClosed = make.Chance(0.5);
    return make.ContactAlarms(input.alarms);
  }
  input.unit = make.Unit();
  if (input.mode == ExpansionMode::Analog) {
    input.interface = make.Pick(kInterfaces);
    input.scale = make.TwoPoints();
  } else {
    input.ratio = make.Value(1, 9999);
  }
  if (input.mode == ExpansionMode::Flow) input.timeBase = make.Between(0, 3600);
  if (input.mode != ExpansionMode::Counter) make.LevelAlarms(input.alarms);
}

struct Expansion {
  static constexpr StatementRule kRules[] = {
      {"DISEXPINPUT",
       [](const Work& w) {
         InputOf(w) = {};
         w.in.End();
       }},
      {"EXPINPUTDCONF", SetUpDigital},
      {"EXPINPUTCCONF", SetUpCounter},
      {"EXPINPUTQCONF", SetUpFlowInput},
      {"EXPINPUTACONF", SetUpAnalogInput},
      {"+ALMEXPINPUTD",
       [](const Work& w) { ReadContactAlarm(w.in, AlarmIn(w, ExpansionMode::Digital)); }},
      {"-ALMEXPINPUTD", TakeAlarmOut<ExpansionMode::Digital>},
      {"+ALMEXPINPUTQ", AddLevelAlarm<ExpansionMode::Flow>},
      {"-ALMEXPINPUTQ", TakeAlarmOut<ExpansionMode::Flow>},
      {"+ALMEXPINPUTA", AddLevelAlarm<ExpansionMode::Analog>},
      {"-ALMEXPINPUTA", TakeAlarmOut<ExpansionMode::Analog>},
  };

  static bool Stands(const Identity& self) { return self.Traits().modules > 0; }

  /// An input that is off is not told at all.
  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    for (int i = 0; i < self.Traits().modules; ++i) {
      const ExpansionInput& input = conf.expansion[static_cast<std::size_t>(i)];
      if (input.mode != ExpansionMode::Off) TellInput(i, input, out);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    for (int i = 0; i < make.Self().Traits().modules; ++i) {
      if (make.Wanted()) MakeUpInput(make, conf.expansion[static_cast<std::size_t>(i)]);
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayAll(
        {"EXPINPUTDCONF0=Puerta caseta,ADRS= 0,chanel= 0,group= 0,NC",
         "+ALMEXPINPUTD0=Puerta abierta,INDEX= 0,PC= 5,PO= 5,SREST,EQ= 0,ACTCLOSE=,ACTOPEN= 80",
         "EXPINPUTCCONF1=Contador barrio alto,ADRS= 0,chanel= 1,group= 0,UNIT=m\xB3,RATIO=0.1",
         "EXPINPUTACONF2=Nivel pozo 3,UNIT=m,ADRS= 1,chanel= 0,group= 1,CURRENT,BSVAL= 4,"
         "FSVAL= 20,BSUNIT= 0,FSUNIT= 12,GROUP= 1",
         "+ALMEXPINPUTA2=Pozo 3 bajo,INDEX= 0,MAX= 11.5,MIN= 1,HIST= .2,P= 3,SREST,EQ= 0,"
         "ACTHI=,ACTLO= 80,ACTNOM= 80",
         "EXPINPUTQCONF33=Caudal pozo 3,UNIT=l/s,ADRS= 1,chanel= 2,group= 1,TB= 60,REGDAYMIN,"
         "RATIO=0.25"});
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("expansion", conf.expansion, visit, [&](const std::string& prefix, auto& input) {
      visit(prefix + "mode", input.mode, ExpansionMode::Analog);
      visit(prefix + "module", input.module);
      visit(prefix + "input", input.input);
      visit(prefix + "group", input.group);
      visit(prefix + "name", input.name);
      visit(prefix + "unit", input.unit);
      visit(prefix + "normally-closed", input.normallyClosed);
      visit(prefix + "time-base", input.timeBase);
      visit(prefix + "ratio", input.ratio, 1.0F);
      visit(prefix + "interface", input.interface, Interface::Volts10);
      VisitScale(prefix, input.scale, visit);
      VisitAlarms(prefix, input.alarms, visit);
    });
  }
};

}  // namespace

constinit const Block kExpansionBlock = MakeBlock<Expansion>();

}  // namespace ostrel::sim
