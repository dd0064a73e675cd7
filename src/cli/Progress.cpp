#include "cli/Progress.h"

#include <algorithm>

namespace ostrel::cli {
namespace {

constexpr int kBarWidth = 30;
constexpr Duration kSettling = std::chrono::seconds(1);  ///< before this no speed is known

std::string TwoDigits(std::int64_t number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

std::string DurationText(Duration duration) {
  const std::int64_t seconds = std::chrono::ceil<std::chrono::seconds>(duration).count();
  const std::string tail = TwoDigits(seconds % 60);
  if (seconds < 3600) return std::to_string(seconds / 60) + ":" + tail;
  return std::to_string(seconds / 3600) + ":" + TwoDigits(seconds / 60 % 60) + ":" + tail;
}

Progress::Progress(Console& console, EventLoop& loop, ProgressBar& bar, std::string_view label,
                   int steps, bool isShown)
    : console_(console),
      loop_(loop),
      bar_(bar),
      label_(label),
      steps_(std::max(steps, 1)),
      isShown_(isShown && !console.Quiet()),
      start_(loop.Now()) {
  bar_.SetValue(0);
  bar_.face.OnChanged = [this] { Follow(); };
}

Progress::~Progress() {
  bar_.face.OnChanged = nullptr;
  if (!drawn_.empty()) console_.Err() << "\r\x1b[K" << std::flush;
}

void Progress::Follow() {
  // A full bar says that the transfer is over, not how many steps it had.
  const int step = bar_.Value();
  if (step >= bar_.Maximum() && step != farthest_ + 1) return;
  if (step == 0) start_ = loop_.Now();
  farthest_ = std::max(farthest_, step);
  if (isShown_) Draw(step);
}

void Progress::Draw(int step) {
  const int done = std::min(step, steps_);
  const auto filled = static_cast<std::size_t>(done * kBarWidth / steps_);
  std::string line = label_ + " [" + std::string(filled, '#') +
                     std::string(kBarWidth - filled, ' ') + "] " +
                     std::to_string(done * 100 / steps_) + "%";
  const Duration elapsed = loop_.Now() - start_;
  if (done > 0 && elapsed >= kSettling)
    line += ", " + DurationText(elapsed * (steps_ - done) / done) + " left";
  if (line == drawn_) return;
  drawn_ = line;
  console_.Err() << '\r' << line << "\x1b[K" << std::flush;
}

}  // namespace ostrel::cli
