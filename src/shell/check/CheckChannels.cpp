#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>

#include "blocks/bus/ModbusBus.h"
#include "blocks/bus/ModbusChannels.h"
#include "blocks/expansion/ExpansionInputs.h"
#include "blocks/inputs/AnalogInputs.h"
#include "blocks/inputs/FlowMeters.h"
#include "shell/check/CheckRules.h"

namespace ostrel {
namespace {

// ---- Alarms of all kinds of channels

constexpr float kTrifle = 1e-5F;

/// A number of the file in words.
std::string InWords(float number) { return DecText(number); }

/// The level thresholds of all alarms, by section, channel and configuration.
class LevelTable {
 public:
  explicit LevelTable(const Examined& file) : conf_(file.Conf()) {
    for (const ConstField& field : file.Fields()) {
      const auto* const* number = std::get_if<const float*>(&field.value);
      if (!number) continue;
      Levels& levels = table_[{field.id.section, field.id.channel, field.id.slot.config}];
      if (field.id.word == "MINIMO") levels.minimum = **number;
      if (field.id.word == "MAXIMO") levels.maximum = **number;
      if (field.id.word == "HISTERESIS") levels.hysteresis = **number;
    }
  }

  struct Levels {
    float minimum = NAN, maximum = NAN, hysteresis = NAN;
  };

  /// The thresholds of an alarm. Those of a kind without levels are no numbers, and compare as
  /// nothing does.
  Levels Of(const AlarmPlace& place) const {
    // On a digital channel of the bus the same fields are times.
    if (place.section == &ModbusChannels::kSection && !conf_.Modbus[place.channel].ANALOG_MODE)
      return {};
    const auto found = table_.find({place.section, place.channel, place.config});
    return found == table_.end() ? Levels{} : found->second;
  }

 private:
  const DeviceConf& conf_;
  std::map<std::tuple<const SectionMeta*, int, int>, Levels> table_;
};

/// Why a channel raises no alarm whatever its alarm says; empty for one that may.
class SilentChannels {
 public:
  explicit SilentChannels(const Examined& file) : conf_(file.Conf()) {
    for (const ConstField& field : file.Fields()) {
      const auto* const* code = std::get_if<const std::int16_t*>(&field.value);
      // An analog expansion input is switched by its mode.
      if (!code || field.id.word != "INTERFAZ" || field.id.section == &ExpansionInputs::kAnalog)
        continue;
      if (**code == kInterfaceOff) off_[{field.id.section, field.id.channel}] = true;
    }
    for (int i = 0; i < FlowMeters::kChannels; ++i)
      if (conf_.Caudal[i].TIMEBASE == 0) off_[{&FlowMeters::kSection, i}] = true;
  }

  std::string Reason(const AlarmPlace& place) const {
    if (off_.contains({place.section, place.channel})) return "the channel is off";
    if (place.section != &ModbusChannels::kSection) return {};
    const ConfModbus& channel = conf_.Modbus[place.channel];
    if (ModbusChannels::IsOff(channel))
      return "the channel is off, having neither a multiplier nor a mask";
    if (conf_.ModbusBus.MASTER && channel.SLAVE == 0)
      return "the channel is never read, its slave address being 0";
    return {};
  }

