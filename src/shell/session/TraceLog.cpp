#include "shell/session/TraceLog.h"

namespace ostrel {
namespace {

/// What stands behind the stamp, which is a number between blanks.
std::string_view WithoutStamp(std::string_view line) {
  const std::size_t stamp = line.find_first_not_of(' ');
  if (stamp == std::string_view::npos) return line;
  const std::size_t behind = line.find_first_not_of("0123456789", stamp);
  if (behind == stamp || behind == std::string_view::npos || line[behind] != ' ') return line;
  return line.substr(behind + 1);
}

TraceKind KindOf(std::string_view text) {
  if (text.starts_with("TxSer: ")) return TraceKind::Sent;
  if (text.starts_with("RxSer: ")) return TraceKind::Received;
  if (text.starts_with("TxGsm: ") || text.starts_with("RxGsm: ")) return TraceKind::Modem;
  return TraceKind::Remark;
}

}  // namespace

std::string TraceEntry::Line() const { return StampText(time) + " " + text; }

void TraceLog::Add(std::string_view line) {
  const std::string_view text = WithoutStamp(line);
  kept_.push_back({loop_.Now(), {clock_.LocalTime(), KindOf(text), std::string(text)}});
  Forget();
  if (OnAdded) OnAdded(kept_.back().entry);
}

void TraceLog::ForEach(const std::function<void(const TraceEntry&)>& show) {
  Forget();
  for (const Kept& kept : kept_) show(kept.entry);
}

void TraceLog::Forget() {
  while (!kept_.empty() && (kept_.size() > kMost || loop_.Now() - kept_.front().at > kSpan))
    kept_.pop_front();
}

}  // namespace ostrel
