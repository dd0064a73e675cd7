#include "cli/Progress.h"

#include <algorithm>

namespace ostrel::cli {
namespace {

constexpr int kBarWidth = 30;

}  // namespace

Progress::Progress(Console& console, EventLoop& loop, ProgressBar& bar, std::string_view label,
                   int steps, bool isShown)
    : console_(console),
      loop_(loop),
      bar_(bar),
      label_(label),
      isShown_(isShown && !console.Quiet()) {
  time_.Start(loop.Now(), steps);
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
  time_.Step(loop_.Now(), step);
  farthest_ = std::max(farthest_, step);
  if (isShown_) Draw();
}

void Progress::Draw() {
  const int done = time_.Done();
  const int steps = time_.Steps();
  const auto filled = static_cast<std::size_t>(done * kBarWidth / steps);
  std::string line = label_ + " [" + std::string(filled, '#') +
                     std::string(kBarWidth - filled, ' ') + "] " +
                     std::to_string(done * 100 / steps) + "%";
  if (const auto left = time_.Left(loop_.Now())) line += ", " + DurationText(*left) + " left";
  if (line == drawn_) return;
  drawn_ = line;
  console_.Err() << '\r' << line << "\x1b[K" << std::flush;
}

}  // namespace ostrel::cli
