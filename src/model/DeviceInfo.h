#pragma once

#include <cstdint>
#include <string>

namespace ostrel {

/// The strongest signal on the scale that modems report.
inline constexpr int kStrongestSignal = 31;

/// What the connected logger reports of itself.
struct DeviceInfo {
  float FirmwareVersion = 0;  ///< hundredths: 123 is version 1.23
  std::int32_t Features = 0;  ///< firmware feature mask; 0 until a logger has reported one
  std::string SerialNumber;
  float BatteryVoltage = 0;  ///< volts
  std::int16_t Rssi = 0;     ///< signal strength as the modem counts it
  double LogSize = 0;        ///< depth of the log in records
  double LogUsed = 0;        ///< records in use

  bool operator==(const DeviceInfo&) const = default;
};

/// A firmware version in hundredths as "1.23"; half a hundredth counts as a whole one.
std::string VersionText(float hundredths);

/// A feature mask as "0x10401".
std::string FeaturesText(std::int32_t features);

}  // namespace ostrel
