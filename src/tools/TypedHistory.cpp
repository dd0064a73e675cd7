#include "tools/TypedHistory.h"

namespace ostrel {
namespace {

constexpr std::size_t kMost = 200;

}  // namespace

void TypedHistory::Add(const std::string& text) {
  if (texts_.empty() || texts_.back() != text) texts_.push_back(text);
  if (texts_.size() > kMost) texts_.erase(texts_.begin());
  place_ = texts_.size();
}

std::string TypedHistory::Step(int way, const std::string& typed) {
  if (place_ == texts_.size()) typed_ = typed;
  if (way < 0 && place_ > 0) --place_;
  if (way > 0 && place_ < texts_.size()) ++place_;
  return place_ == texts_.size() ? typed_ : texts_[place_];
}

}  // namespace ostrel
