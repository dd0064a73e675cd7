#include "blocks/timers/WeeklyTimers.h"

#include "blocks/AlarmWire.h"

namespace ostrel {

void WeeklyTimers::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int t = 0; t < kTimers; ++t) {
    ConfWTimer& timer = conf.WTimer[t];
    timer.HABIL = kFalse;
    timer.INICIO = {};
    timer.SEMANA = kAllDays;
  }
}

const std::array<LineSection, 2> WeeklyTimers::kLines{{
    // A timer without a day is off.
    {"WTIMER",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfWTimer& timer = conf.WTimer[line.Index()];
       const double week = line.Number();
       Assign(timer.SEMANA, week);
       SetTime(timer.INICIO, line.Number());
       timer.HABIL = Bool16(NamesDays(week));
     }},
    {"WTIMER.ACTION",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ReadActions(line, {&conf.WTimer[line.Index()].ACT});
     }},
}};

/// The days go as a text, although they come as a number.
void WeeklyTimers::Compose(const DeviceConf& conf, const Receiver&, int timer, StatementList& out) {
  const ConfWTimer& record = conf.WTimer[timer];
  if (!record.HABIL) return out.Add(Statement("-WT").Digits(timer));
  Statement statement("WT");
  statement.Digits(timer).Text("=").Text(TimeText(record.INICIO));
  statement.Text(",WEEK=").Text(WeekText(record.SEMANA));
  out.Add(statement.Actions(",ACT=", record.ACT));
}

}  // namespace ostrel
