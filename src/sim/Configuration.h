#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "sim/Model.h"
#include "sim/blocks/Analogs.h"
#include "sim/blocks/Auxiliaries.h"
#include "sim/blocks/Digitals.h"
#include "sim/blocks/Expansion.h"
#include "sim/blocks/Flags.h"
#include "sim/blocks/Flows.h"
#include "sim/blocks/General.h"
#include "sim/blocks/Gprs.h"
#include "sim/blocks/Groups.h"
#include "sim/blocks/Katodex.h"
#include "sim/blocks/Macros.h"
#include "sim/blocks/Maths.h"
#include "sim/blocks/Modbus.h"
#include "sim/blocks/Probes.h"
#include "sim/blocks/Telephones.h"
#include "sim/blocks/VoiceList.h"
#include "sim/blocks/timers/CyclicTimers.h"
#include "sim/blocks/timers/LongTimers.h"
#include "sim/blocks/timers/MonthlyTimers.h"
#include "sim/blocks/timers/WeeklyTimers.h"

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
  std::array<Phone, kPhones> phones;
  std::array<DigitalInput, kDigitals> digitals;
  std::array<AnalogInput, kAnalogs> analogs;
  std::array<PowerGroup, kAnalogs> groups;
  std::array<Alarm, kFlags> flagAlarms;
  std::array<CyclicTimer, kTimers> cyclicTimers;
  std::array<LongTimer, kTimers> longTimers;
  std::array<WeeklyTimer, kTimers> weeklyTimers;
  std::array<MonthlyTimer, kTimers> monthlyTimers;
  int sampleRate = 0;  ///< of the flow meters: 0 is 64 Hz, 1 is 256 Hz
  std::array<FlowMeter, kFlows> flows;
  ModbusBus modbusBus;
  std::array<ModbusChannel, kModbusChannels> modbus;
  std::array<ExpansionInput, kExpansionInputs> expansion;
  std::array<Probe, kProbes> probes;
  std::array<MathChannel, kMaths> maths;
  std::vector<std::string> macros;  ///< macros and equations in the order of arrival
  OffMeasurement offMeasurement;
  std::array<AuxiliaryInput, kAuxiliaries> auxiliaries;
  GprsSettings gprs;
  VoiceList voice;

  bool operator==(const Configuration&) const = default;
};

/// A configuration as a logger of this kind could hold it, the same for the same seed. It survives
/// a reading and writing back unchanged. `density` from 0 to 1 is the share of things set up.
Configuration RandomConfiguration(Model model, std::uint32_t features, std::uint64_t seed,
                                  double density = 0.5);

/// A small waterworks, set up with what the model has.
Configuration DemoConfiguration(Model model);

}  // namespace ostrel::sim
