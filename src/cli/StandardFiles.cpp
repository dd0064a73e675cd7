#include "cli/StandardFiles.h"

namespace ostrel::cli {

FileResult StandardFiles::ReadUpTo(const std::string& path, std::size_t most, std::string& octets) {
  if (path != kStandard) return files_.ReadUpTo(path, most, octets);
  if (!read_) read_ = readInput_(input_);
  octets = input_;
  return *read_;
}

}  // namespace ostrel::cli
