#include "sim/LineComposer.h"

#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "sim/NumberText.h"

namespace ostrel::sim {
namespace {

/// Builds one record after the other: `Start` a key, then add its fields.
class Records {
 public:
  Records& Start(std::string_view key) {
    records_.emplace_back(key);
    return *this;
  }
  Records& Add(const std::string& text) {
    records_.back().append(1, ',').append(text);
    return *this;
  }
  template <class Number>
  requires(std::integral<Number> || std::same_as<Number, float>) Records& Add(Number value) {
    records_.back() += ',';
    AppendNumber(records_.back(), value);
    return *this;
  }
  Records& Add(const Alarm& alarm) {
    return Add(alarm.start).Add(alarm.stop).Add(alarm.week).Add(alarm.notify);
  }
  /// One number of each list for place 0, then for place 1 and so on.
  void AddPlaces(std::initializer_list<const Actions*> lists) {
    for (std::size_t place = 0; place < kActions; ++place) {
      for (const Actions* list : lists) Add((*list)[place]);
    }
  }
  std::vector<std::string> Take() { return std::move(records_); }

 private:
  std::vector<std::string> records_;
};

/// A mask as bits of firmware without extended masks: DI0 to DI7, then AI0 to AI3.
int MaskBits(const Phone& phone, const Identity& self) {
  if (phone.maskMode == 0) return self.Has(kNoMaskIsMinusOne) ? -1 : 65'535;
  int bits = 0;
  for (const int channel : phone.channels) {
    if (channel >= 21 && channel <= 28) bits |= 1 << (channel - 21);
    if (channel >= 0 && channel <= 3) bits |= 1 << (channel + 8);
  }
  return bits;
}

void AddGeneral(Records& out, const Configuration& conf, const Identity& self) {
  out.Start("DNAME").Add(conf.name);
  out.Start("SMC").Add(conf.smsCentre);
  out.Start("PTLF").Add(conf.ownNumber);
  out.Start("RENVT").Add(conf.resendSeconds);
  out.Start("RENVN").Add(conf.resendCount);
  out.Start("REST").Add(conf.restoredText);
  if (self.model == Model::BQ) out.Start("SRATE").Add(conf.sampleRate);
}

void AddPhones(Records& out, const Configuration& conf, const Identity& self) {
  const bool extended = self.Has(kExtendedMasks);
  for (std::size_t slot = 0; slot < conf.phones.size(); ++slot) {
    const Phone& phone = conf.phones[slot];
    out.Start("TLF").Add(slot).Add(phone.number).Add(phone.priority).Add(phone.privilege);
    out.Add(MaskBits(phone, self));
    if (!extended) continue;
    out.Add(phone.maskMode);
    for (const int channel : phone.channels) out.Add(channel);
  }
}

void AddDigital(Records& out, std::size_t index, const DigitalInput& input) {
  out.Start("DIGITAL").Add(index).Add(input.name).Add(input.normallyClosed ? 1 : 0);
  for (std::size_t k = 0; k < input.alarms.size(); ++k) {
    const Alarm& alarm = input.alarms[k];
    out.Start("DIGITAL.ALM").Add(index).Add(k).Add(alarm.text);
    out.Add(alarm.persistence).Add(alarm.rearm).Add(alarm).Add(alarm.flag);
    out.Start("DIGITAL.ACT").Add(index).Add(k).AddPlaces({&alarm.high, &alarm.low});
  }
}

void AddAnalog(Records& out, std::size_t index, const AnalogInput& input) {
  const AnalogScale& scale = input.scale;
  out.Start("ANALOG").Add(index).Add(scale.name).Add(scale.unit);
  out.Add(static_cast<int>(scale.interface)).Add(scale.group);
  out.Add(scale.signalStart).Add(scale.valueAtStart);
  out.Add(scale.signalEnd).Add(scale.valueAtEnd);
  for (std::size_t k = 0; k < input.alarms.size(); ++k) {
    const Alarm& alarm = input.alarms[k];
    out.Start("ANALOG.ALM").Add(index).Add(k).Add(alarm.text);
    out.Add(alarm.minimum).Add(alarm.maximum).Add(alarm.hysteresis);
    out.Add(alarm).Add(alarm.flag).Add(alarm.persistence);
    out.Start("ANALOG.ACT").Add(index).Add(k);
    out.AddPlaces({&alarm.high, &alarm.normal, &alarm.low});
  }
}

void AddGroup(Records& out, std::size_t index, const PowerGroup& group) {
  out.Start("GROUP").Add(index).Add(group.output).Add(group.volts).Add(group.period);
}

void AddFlag(Records& out, std::size_t index, const Alarm& alarm) {
  out.Start("FLAG.ALM").Add(index).Add(0).Add(alarm.text).Add(alarm);
  out.Start("FLAG.ACT").Add(index).Add(0).AddPlaces({&alarm.high, &alarm.low});
}

}  // namespace

std::vector<std::string> ConfigurationRecords(const Configuration& conf, const Identity& self) {
  Records out;
  const auto digitals = static_cast<std::size_t>(self.Traits().digitals);
  const auto analogs = static_cast<std::size_t>(self.Traits().analogs);
  AddGeneral(out, conf, self);
  AddPhones(out, conf, self);
  for (std::size_t i = 0; i < digitals; ++i) AddDigital(out, i, conf.digitals[i]);
  for (std::size_t i = 0; i < analogs; ++i) AddAnalog(out, i, conf.analogs[i]);
  for (std::size_t i = 0; i < analogs; ++i) AddGroup(out, i, conf.groups[i]);
  if (self.Has(kFlagAlarms)) {
    for (std::size_t i = 0; i < conf.flagAlarms.size(); ++i) AddFlag(out, i, conf.flagAlarms[i]);
  }
  return out.Take();
}

}  // namespace ostrel::sim
