#include "blocks/inputs/AnalogInputs.h"

#include "blocks/AlarmWire.h"

namespace ostrel {
namespace {

/// An interface as a line reports it, as the model keeps it, and its word in a statement.
struct InterfaceCode {
  int reported;
  std::int16_t code;
  std::string_view token;
};

constexpr std::array<InterfaceCode, 5> kInterfaces{{
    {0, kInterfaceOff, ""},
    {1, kInterfaceCurrent, ",CURRENT"},
    {2, kInterface5V, ",5V"},
    {3, kInterface10V, ",10V"},
    {4, kInterfacePressure, ",PRESSURE"},
}};

std::string_view InterfaceToken(std::int16_t code) {
  for (const InterfaceCode& known : kInterfaces)
    if (known.code == code) return known.token;
  return {};
}

}  // namespace

void AnalogInputs::Clear(DeviceConf& conf, const TargetProfile& profile,
                         const Translation& translate) {
  for (int c = 0; c < kChannels; ++c) {
    ConfAnalog& input = conf.Analog[c];
    input.NOMBRE.clear();
    input.UNIDAD.clear();
    input.INTERFAZ = kInterfaceOff;
    input.IE = input.FE = input.EqIE = input.EqFE = 0;
    input.GRUPO = 0;
    ClearAlarms(input.ALARM, ConfAnalog::kShape);
  }
  if (!profile.IsBQ) return;
  conf.Analog[0].EqFE = 10;
  conf.Analog[0].UNIDAD = translate("bar");
}

const std::array<LineSection, 3> AnalogInputs::kLines{{
    {"ANALOG",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfAnalog& input = conf.Analog[line.Index()];
       line.Into(input.NOMBRE);
       line.Into(input.UNIDAD);
       const double reported = line.Number();
       for (const InterfaceCode& known : kInterfaces)
         if (known.reported == reported) input.INTERFAZ = known.code;
       line.Into(input.GRUPO);
       line.Into(input.IE);
       line.Into(input.EqIE);
       line.Into(input.FE);
       line.Into(input.EqFE);
     }},
    {"ANALOG.ALM",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Analog);
       ReadAlarm(line, cell);
     }},
    {"ANALOG.ACT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Analog);
       ReadLevelActions(line, cell.common);
     }},
}};

void AnalogInputs::Compose(const DeviceConf& conf, const Receiver& receiver, int channel,
                           StatementList& out) {
  const ConfAnalog& input = conf.Analog[channel];
  if (input.INTERFAZ == kInterfaceOff)
    out.Add(Statement("DISAI").Digits(channel));
  else
    out.Add(Statement("AICONF")
                .Digits(channel)
                .Text("=")
                .Text(input.NOMBRE)
                .Text(",UNIT=")
                .Text(input.UNIDAD)
                .Text(InterfaceToken(input.INTERFAZ))
                .Num(",BSVAL=", input.IE)
                .Num(",FSVAL=", input.FE)
                .Num(",BSUNIT=", input.EqIE)
                .Num(",FSUNIT=", input.EqFE)
                .Num(",GROUP=", input.GRUPO));
  AddAlarms(out, "ALMA", channel, ConfAnalog::kShape, input.ALARM,
            receiver.Has(Feature::AnalogPersistence) ? Persistence::Present : Persistence::Absent);
}

void AnalogGroups::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int group = 0; group < kGroups; ++group) conf.Grupo[group] = {};
}

const std::array<LineSection, 1> AnalogGroups::kLines{{
    {"GROUP",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfGrupo& group = conf.Grupo[line.Index()];
       line.Into(group.SALIDA);
       line.Into(group.VOLTAJE);
       line.Into(group.PERIOD);
     }},
}};

void AnalogGroups::Compose(const DeviceConf& conf, const Receiver&, int group, StatementList& out) {
  const ConfGrupo& power = conf.Grupo[group];
  out.Add(Statement("AGRP")
              .Digits(group)
              .Num("=", power.SALIDA)
              .Num(",T=", power.PERIOD)
              .Num(",V=", power.VOLTAJE));
}

}  // namespace ostrel
