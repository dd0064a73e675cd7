#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "blocks/Receiver.h"
#include "link/LineReader.h"
#include "link/Statement.h"
#include "model/DeviceConf.h"

namespace ostrel {

/// A number of fewer characters does not read back from a logger.
inline constexpr std::size_t kShortestNumber = 3;

/// Whether the mask form of firmware without extended masks can name a channel: it knows DI0 to DI7
/// and AI0 to AI3.
bool IsShortMaskToken(std::string_view token);

/// Reads the line of one slot, whose next fields are index and number. A number that is too short
/// is a free slot, and passed over.
void ReadPhone(LineReader& line, std::int32_t features, DeviceConf& conf);

/// The statement that adds a telephone to the list of a logger.
Statement PhoneStatement(const ConfPhone& phone, const Receiver& receiver);

}  // namespace ostrel
