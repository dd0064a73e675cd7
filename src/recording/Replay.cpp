#include "recording/Replay.h"

#include <algorithm>
#include <utility>

namespace ostrel {
namespace {

/// A part of a line without an end, such as a modem's escape, is a request after that time.
constexpr Duration kQuietAfterPart = std::chrono::milliseconds(90);
/// What a logger or a modem takes its time for lasts at least so long.
constexpr Duration kProperDelay = std::chrono::milliseconds(500);
constexpr char kRequestEnd = '\r';
/// Requests are of one kind from that many common characters on.
constexpr std::size_t kKindSize = 3;
/// A statement is answered only if it is refused, and another one is not.
constexpr std::string_view kStatement = "#45";

/// A request without the checksum, which says nothing about its kind.
std::string KeyOf(std::string_view request) {
  constexpr std::size_t kHead = 4;  // "#", two digits, ";"
  const bool isFrame = request.size() > kHead && request[0] == '#' && request[kHead - 1] == ';';
  return isFrame ? "#" + std::string(request.substr(kHead)) : std::string(request);
}

std::size_t InCommon(std::string_view one, std::string_view other) {
  return static_cast<std::size_t>(std::ranges::mismatch(one, other).in1 - one.begin());
}

}  // namespace

Replay::Replay(EventLoop& loop, LineEnd& line, Recording recording, ReplayPace pace)
    : loop_(loop), line_(line), pace_(pace) {
  exchanges_.push_back({});
  startsWithCarrier_ = std::ranges::none_of(recording, [](const RecordedEvent& event) {
    return event.kind == RecordedKind::Event && event.text == kCarrierOnEvent;
  });
  for (RecordedEvent& event : recording) {
    if (event.kind == RecordedKind::Sent) {
      exchanges_.push_back({KeyOf(event.text), event.at});
    } else if (event.kind == RecordedKind::Event && event.text.starts_with(kOpenEvent)) {
      // What was said between opening and the first request is said at each opening.
      if (exchanges_.size() == 1) exchanges_.front() = {{}, event.at};
    } else if (event.kind == RecordedKind::Received || event.kind == RecordedKind::Event) {
      exchanges_.back().answers.push_back(std::move(event));
    }
  }
}

Replay::~Replay() { Forget(); }

void Replay::SetTerminalReady(bool ready) {
  Forget();
  if (!ready) return;
  line_.SetCarrier(startsWithCarrier_);
  Play(exchanges_.front());
}

void Replay::Forget() {
  part_.clear();
  loop_.Cancel(std::exchange(quiet_, 0));
  for (const TimerId timer : due_) loop_.Cancel(timer);
  due_.clear();
}

void Replay::Receive(std::string_view octets) {
  loop_.Cancel(std::exchange(quiet_, 0));
  for (const char octet : octets) {
    part_ += octet;
    if (octet == kRequestEnd) AnswerPart();
  }
  if (part_.empty() || MayHoldSecret(part_)) return;
  quiet_ = loop_.After(kQuietAfterPart, "replay", [this] {
    quiet_ = 0;
    AnswerPart();
  });
}

void Replay::AnswerPart() { Answer(secrets_.Sent(std::exchange(part_, {}))); }

void Replay::Answer(const std::string& request) {
  ReplayedRequest told{.request = request};
  const std::size_t found = Find(KeyOf(request), told.match);
  if (told.match != ReplayMatch::Unknown) {
    told.answers = static_cast<std::size_t>(std::ranges::count(
        exchanges_[found].answers, RecordedKind::Received, &RecordedEvent::kind));
    Play(exchanges_[found]);
  }
  const bool isNamed = told.match != ReplayMatch::Unknown && told.match != ReplayMatch::Alike;
  if (isNamed) next_ = std::max(next_, found + 1);
  if (observer_) observer_(told);
}

std::size_t Replay::Find(const std::string& request, ReplayMatch& match) const {
  const auto isSame = [&](std::size_t at) { return exchanges_[at].request == request; };
  match = ReplayMatch::InOrder;
  if (next_ < exchanges_.size() && isSame(next_)) return next_;
  match = ReplayMatch::Elsewhere;
  for (std::size_t away = 1; away < exchanges_.size(); ++away) {
    if (next_ + away < exchanges_.size() && isSame(next_ + away)) return next_ + away;
    if (away < next_ && isSame(next_ - away)) return next_ - away;
  }
  match = ReplayMatch::Unknown;
  std::size_t best = 0, common = kKindSize - 1;
  for (std::size_t at = 1; at < exchanges_.size() && !request.starts_with(kStatement); ++at) {
    const std::size_t shared = InCommon(request, exchanges_[at].request);
    if (shared <= common) continue;
    best = at;
    common = shared;
    match = ReplayMatch::Alike;
  }
  return best;
}

void Replay::Play(const Exchange& exchange) {
  for (const RecordedEvent& event : exchange.answers) {
    Duration delay = event.at - exchange.at;
    if (pace_ == ReplayPace::Promptly && delay < kProperDelay) delay = Duration::zero();
    due_.push_back(loop_.After(delay, "replay", [this, event] { PlayNow(event); }));
  }
}

void Replay::PlayNow(const RecordedEvent& event) {
  if (event.kind == RecordedKind::Received) return line_.Send(event.text);
  if (event.text == kCarrierOnEvent) line_.SetCarrier(true);
  if (event.text == kCarrierOffEvent) line_.SetCarrier(false);
  if (event.text == kLostEvent) line_.Vanish();
}

}  // namespace ostrel
