#include "sim/blocks/Flags.h"

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"

namespace ostrel::sim {
namespace {

std::span<Alarm> FlagAlarmOf(const Work& w) {
  return std::span(&w.Channel(w.conf.flagAlarms, kFlags), 1);
}

struct Flags {
  static constexpr StatementRule kRules[] = {
      {"+ALMF", [](const Work& w) { ReadFlagAlarm(w.in, FlagAlarmOf(w)); }},
      {"-ALMF", [](const Work& w) { RemoveAlarm(w.in, FlagAlarmOf(w)); }},
  };

  static bool Stands(const Identity& self) { return self.Has(kFlagAlarms); }

  static void Tell(const Configuration& conf, const Identity&, Report& out) {
    for (std::size_t i = 0; i < conf.flagAlarms.size(); ++i) {
      const Alarm& alarm = conf.flagAlarms[i];
      out.Start("FLAG.ALM").Add(i).Add(0).Add(alarm.text).AddRange(alarm);
      out.Start("FLAG.ACT").Add(i).Add(0).AddPlaces({&alarm.high, &alarm.low});
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    for (Alarm& alarm : conf.flagAlarms) {
      if (!make.Wanted()) continue;
      alarm = make.PlainAlarm();
      alarm.flag = 0;
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.Say(
        "+ALMF0=Bombeo en hora punta,INDEX= 0,START=8:00:00,STOP=22:00:00,WEEK=1111100,ACTHI= 80,"
        "ACTLO=");
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("flag", conf.flagAlarms, visit,
              [&](const std::string& prefix, auto& alarm) { VisitAlarm(prefix, alarm, visit); });
  }
};

}  // namespace

constinit const Block kFlagBlock = MakeBlock<Flags>();

}  // namespace ostrel::sim
