#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrel {

/// The number of the channel that a token such as "DI0" names, comparing exactly. Any other text
/// gives 0, which is also the number of "AI0". One token is not known, though it is written:
/// "EX91" gives 0.
std::int16_t TokenToChannel(std::string_view token);

/// The token of a channel number; empty for a number that no channel has. The numbers 29 to 60 are
/// expansion inputs on an Ostrel S100 and MODBUS channels on every other model.
std::string ChannelToToken(std::int32_t channel, bool isS100);

}  // namespace ostrel
