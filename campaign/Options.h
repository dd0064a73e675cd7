#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::campaign {

/// What a campaign is asked for.
struct Options {
  std::uint64_t count = 0;  ///< sessions, or inputs
  std::uint64_t seed = 1;
  unsigned processes = 1;
  bool tells = false;             ///< `--tell`: says what happens in each session
  std::vector<std::string> rest;  ///< arguments that are no options
};

/// Reads "--<what> N", "--seed S", "--processes P" and "--tell". Nothing for anything else that
/// begins with "--", and for what is no number.
std::optional<Options> ReadOptions(int count, char** words, std::string_view what,
                                   std::uint64_t usual);

}  // namespace ostrel::campaign
