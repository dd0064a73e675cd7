#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ostrel::sim {

enum class Model { KA1, KA2, VR200, S100, BP, BQ };

/// What a firmware may be able to do; the logger reports the sum of its bits as "FEATURES".
enum Feature : std::uint32_t {
  kResendRules = 0x1,
  kGprs = 0x2,
  kFlagAlarms = 0x4,
  kAnalogPersistence = 0x8,
  kFtp = 0x10,
  kModbusConstants = 0x20,
  kMath = 0x40,
  kNormallyClosed = 0x80,
  kNoMaskIsMinusOne = 0x100,  ///< old mask form: no mask reads -1, else 65535
  kModbusFormats = 0x200,
  kFastRefusal = 0x400,
  kMonthlyTimers = 0x800,
  kMissedCall = 0x1000,
  kModbusSlave = 0x2000,
  kExtendedMasks = 0x10000,
  kSampleRate = 0x80000,
  kTotalRatio = 0x100000,
  kFlowInUnits = 0x200000
};

/// What is fixed by the model: its names, how many channels of each kind it has, and a plausible
/// firmware.
struct ModelTraits {
  Model model;
  std::string_view word;         ///< "VR200", as a command line names it
  std::string_view displayName;  ///< "Ostrel VR200"
  std::string_view typeWord;     ///< as configuration files name it
  int analogs, digitals, flows, modbus, probes, outputs, aux, maths, modules;
  int version;             ///< in hundredths
  std::uint32_t features;  ///< sum of `Feature` bits
};

inline constexpr std::array kModels = {Model::KA1,  Model::KA2, Model::VR200,
                                       Model::S100, Model::BP,  Model::BQ};

const ModelTraits& TraitsOf(Model model);

/// Finds a model by its word, display name or type word, whatever the case of the letters.
std::optional<Model> ParseModel(std::string_view text);

/// Who a logger is, as far as its dialogues depend on it.
struct Identity {
  Model model = Model::VR200;
  std::uint32_t features = 0;
  bool tellsOwnNames = false;  ///< see `LoggerOptions`

  const ModelTraits& Traits() const { return TraitsOf(model); }
  bool Has(std::uint32_t bits) const { return (features & bits) == bits; }
};

}  // namespace ostrel::sim
