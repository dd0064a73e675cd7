#include "blocks/bus/ModbusChannels.h"

#include "blocks/AlarmWire.h"

namespace ostrel {
namespace {

constexpr int kCleared = 4;
/// Constant, mask and negation on a line.
constexpr int kConstantFields = 3;

/// Channels whose firmware knows no constant have no persistence either.
Persistence PersistenceBy(std::int32_t features) {
  return Has(features, Feature::ModbusConstant) ? Persistence::Present : Persistence::Absent;
}

void ReadChannel(LineReader& line, DeviceConf& conf, const DeviceInfo& info) {
  ConfModbus& channel = conf.Modbus[line.Index()];
  line.Into(channel.NOMBRE);
  line.Into(channel.UNIDAD);
  line.Into(channel.SLAVE);
  line.Into(channel.REGADD);
  line.Into(channel.MULT);
  if (Has(info.Features, Feature::ModbusConstant)) {
    line.Into(channel.CONSTANTE);
    line.Into(channel.MASCARA);
    channel.NEGATE = Bool16(line.Number() != 0);
  } else {
    line.Skip(kConstantFields);
  }
  if (Has(info.Features, Feature::ModbusFloat))
    line.Into(channel.TYPE);
  else
    channel.TYPE = kRegister16Bits;
  channel.ANALOG_MODE = Bool16(channel.MULT > 0);
}

Statement ChannelStatement(const ConfModbus& channel, const Receiver& receiver, int number) {
  if (ModbusChannels::IsOff(channel)) return Statement("DISMB").Digits(number);
  Statement statement("MBCONF");
  statement.Digits(number).Text("=").Text(channel.NOMBRE);
  statement.Text(",UNIT=").Text(channel.UNIDAD);
  statement.Num(",SLAVE=", channel.SLAVE).Num(",REGADD=", channel.REGADD);
  if (receiver.Has(Feature::ModbusFloat))
    statement.TokenIf(channel.TYPE == kRegister32Bits, ",32BIT")
        .TokenIf(channel.TYPE == kRegisterFloat, ",FLOAT");
  const bool hasConstant = receiver.Has(Feature::ModbusConstant);
  if (hasConstant)
    statement.Num(",CONST=", channel.CONSTANTE)
        .Num(",MASK=", channel.MASCARA)
        .TokenIf(bool(channel.NEGATE), ",NEGATE");
  const bool isDigital = hasConstant && !channel.ANALOG_MODE;
  return statement.Text(",RATIO=").Text(isDigital ? "0" : DecText(channel.MULT));
}

}  // namespace

void ModbusChannels::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  for (int c = 0; c < kCleared; ++c) {
    ConfModbus& channel = conf.Modbus[c];
    channel.NOMBRE.clear();
    channel.UNIDAD.clear();
    channel.SLAVE = 0;
    channel.REGADD = 0;
    channel.TYPE = kRegister16Bits;
    channel.MULT = 1;
    channel.MASCARA = 0;
    channel.NEGATE = kFalse;
    auto& [alarm, limits] = channel.ALARM[0];
    ClearAlarm(alarm);
    limits.MINIMO = limits.MAXIMO = limits.HISTERESIS = 0;
  }
}

void ModbusChannels::Restore(DeviceConf& conf, const TargetProfile& profile,
                             const KeyReader& read) {
  const auto restore = [&](const FieldId& id, const FieldMeta& meta, auto& field) {
    const std::string section = SectionName(id);
    const bool isSize = id.word == kSize;
    if (isSize && TextBool(read(section, std::string(kEarlierSize)))) return;
    SetFieldText(FieldRef(&field), read(section, KeyName(id, meta.placeForm)));
  };
  Fields(conf, profile, restore);
}

const std::array<LineSection, 3> ModbusChannels::kLines{{
    {"MODBUS", ReadChannel},
    {"MODBUS.ALM",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo& info) {
       auto& cell = AlarmCell(line, conf.Modbus);
       ReadAlarm(line, cell, PersistenceBy(info.Features));
     }},
    {"MODBUS.ACT",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       auto& cell = AlarmCell(line, conf.Modbus);
       ReadLevelActions(line, cell.common);
     }},
}};

void ModbusChannels::Compose(const DeviceConf& conf, const Receiver& receiver, int channel,
                             StatementList& out) {
  const ConfModbus& record = conf.Modbus[channel];
  out.Add(ChannelStatement(record, receiver, channel));
  AddAlarms(out, "ALMMB", channel, ConfModbus::kShape, record.ALARM,
            PersistenceBy(receiver.features));
}

void ModbusChannels::AsSent(DeviceConf& read, const DeviceConf& sent, const Receiver& receiver) {
  const bool hasConstant = receiver.Has(Feature::ModbusConstant);
  for (int c = 0; c < kChannels; ++c) {
    const ConfModbus& from = sent.Modbus[c];
    ConfModbus& channel = read.Modbus[c];
    if (!hasConstant) channel.MASCARA = from.MASCARA;
    if (hasConstant && !from.ANALOG_MODE && channel.MULT == 0) channel.MULT = from.MULT;
  }
}

}  // namespace ostrel
