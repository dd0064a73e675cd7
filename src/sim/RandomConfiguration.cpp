#include <algorithm>
#include <cstddef>
#include <string_view>

#include "sim/Configuration.h"
#include "sim/Random.h"

namespace ostrel::sim {
namespace {

constexpr std::string_view kWords[] = {"Dep\xF3sito",
                                       "Bomba",
                                       "Caudal",
                                       "Presi\xF3n",
                                       "Nivel",
                                       "Intrusi\xF3n",
                                       "V\xE1lvula",
                                       "Ca\xF1o norte",
                                       "Red 400V~",
                                       "\x80 tarifa",
                                       "Pozo {2}",
                                       "T\xAA agua",
                                       "\xBFPuerta?",
                                       "100% = lleno",
                                       "Se\xF1"
                                       "al #3",
                                       "a;b",
                                       "Bater\xED"
                                       "a",
                                       "\xC1rea/"
                                       "Sector"};
constexpr std::string_view kUnits[] = {"m",
                                       "bar",
                                       "l/s",
                                       "m\xB3",
                                       "\xB0"
                                       "C",
                                       "%",
                                       "mA"};
constexpr int kNotifications[] = {0, kNotifySms, kNotifyVoice, kNotifyGprs,
                                  kNotifyVoice | kNotifyGprs};

/// Makes the parts of one configuration, each by a draw of its own.
class Maker {
 public:
  Maker(const Identity& self, std::uint64_t seed, double density)
      : self_(self), random_(seed), density_(density) {}

  Configuration Make() {
    Configuration conf;
    MakeGeneral(conf);
    const ModelTraits& traits = self_.Traits();
    for (Phone& phone : conf.phones) {
      if (Wanted()) phone = MakePhone();
    }
    // Phones are told without their slots, so the used slots come first.
    std::ranges::stable_partition(conf.phones, [](const Phone& p) { return !p.number.empty(); });
    for (int i = 0; i < traits.digitals; ++i)
      MakeDigital(conf.digitals[static_cast<std::size_t>(i)]);
    for (int i = 0; i < traits.analogs; ++i) {
      MakeAnalog(conf.analogs[static_cast<std::size_t>(i)]);
      MakeGroup(conf.groups[static_cast<std::size_t>(i)]);
    }
    for (Alarm& alarm : conf.flagAlarms) {
      if (!self_.Has(kFlagAlarms) || !Wanted()) continue;
      alarm = MakeAlarm();
      alarm.flag = 0;
    }
    return conf;
  }

 private:
  bool Wanted() { return random_.Chance(density_); }

  std::string Text(std::size_t longest) {
    std::string text(random_.Pick(kWords));
    while (random_.Chance(0.5)) text.append(" ").append(random_.Pick(kWords));
    text.resize(std::min(text.size(), longest));
    text.resize(text.find_last_not_of(' ') + 1);
    return text;
  }

  std::string Number() {
    std::string number = random_.Chance(0.5) ? "+34" : "";
    for (int i = 0; i < 9; ++i)
      number += static_cast<char>('0' + random_.Between(i == 0 ? 6 : 0, 9));
    return number;
  }

  /// Up to six digits, so that its decimal text on the wire is exact.
  float Value(int first, int last) {
    constexpr float kScales[] = {1, 10, 100, 1000};
    return static_cast<float>(random_.Between(first, last)) / random_.Pick(kScales);
  }

  void MakeGeneral(Configuration& conf) {
    conf.name = Text(50);
    conf.smsCentre = Number();
    conf.ownNumber = Number();
    conf.restoredText = Text(19);
    conf.resendSeconds = 60 * random_.Between(0, 999);
    conf.resendCount = random_.Between(0, 999);
    if (self_.Has(kSampleRate) && self_.model == Model::BQ) conf.sampleRate = random_.Between(0, 1);
  }