 private:
  const DeviceConf& conf_;
  std::map<std::pair<const SectionMeta*, int>, bool> off_;
};

// ---- MODBUS

/// Runs `look` on each channel of the bus that is sent as one.
template <class Look>
void EachModbusChannel(const Examined& file, const Look& look) {
  const Receiver receiver{file.Model(), kEveryFeature};
  for (int c = 0; c < ModbusChannels::Count(receiver); ++c)
    if (const ConfModbus& channel = file.Conf().Modbus[c]; !ModbusChannels::IsOff(channel))
      look(c, channel);
}

constexpr int kMostSlaveAddress = 247;

bool IsSlaveAddress(int address) { return address >= 0 && address <= kMostSlaveAddress; }

// ---- Expansion inputs

/// Runs `look` on each expansion input that the model has.
template <class Look>
void EachInput(const Examined& file, const Look& look) {
  for (int i = 0; i < file.Model().ModuloCount; ++i) look(i, file.Conf().Modulo[i]);
}

bool IsWithin(int value, int last) { return value >= 0 && value <= last; }

}  // namespace

std::vector<Finding> WrongOrderOfThresholds(const Examined& file) {
  std::vector<Finding> found;
  const LevelTable table(file);
  VisitEnabledAlarms(file, [&](const AlarmPlace& place, const AlarmBlock&) {
    const auto levels = table.Of(place);
    if (levels.minimum > levels.maximum)
      found.push_back(AtAlarm(place, "MINIMO",
                              {"the minimum %1 lies above the maximum %2, so that every value is "
                               "in alarm: exchange them",
                               {InWords(levels.minimum), InWords(levels.maximum)}}));
  });
  return found;
}

std::vector<Finding> WideHysteresis(const Examined& file) {
  std::vector<Finding> found;
  const LevelTable table(file);
  VisitEnabledAlarms(file, [&](const AlarmPlace& place, const AlarmBlock&) {
    const auto levels = table.Of(place);
    const float band = levels.maximum - levels.minimum;
    // Decimals such as 1.3 and 1.2 lie a trifle off.
    if (band >= 0 && levels.hysteresis > band * (1 + kTrifle))
      found.push_back(AtAlarm(
          place, "HISTERESIS",
          {"the hysteresis %1 is larger than the band from %2 to %3, so that "
           "the alarm cannot end: make it smaller",
           {InWords(levels.hysteresis), InWords(levels.minimum), InWords(levels.maximum)}}));
  });
  return found;
}

std::vector<Finding> AlarmsOfSilentChannels(const Examined& file) {
  std::vector<Finding> found;
  const SilentChannels silent(file);
  VisitEnabledAlarms(file, [&](const AlarmPlace& place, const AlarmBlock&) {
    const std::string reason = silent.Reason(place);
    if (!reason.empty())
      found.push_back(
          AtAlarm(place, "HABIL",
                  Phrase("the alarm is enabled, but " + reason + ": set up one or the other")));
  });
  return found;
}

std::vector<Finding> ModbusOutOfRange(const Examined& file) {
  std::vector<Finding> found;
  const bool isTold = !file.Features() || Has(*file.Features(), Feature::ModbusSlave);
  if (file.Model().ModbusCount > 0 && isTold &&
      !IsSlaveAddress(file.Conf().ModbusBus.SLAVE_ADDRESS))
    found.push_back(AtField(ModbusBus::kSection, -1, "SLAVE_ADDRESS",
                            "an address on the bus is 0 to 247: choose another one"));
  EachModbusChannel(file, [&](int number, const ConfModbus& channel) {
    if (!IsSlaveAddress(channel.SLAVE))
      found.push_back(AtField(ModbusChannels::kSection, number, "SLAVE",
                              "an address on the bus is 0 to 247: choose another one"));
    if (channel.REGADD < 0)
      found.push_back(AtField(ModbusChannels::kSection, number, "REGADD",
                              "a register has no address below 0: choose another one"));
  });
  return found;
}

std::vector<Finding> OddBitRates(const Examined& file) {
  const std::int32_t rate = file.Conf().ModbusBus.BAUD;
  if (file.Model().ModbusCount <= 0 || std::ranges::count(kModbusBitRates, rate) > 0) return {};
  return {AtField(ModbusBus::kSection, -1, "BAUD",
                  {"%1 is no bit rate of the bus: choose 1200, 2400, 4800, 9600, 19200, 38400 or "
                   "57600",
                   {std::to_string(rate)}})};
}

std::vector<Finding> ModbusNotKept(const Examined& file) {
  std::vector<Finding> found;
  const auto find = [&](int number, std::string_view word, const char* sentence) {
    found.push_back(AtField(ModbusChannels::kSection, number, word, sentence));
  };
  EachModbusChannel(file, [&](int number, const ConfModbus& channel) {
    if (channel.ANALOG_MODE && channel.MULT <= 0)
      find(number, "MULT",
           "an analog channel whose multiplier is not above 0 reads back as a digital one: choose "
           "another multiplier");
    if (!channel.ANALOG_MODE && channel.MASCARA == 0 && !channel.NOMBRE.empty())
      find(number, "MASCARA",
           "a digital channel without a mask reads back as one that is off, and writing what was "
           "read ends it: choose a mask");
    if (!IsWithin(channel.TYPE, kRegisterFloat))
      find(number, "TYPE", "the register size is none of the three and is sent as 16 bits");
    const std::string* earlier = file.Document().Find(SectionName(ModbusChannels::kSection, number),
                                                      std::string(ModbusChannels::kEarlierSize));
    if (earlier && TextBool(*earlier))
      find(number, ModbusChannels::kEarlierSize,
           "an earlier program's mark of 32 bits is not taken over: choose the register size");
  });
  return found;
}

std::vector<Finding> SharedExpansionInputs(const Examined& file) {
  std::vector<Finding> found;
  EachInput(file, [&](int number, const ConfModulo& input) {
    if (input.MODO == kModeOff) return;
    const int first = ExpansionInputs::OtherUser(file.Conf(), {input.DIR, input.ENTRADA}, number);
    if (first >= 0 && first < number)
      found.push_back(AtField(
          ExpansionInputs::kFrame, number, "ENTRADA",
          {"module address %1, input %2 is that of expansion input %3, too: "
           "give each its own",
           {std::to_string(input.DIR), std::to_string(input.ENTRADA), std::to_string(first)}}));
  });
  return found;
}

std::vector<Finding> ExpansionOutOfRange(const Examined& file) {
  struct Bound {
    std::string_view word;
    std::int16_t ConfModulo::*member;
    int last;
  };
  constexpr std::array<Bound, 3> kBounds{{
      {"DIR", &ConfModulo::DIR, 15},
      {"ENTRADA", &ConfModulo::ENTRADA, 7},
      {"GRUPO", &ConfModulo::GRUPO, 15},
  }};
  std::vector<Finding> found;
  EachInput(file, [&](int number, const ConfModulo& input) {
    if (!IsWithin(input.MODO, kModeAnalog))
      found.push_back(AtField(ExpansionInputs::kFrame, number, "MODO",
                              "there is no such mode, and nothing is sent of the input: choose 0 "
                              "to 4"));
    if (input.MODO == kModeOff) return;
    for (const auto& [word, member, last] : kBounds)
      if (!IsWithin(input.*member, last))
        found.push_back(AtField(ExpansionInputs::kFrame, number, word,
                                {"%1 is not within 0 to %2: choose another one",
                                 {std::to_string(input.*member), std::to_string(last)}}));
  });
  return found;
}

std::vector<Finding> ExpansionWithoutInterface(const Examined& file) {
  std::vector<Finding> found;
  EachInput(file, [&](int number, const ConfModulo& input) {
    const bool isKnown = input.A.INTERFAZ == kInterfaceCurrent || input.A.INTERFAZ == kInterface10V;
    if (input.MODO == kModeAnalog && !isKnown)
      found.push_back(AtField(ExpansionInputs::kAnalog, number, "INTERFAZ",
                              "no interface is chosen, and the logger keeps the one that it has: "
                              "choose 1 for 4/20 mA or 3 for 0-10 V"));
  });
  return found;
}

}  // namespace ostrel
