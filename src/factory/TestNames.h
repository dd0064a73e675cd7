#pragma once

#include <string_view>

namespace ostrel {

// Names of measured values that several tests have, as records show them.
inline constexpr std::string_view kBatteryValue = "VBat";
inline constexpr std::string_view kGsmValue = "GSM";

}  // namespace ostrel
