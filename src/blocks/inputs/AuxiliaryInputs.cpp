#include "blocks/inputs/AuxiliaryInputs.h"

#include "blocks/AlarmWire.h"
#include "blocks/inputs/InterfaceCodes.h"

namespace ostrel {

void AuxiliaryInputs::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int c = 0; c < kChannels; ++c) {
    ConfAux& input = conf.Aux[c];
    input.NOMBRE.clear();
    input.UNIDAD.clear();
    input.INTERFAZ = kInterfaceOff;
    input.IE = input.FE = input.EqIE = input.EqFE = 0;
    ClearAlarms(input.ALARM, ConfAux::kShape);
  }
}

const std::array<LineSection, 3> AuxiliaryInputs::kLines{{
    {"AUX",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfAux& input = conf.Aux[line.Index()];
       line.Into(input.NOMBRE);
       line.Into(input.UNIDAD);
       const double mode = line.Number();
       if (mode == 0) input.INTERFAZ = kInterfaceOff;
       if (mode == 1) input.INTERFAZ = kInterfaceOn;
       line.Skip(1);
       line.Into(input.IE);
       line.Into(input.EqIE);
       line.Into(input.FE);
       line.Into(input.EqFE);
     }},
    {"AUX.ALM",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Aux);
       ReadAlarm(line, cell);
     }},
    {"AUX.ACT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Aux);
       ReadLevelActions(line, cell.common);
     }},
}};

void AuxiliaryInputs::Compose(const DeviceConf& conf, const Receiver&, int channel,
                              StatementList& out) {
  const ConfAux& input = conf.Aux[channel];
  if (input.INTERFAZ == kInterfaceOff)
    out.Add(Statement("DISAUX").Digits(channel));
  else
    out.Add(Statement("AUXCONF")
                .Digits(channel)
                .Text("=")
                .Text(input.NOMBRE)
                .Text(",UNIT=")
                .Text(input.UNIDAD)
                .Num(",BSVAL=", input.IE)
                .Num(",FSVAL=", input.FE)
                .Num(",BSUNIT=", input.EqIE)
                .Num(",FSUNIT=", input.EqFE));
  AddAlarms(out, "ALMAUX", channel, ConfAux::kShape, input.ALARM);
}

const std::array<LineSection, 1> OffMeasurement::kLines{{
    {"KTX",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfKatodex& off = conf.Katodex;
       line.Into(off.OFFTIME);
       line.Into(off.SAMPLERATE);
       line.Into(off.AUX1RATIO);
     }},
}};

}  // namespace ostrel
