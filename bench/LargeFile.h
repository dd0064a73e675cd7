#pragma once

#include <string>
#include <utility>
#include <vector>

namespace ostrel {

/// A configuration file with as many sections and keys as the largest configuration has, in the
/// shapes that pages write.
struct LargeFile {
  std::string text;
  std::vector<std::pair<std::string, std::string>> keys;  ///< section and key

  static const LargeFile& Get();
};

inline constexpr int kLargeFileKeys = 23'000;

}  // namespace ostrel
