#include "sim/demo/RandomParts.h"

#include <algorithm>
#include <string_view>

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

}  // namespace

std::string RandomParts::Text(std::size_t longest) {
  std::string text(Pick(kWords));
  while (Chance(0.5)) text.append(" ").append(Pick(kWords));
  text.resize(std::min(text.size(), longest));
  text.resize(text.find_last_not_of(' ') + 1);
  return text;
}

std::string RandomParts::Unit() { return std::string(Pick(kUnits)); }

std::string RandomParts::PhoneNumber() {
  std::string number = Chance(0.5) ? "+34" : "";
  for (int i = 0; i < 9; ++i) number += static_cast<char>('0' + Between(i == 0 ? 6 : 0, 9));
  return number;
}

float RandomParts::Value(int first, int last) {
  constexpr float kScales[] = {1, 10, 100, 1000};
  return static_cast<float>(Between(first, last)) / Pick(kScales);
}

Scale RandomParts::TwoPoints() {
  return {.signalStart = Value(0, 999),
          .signalEnd = Value(1000, 20'000),
          .valueAtStart = Value(-9999, 0),
          .valueAtEnd = Value(1, 999'999)};
}

Actions RandomParts::ActionList() {
  Actions actions{};
  const int count = Between(0, kActions);
  for (int i = 0; i < count; ++i) actions[static_cast<std::size_t>(i)] = Between(1, 125);
  return actions;
}

Alarm RandomParts::PlainAlarm() {
  Alarm alarm;
  alarm.text = Text(49);
  Range(alarm);
  alarm.notify =
      Pick(kNotifications) + kNotifyRestored * Between(0, 1) + kNotifyAgain * Between(0, 1);
  alarm.flag = Between(0, kFlags);
  alarm.high = ActionList();
  alarm.low = ActionList();
  return alarm;
}

void RandomParts::ContactAlarms(std::span<Alarm> row) {
  for (Alarm& alarm : row) {
    if (!Wanted()) continue;
    alarm = PlainAlarm();
    alarm.persistence = Value(0, 9999);
    alarm.rearm = Value(0, 9999);
  }
}

void RandomParts::LevelAlarms(std::span<Alarm> row) {
  for (Alarm& alarm : row) {
    if (!Wanted()) continue;
    alarm = PlainAlarm();
    alarm.minimum = Value(-9999, 9999);
    alarm.maximum = Value(0, 999'999);
    alarm.hysteresis = Value(0, 999);
    alarm.persistence = Value(0, 999);
    alarm.normal = ActionList();
  }
}

}  // namespace ostrel::sim
