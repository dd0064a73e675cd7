#include "blocks/inputs/Probes.h"

#include "blocks/AlarmWire.h"
#include "blocks/inputs/InterfaceCodes.h"
#include "platform/Digits.h"

namespace ostrel {
namespace {

constexpr std::size_t kOctetsOfHalf = 4;
constexpr std::size_t kOctetDigits = 3;
constexpr int kMostOctet = 255;

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

std::vector<int> OctetsOfHalf(std::string_view half) {
  if (half == kUnsetHalf) return std::vector<int>(kOctetsOfHalf, 0);
  std::vector<int> octets;
  for (std::size_t at = 0; at <= half.size();) {
    const std::string_view digits = half.substr(at, half.find('.', at) - at);
    const bool isPlain = digits.find_first_not_of("0123456789") == std::string_view::npos;
    if (digits.empty() || digits.size() > kOctetDigits || !isPlain) return {};
    octets.push_back(static_cast<int>(NumVal(digits)));
    if (octets.back() > kMostOctet) return {};
    at += digits.size() + 1;
  }
  return octets.size() == kOctetsOfHalf ? octets : std::vector<int>();
}

std::string WholeHalf(std::string_view half) {
  const std::vector<int> octets = OctetsOfHalf(half);
  if (octets.empty()) return std::string(half);
  std::string whole;
  for (const int octet : octets)
    whole.append(whole.empty() ? "" : ".").append(Padded(octet, kOctetDigits));
  return whole;
}

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

void Probes::AsSent(DeviceConf& read, const DeviceConf& sent, const Receiver&) {
  for (int c = 0; c < kChannels; ++c)
    for (std::string ConfOneWire::*half : {&ConfOneWire::ADDRESS1, &ConfOneWire::ADDRESS2})
      if (const std::string& from = sent.OneWire[c].*half; WholeHalf(from) == read.OneWire[c].*half)
        read.OneWire[c].*half = from;
}

}  // namespace ostrel
