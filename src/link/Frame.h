#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrel {

/// A message is "#" and a payload, such as "#40"; a frame is what travels for it, such as "#64;40",
/// without the carriage return that ends it on the line. All of these take and give octets.

/// Sum of the octets of a payload, modulo 256.
std::uint8_t PayloadSum(std::string_view payload);

/// The frame of a message. Its first octet is dropped whatever it is.
std::string FrameOf(std::string_view message);

/// True when the two digits of a frame, in either case, are the sum of its payload. An empty
/// payload is never good. The octet between digits and payload may be any.
bool ChecksumOk(std::string_view frame);

/// The message of a frame that has a payload.
std::string MessageOf(std::string_view frame);

}  // namespace ostrel
