#include "blocks/inputs/MathChannels.h"

#include "blocks/AlarmWire.h"
#include "blocks/inputs/InterfaceCodes.h"

namespace ostrel {

void MathChannels::Clear(DeviceConf& conf, const TargetProfile& profile, const Translation&) {
  for (int c = 0; c < profile.MathCount; ++c) {
    ConfMath& channel = conf.Math[c];
    channel.NOMBRE.clear();
    channel.UNIDAD.clear();
    channel.INTERFAZ = kInterfaceOff;
    channel.ECUACION.clear();
    ClearAlarms(channel.ALARM, ConfMath::kShape);
  }
}

const std::array<LineSection, 3> MathChannels::kLines{{
    {"MATH",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfMath& channel = conf.Math[line.Index()];
       line.Into(channel.NOMBRE);
       line.Into(channel.UNIDAD);
       line.Into(channel.ECUACION);
       const double reported = line.Number();
       if (reported == 0) channel.INTERFAZ = kInterfaceOff;
       if (reported == 1) channel.INTERFAZ = kInterfaceOn;
     }},
    {"MATH.ALM",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Math);
       ReadAlarm(line, cell);
     }},
    {"MATH.ACT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Math);
       ReadLevelActions(line, cell.common);
     }},
}};

void MathChannels::Compose(const DeviceConf& conf, const Receiver&, int channel,
                           StatementList& out) {
  const ConfMath& math = conf.Math[channel];
  if (math.INTERFAZ == kInterfaceOff)
    out.Add(Statement("DISMC").Digits(channel));
  else
    out.Add(Statement("MCCONF")
                .Digits(channel)
                .Text("=")
                .Text(math.NOMBRE)
                .Text(",UNIT=")
                .Text(math.UNIDAD)
                .Text(",EQ=")
                .Text(math.ECUACION));
  AddAlarms(out, "ALMM", channel, ConfMath::kShape, math.ALARM);
}

}  // namespace ostrel
