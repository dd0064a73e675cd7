#include "blocks/inputs/FlagAlarms.h"

#include "blocks/AlarmWire.h"

namespace ostrel {

void FlagAlarms::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int f = 0; f < kChannels; ++f) ClearAlarms(conf.Flag[f].ALARM, ConfFlag::kShape);
}

const std::array<LineSection, 2> FlagAlarms::kLines{{
    {"FLAG.ALM",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Flag);
       ReadAlarm(line, cell);
     }},
    {"FLAG.ACT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Flag);
       ReadContactActions(line, cell.common);
     }},
}};

void FlagAlarms::Compose(const DeviceConf& conf, const Receiver&, int flag, StatementList& out) {
  AddAlarms(out, "ALMF", flag, ConfFlag::kShape, conf.Flag[flag].ALARM);
}

}  // namespace ostrel
