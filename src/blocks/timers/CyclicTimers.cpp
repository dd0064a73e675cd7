#include "blocks/timers/CyclicTimers.h"

#include "blocks/AlarmWire.h"

namespace ostrel {
namespace {

/// A logger has no mark for "enabled": a timer without a period or without a day is off.
void ReadCyclicTimer(LineReader& line, DeviceConf& conf, const DeviceInfo&) {
  ConfCTimer& timer = conf.CTimer[line.Index()];
  const double week = line.Number();
  const double start = line.Number();
  const double stop = line.Number();
  SetRange(timer.valid, start, stop, week);
  line.Into(timer.PERIOD);
  line.Into(timer.EQ);
  timer.HABIL = Bool16(timer.PERIOD > 0 && NamesDays(week));
}

}  // namespace

void CyclicTimers::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int t = 0; t < kTimers; ++t) {
    ConfCTimer& timer = conf.CTimer[t];
    timer.HABIL = kFalse;
    timer.PERIOD = 0;
    timer.valid = kAlways;
  }
}

const std::array<LineSection, 2> CyclicTimers::kLines{{
    {"CTIMER", ReadCyclicTimer},
    {"CTIMER.ACTION",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ReadActions(line, {&conf.CTimer[line.Index()].ACT});
     }},
}};

void CyclicTimers::Compose(const DeviceConf& conf, const Receiver&, int timer, StatementList& out) {
  const ConfCTimer& record = conf.CTimer[timer];
  if (!record.HABIL) return out.Add(Statement("-CT").Digits(timer));
  Statement statement("CT");
  statement.Digits(timer).Num("=", record.PERIOD);
  AddRange(statement, record.valid);
  out.Add(statement.Num(",EQ=", record.EQ).Actions(",ACT=", record.ACT));
}

}  // namespace ostrel
