#include "cli/StandardFiles.h"

namespace ostrel::cli {

FileResult StandardFiles::ReadInto(const std::string& path, std::string& octets) {
  if (path != kStandard) return files_.ReadInto(path, octets);
  if (!read_) read_ = readInput_(input_);
  octets = input_;
  return *read_;
}

}  // namespace ostrel::cli
