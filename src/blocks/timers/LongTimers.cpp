#include "blocks/timers/LongTimers.h"

#include <cmath>
#include <cstdlib>

#include "blocks/AlarmWire.h"

namespace ostrel {
namespace {

constexpr std::int32_t kSecondsPerDay = 86'400;

}  // namespace

void LongTimers::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int t = 0; t < kTimers; ++t) {
    conf.LTimer[t].HABIL = kFalse;
    conf.LTimer[t].PERIOD = 0;
  }
}

const std::array<LineSection, 2> LongTimers::kLines{{
    // What a logger holds beyond whole days is lost.
    {"LTIMER",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfLTimer& timer = conf.LTimer[line.Index()];
       const double seconds = line.Number();
       Assign(timer.PERIOD, std::trunc(seconds / kSecondsPerDay));
       timer.HABIL = Bool16(seconds >= 1);
     }},
    {"LTIMER.ACTION",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ReadActions(line, {&conf.LTimer[line.Index()].ACT});
     }},
}};

void LongTimers::Compose(const DeviceConf& conf, const Receiver&, int timer, StatementList& out) {
  const ConfLTimer& record = conf.LTimer[timer];
  if (!record.HABIL) return out.Add(Statement("-LT").Digits(timer));
  Statement statement("LT");
  statement.Digits(timer).Text("=");
  if (std::abs(int{record.PERIOD}) > kMostDays)
    return out.Fail(
        {LinkFault::Kind::PeriodTooLong, timer},
        statement.Num("", 1.0 * record.PERIOD * kSecondsPerDay).Actions(",ACT=", record.ACT));
  out.Add(statement.Num("", record.PERIOD * kSecondsPerDay).Actions(",ACT=", record.ACT));
}

}  // namespace ostrel
