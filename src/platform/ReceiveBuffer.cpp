#include "platform/ReceiveBuffer.h"

#include <algorithm>

namespace ostrel {

void ReceiveBuffer::SetSize(std::size_t octets) {
  size_ = std::max<std::size_t>(octets, 1);
  Trim();
}

void ReceiveBuffer::Put(std::string_view octets) {
  octets_.append(octets);
  Trim();
}

void ReceiveBuffer::Trim() {
  if (Count() <= size_) return;
  lost_ += Count() - size_;
  Drop(Count() - size_);
}

std::string ReceiveBuffer::Take(std::size_t most) {
  std::string taken = octets_.substr(taken_, most > 0 ? most : std::string::npos);
  Drop(taken.size());
  return taken;
}

void ReceiveBuffer::Drop(std::size_t count) {
  taken_ += count;
  if (taken_ <= octets_.size() / 2) return;
  octets_.erase(0, taken_);
  taken_ = 0;
}

void ReceiveBuffer::Clear() {
  octets_.clear();
  taken_ = 0;
  lost_ = 0;
}

}  // namespace ostrel
