#include "blocks/inputs/DigitalInputs.h"

#include "blocks/AlarmWire.h"

namespace ostrel {

void DigitalInputs::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int c = 0; c < kChannels; ++c) {
    ConfDigital& input = conf.Digital[c];
    input.NOMBRE.clear();
    input.NC = kFalse;
    ClearAlarms(input.ALARM, ConfDigital::kShape);
  }
}

const std::array<LineSection, 3> DigitalInputs::kLines{{
    {"DIGITAL",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfDigital& input = conf.Digital[line.Index()];
       line.Into(input.NOMBRE);
       input.NC = Bool16(line.Number() != 0);
     }},
    {"DIGITAL.ALM",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Digital);
       ReadAlarm(line, cell);
     }},
    {"DIGITAL.ACT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Digital);
       ReadContactActions(line, cell.common);
     }},
}};

void DigitalInputs::Compose(const DeviceConf& conf, const Receiver& receiver, int channel,
                            StatementList& out) {
  const ConfDigital& input = conf.Digital[channel];
  out.Add(Statement("DINAME")
              .Digits(channel)
              .Text("=")
              .Text(input.NOMBRE)
              .TokenIf(receiver.Has(Feature::NormallyClosed) && input.NC, ",NC"));
  AddAlarms(out, "ALMD", channel, ConfDigital::kShape, input.ALARM);
}

}  // namespace ostrel
