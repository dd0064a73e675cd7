#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "sim/Model.h"
#include "sim/blocks/Analogs.h"
#include "sim/blocks/Digitals.h"
#include "sim/blocks/Flags.h"
#include "sim/blocks/General.h"
#include "sim/blocks/Groups.h"
#include "sim/blocks/Telephones.h"

namespace ostrel::sim {

/// What a logger keeps. Texts are octets of code page 1252, as they came on the wire. Every array
/// has room for the largest model; what a model lacks keeps its default.
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
