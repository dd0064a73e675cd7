#include "blocks/timers/MonthlyTimers.h"

#include "blocks/AlarmWire.h"

namespace ostrel {

void MonthlyTimers::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int t = 0; t < kTimers; ++t) {
    ConfMTimer& timer = conf.MTimer[t];
    timer.HABIL = kFalse;
    timer.INICIO = {};
    timer.MES = 0;
  }
}

const std::array<LineSection, 2> MonthlyTimers::kLines{{
    // A timer without a day is off.
    {"MTIMER",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfMTimer& timer = conf.MTimer[line.Index()];
       line.Into(timer.MES);
       SetTime(timer.INICIO, line.Number());
       timer.HABIL = Bool16(timer.MES > 0);
     }},
    {"MTIMER.ACTION",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ReadActions(line, {&conf.MTimer[line.Index()].ACT});
     }},
}};

void MonthlyTimers::Compose(const DeviceConf& conf, const Receiver&, int timer,
                            StatementList& out) {
  const ConfMTimer& record = conf.MTimer[timer];
  if (!record.HABIL) return out.Add(Statement("-MT").Digits(timer));
  Statement statement("MT");
  statement.Digits(timer).Text("=").Text(TimeText(record.INICIO));
  out.Add(statement.Num(",MASK=", record.MES).Actions(",ACT=", record.ACT));
}

}  // namespace ostrel
