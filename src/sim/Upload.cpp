#include "sim/Upload.h"

#include <utility>

#include "sim/wire/StatementParser.h"

namespace ostrel::sim {

int ThreeDigits(std::string_view text) {
  if (text.size() < 3) return -1;
  int number = 0;
  for (const char digit : text.substr(0, 3)) {
    if (digit < '0' || digit > '9') return -1;
    number = number * 10 + (digit - '0');
  }
  return number;
}

void Upload::Begin(const Configuration& held) {
  draft_ = held;
  expected_ = 0;
  why_.clear();
}

Verdict Upload::Take(std::string_view numbered, const Configuration& held) {
  const int number = ThreeDigits(numbered);
  if (number == 0) Begin(held);
  if (expected_ < 0) return Verdict::Ignored;
  if (number != expected_)
    Refuse("statement " + std::to_string(expected_) + " expected");
  else if (std::string why = ApplyStatement(numbered.substr(3), self_, draft_); !why.empty())
    Refuse(std::move(why));
  else
    ++expected_;
  return expected_ < 0 ? Verdict::Refused : Verdict::Taken;
}

std::optional<Configuration> Upload::Close(std::string_view count) {
  const bool right = expected_ >= 0 && count.size() == 3 && ThreeDigits(count) == expected_;
  if (expected_ >= 0 && !right) why_ = std::to_string(expected_) + " statements were taken";
  expected_ = -1;
  if (!right) return std::nullopt;
  return std::move(draft_);
}

void Upload::Refuse(std::string why) {
  expected_ = -1;
  why_ = std::move(why);
}

}  // namespace ostrel::sim
