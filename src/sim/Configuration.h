#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "sim/Model.h"

namespace ostrel::sim {

// What a logger keeps. Texts are octets of code page 1252, as they came on the wire. Every array
// has room for the largest model; what a model lacks keeps its default.

inline constexpr int kPhones = 20;
inline constexpr int kMaskPlaces = 16;
inline constexpr int kNoChannel = 255;
inline constexpr int kDigitals = 9;
inline constexpr int kAnalogs = 4;
inline constexpr int kFlags = 16;
inline constexpr int kAlarms = 4;  ///< alarm configurations of a channel
inline constexpr int kActions = 8;
inline constexpr int kWholeDay = 86'400;
inline constexpr int kEveryDay = 127;

/// Bits of `Alarm::notify`. A voice call brings its SMS along, so it needs no SMS bit.
enum Notify : int {
  kNotifySms = 1,
  kNotifyVoice = 2,
  kNotifyRestored = 4,
  kNotifyAgain = 8,
  kNotifyGprs = 16
};

/// Action numbers in the order of running; 0 is an empty place.
using Actions = std::array<int, kActions>;

/// One alarm of any kind of channel; a kind leaves what it lacks at its default. It is off while
/// its week is empty.
struct Alarm {
  std::string text;
  float minimum = 0;
  float maximum = 0;
  float hysteresis = 0;
  float persistence = 0;  ///< on a digital input that of closing
  float rearm = 0;        ///< on a digital input the persistence of opening
  int start = 0;          ///< seconds since midnight
  int stop = 0;           ///< seconds since midnight; 86400 is the end of the day
  int week = 0;           ///< bit 0 is Monday
  int notify = 0;         ///< sum of `Notify` bits
  int flag = 0;           ///< 0 always, else flag F(n-1)
  Actions high{};         ///< on a digital input those of closing
  Actions low{};          ///< on a digital input those of opening
  Actions normal{};

  bool operator==(const Alarm&) const = default;
};

using AlarmRow = std::array<Alarm, kAlarms>;

/// The places of a mask, all empty.
constexpr std::array<int, kMaskPlaces> NoChannels() {
  std::array<int, kMaskPlaces> places{};
  places.fill(kNoChannel);
  return places;
}

struct Phone {
  std::string number;  ///< empty in a free slot
  int priority = 0;    ///< 0 none, 1 to 8
  int privilege = 0;   ///< 0 to 3
  int maskMode = 0;    ///< 0 no mask, 1 include, 2 exclude
  std::array<int, kMaskPlaces> channels = NoChannels();

  bool operator==(const Phone&) const = default;
};

struct DigitalInput {
  std::string name;
  bool normallyClosed = false;
  AlarmRow alarms;

  bool operator==(const DigitalInput&) const = default;
};

/// How an analog input is wired, by the codes that the logger reports.
enum class Interface : int { Off = 0, Current = 1, Volts5 = 2, Volts10 = 3, Pressure = 4 };

/// What is told of an analog input beside its alarms.
struct AnalogScale {
  std::string name;
  std::string unit;
  Interface interface = Interface::Off;
  float signalStart = 0;
  float signalEnd = 0;
  float valueAtStart = 0;
  float valueAtEnd = 0;
  int group = 0;

  bool operator==(const AnalogScale&) const = default;
};

struct AnalogInput {
  AnalogScale scale;
  AlarmRow alarms;

  bool operator==(const AnalogInput&) const = default;
};

/// How a group of analog inputs is powered before it is read.
struct PowerGroup {
  int output = 0;
  int volts = 0;
  float period = 0;  ///< hundredths of a second

  bool operator==(const PowerGroup&) const = default;
};

struct Configuration {
  std::string name;
  std::string smsCentre;
  std::string ownNumber;
  std::string restoredText;
  int resendSeconds = 600;
  int resendCount = 3;
  int sampleRate = 0;  ///< 0 is 64 Hz, 1 is 256 Hz
  std::array<Phone, kPhones> phones;
  std::array<DigitalInput, kDigitals> digitals;
  std::array<AnalogInput, kAnalogs> analogs;
  std::array<PowerGroup, kAnalogs> groups;
  std::array<Alarm, kFlags> flagAlarms;
  /// Statements of blocks that are only kept as text, by what they set: "FLOWCONF0", "ALMM1/0".
  std::map<std::string, std::string> kept;
  std::vector<std::string> macros;  ///< macros and equations in the order of arrival

  bool operator==(const Configuration&) const = default;
};

/// Name and unit of a channel whose settings are kept as text, such as "FLOWCONF0"; empty where
/// there is none.
struct NameAndUnit {
  std::string name;
  std::string unit;
};
NameAndUnit NameOfKept(const Configuration& conf, const std::string& slot);

/// A configuration as a logger of this kind could hold it, the same for the same seed. It survives
/// a reading and writing back unchanged. `density` from 0 to 1 is the share of things set up.
Configuration RandomConfiguration(Model model, std::uint32_t features, std::uint64_t seed,
                                  double density = 0.5);

/// A small waterworks, set up with what the model has.
Configuration DemoConfiguration(Model model);

}  // namespace ostrel::sim
