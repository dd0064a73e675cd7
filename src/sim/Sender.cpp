#include "sim/Sender.h"

#include <algorithm>
#include <utility>

#include "sim/wire/Frame.h"

namespace ostrel::sim {

Sender::Sender(EventLoop& loop, LineEnd& line, FaultPlan& plan, std::function<void()> onCarrierDrop)
    : loop_(loop), line_(line), plan_(plan), onCarrierDrop_(std::move(onCarrierDrop)) {}

Sender::~Sender() { loop_.Cancel(wait_); }

Sender::Piece& Sender::Last() {
  if (pieces_.empty() || pieces_.back().end != End::None) pieces_.emplace_back();
  return pieces_.back();
}

void Sender::Put(std::string_view octets) {
  std::string& out = Last().octets;
  if (plan_.Empty()) {
    out += octets;
    return;
  }
  for (const char octet : octets) {
    const bool flip = plan_.Count(FaultKind::FlipBit).has_value();
    if (plan_.Count(FaultKind::DropOctet)) continue;
    out += flip ? static_cast<char>(octet ^ (1 << plan_.Draw(7))) : octet;
  }
}

void Sender::Frame(std::string_view message, Duration tear) {
  if (waiting_ > kMostWaiting) return;
  waiting_ += message.size();
  if (plan_.Empty()) return AppendFrame(Last().octets, message);
  std::string frame = ComposeFrame(message);
  if (plan_.Count(FaultKind::BadChecksum)) frame[2] = frame[2] == '0' ? '1' : '0';
  if (const auto delay = plan_.Count(FaultKind::Delay))
    Wait(std::chrono::milliseconds{delay->milliseconds});
  const bool twice = plan_.Count(FaultKind::Duplicate).has_value();
  const std::size_t half = tear > Duration{} ? frame.size() / 2 : frame.size();
  Put(std::string_view(frame).substr(0, half));
  if (half < frame.size()) {
    Wait(tear);
    Put(std::string_view(frame).substr(half));
  }
  if (twice) Put(frame);
  if (plan_.Count(FaultKind::CarrierDrop)) Last().end = End::CarrierDrop;
  if (plan_.Count(FaultKind::Vanish)) Last().end = End::Vanish;
}

void Sender::Text(std::string_view octets) {
  if (waiting_ > kMostWaiting) return;
  waiting_ += octets.size();
  Put(octets);
}

void Sender::Flush() {
  while (wait_ == 0 && !gone_ && !pieces_.empty()) {
    Piece& next = pieces_.front();
    if (next.wait > Duration{}) {
      wait_ = loop_.After(std::exchange(next.wait, {}), "simulated delay", [this] {
        wait_ = 0;
        Flush();
      });
      return;
    }
    const Piece piece = std::move(next);
    pieces_.pop_front();
    waiting_ -= std::min(waiting_, piece.octets.size());
    if (pieces_.empty()) waiting_ = 0;
    if (!piece.octets.empty()) line_.Send(piece.octets);
    if (piece.end == End::CarrierDrop) onCarrierDrop_();
    if (piece.end == End::Vanish) {
      gone_ = true;
      line_.Vanish();
    }
  }
}

void Sender::Clear() {
  loop_.Cancel(std::exchange(wait_, 0));
  pieces_.clear();
  waiting_ = 0;
}

}  // namespace ostrel::sim
