#include "link/LineReader.h"

#include <algorithm>

namespace ostrel {

std::string_view BracedFieldOfLine(std::string_view line, int n) {
  for (int at = 1; at < n; ++at) {
    const std::size_t brace = line.find('{');
    if (brace == std::string_view::npos) return {};
    line.remove_prefix(brace + 1);
  }
  return line.substr(0, line.find('}'));
}

LineReader::LineReader(std::string_view line) : line_(line) { Field(); }

std::string_view LineReader::Field() {
  if (position_ > line_.size()) return {};
  const std::size_t end = std::min(line_.find(',', position_), line_.size());
  const std::string_view field = line_.substr(position_, end - position_);
  position_ = end + 1;
  return field;
}

void LineReader::Skip(int fields) {
  for (int i = 0; i < fields; ++i) Field();
}

}  // namespace ostrel
