#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace ostrel {

/// The selected model: which of the six it is and how many channels of each kind it has.
struct TargetProfile {
  bool IsBP = false;
  bool IsVR200 = false;
  bool IsKA2 = false;
  bool IsKA1 = false;
  bool IsBQ = false;
  bool IsS100 = false;
  std::string TargetName;  ///< display name; also the title of every message box
  std::string TargetType;  ///< type word, the stamp of a configuration file
  std::int16_t AnalogCount = 0;
  std::int16_t DigitalCount = 0;
  std::int16_t CaudalCount = 0;
  std::int16_t ModbusCount = 0;
  std::int16_t OneWireCount = 0;
  std::int16_t OutputCount = 0;
  std::int16_t AuxCount = 0;  ///< no model sets it
  std::int16_t MathCount = 0;
  std::int16_t ModuloCount = 0;

  bool operator==(const TargetProfile&) const = default;
};

/// Whether 1-Wire probes stand in the place of the analog inputs among what a model measures.
inline bool HasProbes(const TargetProfile& profile) { return profile.IsKA1 || profile.IsKA2; }

/// How many digital inputs a model tells the state of. A Tavro BQ has two more than can be
/// configured: those of the direction of its flows.
int DigitalInputsShown(const TargetProfile& profile);

/// What is printed beside a digital input: "I3", "IN3", "DR0", "UPS".
std::string DigitalInputLabel(const TargetProfile& profile, int index);

/// One model of the family.
struct TargetModel {
  std::string_view name;  ///< "Ostrel VR200"
  std::string_view type;  ///< "VR200"
  std::string_view word;  ///< "VR200", the short name on a command line
  bool TargetProfile::*flag;
  std::int16_t analog, digital, caudal;
  std::int16_t modbus, oneWire, output;  ///< below 0: selecting the model keeps the former count
  std::int16_t math, modulo;
};

/// The six models in the order in which a name is compared with them.
const std::array<TargetModel, 6>& TargetModels();

/// The six display names in the order in which an operator is offered them.
const std::array<std::string_view, 6>& TargetNamesOffered();

/// The model whose display name, type word or short word this is, letter case aside; null when
/// there is none.
const TargetModel* FindTarget(std::string_view anyName);

/// Sets flags, name, type and counts for a display name. A name that matches no model clears the
/// flags and keeps type and counts. Counts that a model does not set keep their former value.
void SelectTarget(TargetProfile& profile, std::string_view name);

}  // namespace ostrel