  /// Channels of the model that a mask can name, in the order of the lists that show them.
  std::vector<int> MaskChannels() const {
    const ModelTraits& traits = self_.Traits();
    std::vector<int> channels;
    const auto add = [&channels](int first, int count) {
      for (int i = 0; i < count; ++i) channels.push_back(first + i);
    };
    if (!self_.Has(kExtendedMasks)) {
      add(21, std::min(8, traits.digitals));
      add(0, traits.analogs);
      return channels;
    }
    constexpr int kUnspeakable = 176;  // programs take its name for another channel
    add(21, std::min(8, traits.digitals));
    if (traits.digitals > 8) channels.push_back(97);
    add(0, traits.analogs);
    add(12, traits.flows);
    add(29, traits.modbus);
    add(29, std::min(32, traits.modules));
    add(117, std::max(0, traits.modules - 32));
    add(105, traits.probes);
    add(61, kFlags);
    std::erase(channels, kUnspeakable);
    return channels;
  }

  Phone MakePhone() {
    Phone phone;
    phone.number = Number();
    phone.priority = random_.Between(0, 8);
    phone.privilege = random_.Between(0, 3);
    const std::vector<int> channels = MaskChannels();
    std::size_t used = 0;
    if (!Wanted()) return phone;
    const double share = random_.Chance(0.5) ? 0.1 : 0.6;
    for (const int channel : channels) {
      if (used < phone.channels.size() && random_.Chance(share)) phone.channels[used++] = channel;
    }
    if (used > 0) phone.maskMode = self_.Has(kExtendedMasks) ? random_.Between(1, 2) : 1;
    return phone;
  }

  Actions MakeActions() {
    Actions actions{};
    const int count = random_.Between(0, kActions);
    for (int i = 0; i < count; ++i) actions[static_cast<std::size_t>(i)] = random_.Between(1, 125);
    return actions;
  }

  Alarm MakeAlarm() {
    Alarm alarm;
    alarm.text = Text(49);
    alarm.stop = kWholeDay;
    alarm.week = kEveryDay;
    if (random_.Chance(0.5)) {
      alarm.start = random_.Between(0, kWholeDay - 1);
      alarm.stop = random_.Between(0, kWholeDay - 1);
      alarm.week = random_.Between(1, kEveryDay);
    }
    alarm.notify = random_.Pick(kNotifications) + 4 * random_.Between(0, 3);
    alarm.flag = random_.Between(0, kFlags);
    alarm.high = MakeActions();
    alarm.low = MakeActions();
    return alarm;
  }

  void MakeDigital(DigitalInput& input) {
    if (Wanted()) input.name = Text(19);
    input.normallyClosed = self_.Has(kNormallyClosed) && Wanted();
    for (Alarm& alarm : input.alarms) {
      if (!Wanted()) continue;
      alarm = MakeAlarm();
      alarm.persistence = Value(0, 9999);
      alarm.rearm = Value(0, 9999);
    }
  }

  void MakeAnalog(AnalogInput& input) {
    if (Wanted()) {
      constexpr Interface kKinds[] = {Interface::Current, Interface::Volts5, Interface::Volts10};
      AnalogScale& scale = input.scale;
      scale.name = Text(19);
      scale.unit = random_.Pick(kUnits);
      scale.interface = self_.model == Model::BQ ? Interface::Pressure : random_.Pick(kKinds);
      scale.signalStart = Value(0, 999);
      scale.signalEnd = Value(1000, 20'000);
      scale.valueAtStart = Value(-9999, 0);
      scale.valueAtEnd = Value(1, 999'999);
      scale.group = random_.Between(0, 3);
    }
    for (Alarm& alarm : input.alarms) {
      if (!Wanted()) continue;
      alarm = MakeAlarm();
      alarm.minimum = Value(-9999, 9999);
      alarm.maximum = Value(0, 999'999);
      alarm.hysteresis = Value(0, 999);
      if (self_.Has(kAnalogPersistence)) alarm.persistence = Value(0, 999);
      alarm.normal = MakeActions();
    }
  }

  void MakeGroup(PowerGroup& group) {
    if (!Wanted()) return;
    constexpr int kVolts[] = {0, 12, 24};
    group = {random_.Between(0, 3), random_.Pick(kVolts),
             static_cast<float>(random_.Between(0, 9999))};
  }

  Identity self_;
  Random random_;
  double density_;
};

}  // namespace

Configuration RandomConfiguration(Model model, std::uint32_t features, std::uint64_t seed,
                                  double density) {
  return Maker({model, features}, seed, density).Make();
}

}  // namespace ostrel::sim
