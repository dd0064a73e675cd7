#include "sim/blocks/Flows.h"

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

FlowMeter& FlowOf(const Work& w) { return w.Channel(w.conf.flows, w.self.Traits().flows); }

void SetUpFlow(const Work& w) {
  FlowMeter& meter = FlowOf(w);
  w.SetNames(meter);
  w.in.Expect(",TB=");
  // Off is a plain 0 without the word behind it; a time base has its place for the sign.
  const bool off = w.in.HasToken("0");
  meter.timeBase = off ? 0 : w.in.Whole(0, kMost16);
  if (!off) w.in.Expect(",REGDAYMIN");
  w.in.Expect(",RATIO=");
  meter.ratio = w.in.PlainDecimal();
  w.in.End();
}

void SetTotalRatio(const Work& w) {
  FlowMeter& meter = FlowOf(w);
  w.in.Expect("=");
  meter.totalRatio = w.in.Decimal();
  w.in.End();
}

void SetSampleRate(const Work& w) {
  if (w.self.model != Model::BQ) w.in.Fail("unknown to this model");
  w.in.Expect("=");
  w.conf.sampleRate = w.in.Plain(0, 1);
  w.in.End();
}

struct Flows {
  static constexpr StatementRule kRules[] = {
      {"SAMPLERATE", SetSampleRate, kSampleRate},
      {"FLOWCONF", SetUpFlow},
      {"TOTALRATIO", SetTotalRatio, kTotalRatio},
      {"+ALMFLOW", [](const Work& w) { ReadLevelAlarm(w.in, FlowOf(w).alarms); }},
      {"-ALMFLOW", [](const Work& w) { RemoveAlarm(w.in, FlowOf(w).alarms); }},
  };

  static bool Stands(const Identity& self) { return self.Traits().flows > 0; }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    if (self.model == Model::BQ) out.Start("SRATE").Add(conf.sampleRate);
    for (int i = 0; i < self.Traits().flows; ++i) {
      const FlowMeter& meter = conf.flows[static_cast<std::size_t>(i)];
      out.Start("CAUDAL").Add(i).Add(meter.name).Add(meter.unit);
      out.Add(meter.timeBase).Add(meter.ratio);
      out.LevelAlarms("CAUDAL", i, meter.alarms);
      if (self.Has(kTotalRatio)) out.Start("TOTALRATIO").Add(i).Add(meter.totalRatio);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    constexpr float kWeights[] = {0.001F, 0.01F, 0.1F, 1, 10};
    const Identity& self = make.Self();
    if (self.model == Model::BQ && self.Has(kSampleRate)) conf.sampleRate = make.Between(0, 1);
    for (int i = 0; i < self.Traits().flows; ++i) {
      FlowMeter& meter = conf.flows[static_cast<std::size_t>(i)];
      if (make.Wanted()) {
        meter.name = make.Text(31);
        meter.unit = make.Unit();
        meter.timeBase = make.Between(1, 3600);
        meter.ratio = make.Value(1, 9999);
      }
      if (self.Has(kTotalRatio) && make.Wanted()) meter.totalRatio = make.Pick(kWeights);
      make.LevelAlarms(meter.alarms);
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayEach({"FLOWCONF?=Caudal entrada,UNIT=m\xB3/h,TB= 60,REGDAYMIN,RATIO=0.1",
                  "FLOWCONF?=Caudal salida,UNIT=m\xB3/h,TB= 60,REGDAYMIN,RATIO=0.1",
                  "FLOWCONF?=Riego parque,UNIT=l/min,TB= 30,REGDAYMIN,RATIO=1"},
                 demo.Self().Traits().flows);
    demo.SayAll({"TOTALRATIO0= .1", "TOTALRATIO1= .1",
                 "+ALMFLOW1=Posible fuga nocturna,INDEX= 0,MAX= 12,MIN= 0,HIST= 1,P= 5,SREST,"
                 "START=2:00:00,STOP=5:00:00,WEEK=1111111,EQ= 0,ACTHI= 80,ACTLO=,ACTNOM= 80"});
  }

  static void Visit(auto& conf, auto& visit) {
    visit("sample-rate", conf.sampleRate);
    VisitEach("flow", conf.flows, visit, [&](const std::string& prefix, auto& meter) {
      visit(prefix + "name", meter.name);
      visit(prefix + "unit", meter.unit);
      visit(prefix + "time-base", meter.timeBase);
      visit(prefix + "ratio", meter.ratio, 1.0F);
      visit(prefix + "total-ratio", meter.totalRatio, 1.0F);
      VisitAlarms(prefix, meter.alarms, visit);
    });
  }
};

}  // namespace

constinit const Block kFlowBlock = MakeBlock<Flows>();

}  // namespace ostrel::sim
