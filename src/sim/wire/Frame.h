#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ostrel::sim {

/// Sum of the octets modulo 256.
std::uint8_t Checksum(std::string_view payload);

/// Appends a message ("#40") as it travels: "#", checksum, ";", payload, carriage return.
void AppendFrame(std::string& octets, std::string_view message);
std::string ComposeFrame(std::string_view message);

/// Takes frames out of a flow of octets. What stands outside frames is skipped, frames that fail
/// their checksum or are longer than any frame of the program are dropped.
class FrameReader {
 public:
  /// Takes octets up to the end of the next good frame and gives its message; nothing when the
  /// octets are used up. `octets` keeps what was not taken.
  std::optional<std::string> Take(std::string_view& octets);
  /// Forgets a frame begun.
  void Reset() { frame_.clear(); }

 private:
  static constexpr std::size_t kLongest = 65'536;

  std::string frame_;  ///< from its "#" on; empty while hunting
};

}  // namespace ostrel::sim
