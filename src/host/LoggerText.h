#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/DeviceInfo.h"
#include "platform/DateTime.h"

namespace ostrel {

/// Reads a mask of up to eight hexadecimal digits, with or without "0x".
std::optional<std::int32_t> ReadFeatures(std::string_view text);
/// What is wrong with a text that is to be a plain whole number; empty for one that is.
std::string NoWholeNumber(const std::string& text);
/// Octets of the line without access code and passwords, in whose place "****" stands.
std::string WithoutSecrets(std::string_view octets);
/// "2026-03-02 09:05:07"; empty for a time that was never read.
std::string ClockText(const DateTime& time);

}  // namespace ostrel
