#include "blocks/inputs/Probes.h"

#include "blocks/AlarmWire.h"
#include "blocks/inputs/InterfaceCodes.h"

namespace ostrel {
namespace {

constexpr std::string_view kUnsetHalf = "0";

/// The next four fields of a line, as they stand, with points between them.
std::string ReadHalf(LineReader& line) {
  std::string half = line.Text();
  for (int octet = 1; octet < 4; ++octet) half.append(".").append(line.Field());
  return half;
}

std::string_view KindToken(std::int16_t code) {
  if (code == kInterfaceTemperature) return ",1WTEMP";
  if (code == kInterfaceHumidity) return ",1WHUM";
  return {};
}

}  // namespace

void Probes::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int c = 0; c < kChannels; ++c) {
    ConfOneWire& probe = conf.OneWire[c];
    probe.NOMBRE.clear();
    probe.UNIDAD.clear();
    probe.INTERFAZ = kInterfaceOff;
    probe.ADDRESS1 = probe.ADDRESS2 = kUnsetHalf;
    ClearAlarms(probe.ALARM, ConfOneWire::kShape);
  }
}

const std::array<LineSection, 3> Probes::kLines{{
    {"ONEWIRE",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfOneWire& probe = conf.OneWire[line.Index()];
       line.Into(probe.NOMBRE);
       line.Into(probe.UNIDAD);
       const double mode = line.Number();
       if (mode == 0) probe.INTERFAZ = kInterfaceOff;
       if (mode == 1) probe.INTERFAZ = kInterfaceTemperature;
       if (mode == 2) probe.INTERFAZ = kInterfaceHumidity;
       probe.ADDRESS1 = ReadHalf(line);
       probe.ADDRESS2 = ReadHalf(line);
       probe.ID = Bool16(probe.ADDRESS1 != kNoIdentity || probe.ADDRESS2 != kNoIdentity);
     }},
    {"ONEWIRE.ALM",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.OneWire);
       ReadAlarm(line, cell);
     }},
    {"ONEWIRE.ACT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.OneWire);
       ReadLevelActions(line, cell.common);
     }},
}};

void Probes::Compose(const DeviceConf& conf, const Receiver&, int channel, StatementList& out) {
  const ConfOneWire& probe = conf.OneWire[channel];
  if (probe.INTERFAZ == kInterfaceOff)
    out.Add(Statement("DISONEW").Digits(channel));
  else
    out.Add(Statement("ONEWCONF")
                .Digits(channel)
                .Text("=")
                .Text(probe.NOMBRE)
                .Text(",UNIT=")
                .Text(probe.UNIDAD)
                .Text(",ONEWADD=")
                .Text(probe.ADDRESS1)
                .Text(".")
                .Text(probe.ADDRESS2)
                .Text(KindToken(probe.INTERFAZ)));
  AddAlarms(out, "ALMOW", channel, ConfOneWire::kShape, probe.ALARM);
}

}  // namespace ostrel
