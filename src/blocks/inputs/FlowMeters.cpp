#include "blocks/inputs/FlowMeters.h"

#include "blocks/AlarmWire.h"
#include "blocks/inputs/InterfaceCodes.h"

namespace ostrel {

void FlowMeters::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int c = 0; c < kChannels; ++c) {
    ConfCaudal& meter = conf.Caudal[c];
    meter.NOMBRE.clear();
    meter.UNIDAD.clear();
    meter.INTERFAZ = kInterfaceOff;
    meter.RATIO = 1;
    meter.TIMEBASE = 0;
    for (int config = 0; config < ConfCaudal::kShape.configs; ++config) {
      auto& [alarm, limits] = meter.ALARM[config];
      ClearAlarm(alarm);
      limits = {.PERSISTENCIA = limits.PERSISTENCIA};
    }
  }
}

const std::array<LineSection, 3> FlowMeters::kLines{{
    {"CAUDAL",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfCaudal& meter = conf.Caudal[line.Index()];
       line.Into(meter.NOMBRE);
       line.Into(meter.UNIDAD);
       line.Into(meter.TIMEBASE);
       line.Into(meter.RATIO);
       // A logger has no other sign that a meter is off.
       meter.INTERFAZ = meter.TIMEBASE != 0 ? kInterfaceOn : kInterfaceOff;
     }},
    {"CAUDAL.ALM",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Caudal);
       ReadAlarm(line, cell);
     }},
    {"CAUDAL.ACT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Caudal);
       ReadLevelActions(line, cell.common);
     }},
}};

void FlowMeters::Compose(const DeviceConf& conf, const Receiver& receiver, int channel,
                         StatementList& out) {
  const ConfCaudal& meter = conf.Caudal[channel];
  Statement setUp("FLOWCONF");
  setUp.Digits(channel).Text("=").Text(meter.NOMBRE).Text(",UNIT=").Text(meter.UNIDAD);
  if (meter.INTERFAZ == kInterfaceOff)
    setUp.Text(",TB=0");
  else
    setUp.Num(",TB=", meter.TIMEBASE).Text(",REGDAYMIN");
  // The one number of a statement without a place for the sign.
  out.Add(setUp.Text(",RATIO=").Text(DecText(meter.RATIO)));
  if (receiver.Has(Feature::TotalRatio))
    out.Add(Statement("TOTALRATIO").Digits(channel).Num("=", meter.TOTALRATIO));
  AddAlarms(out, "ALMFLOW", channel, ConfCaudal::kShape, meter.ALARM);
}

}  // namespace ostrel
