#include "cli/Progress.h"

#include <algorithm>

namespace ostrel::cli {
namespace {

constexpr int kBarWidth = 30;

}  // namespace

Progress::Progress(Console& console, EventLoop& loop, Comms& comms, std::string_view label,
                   int steps, bool isShown)
    : console_(console), loop_(loop), label_(label), isShown_(isShown && !console.Quiet()) {
  time_.Start(loop.Now(), steps);
  subscription_ = comms.OnProgress([this](const auto& progress) { Follow(progress); });
}

Progress::~Progress() {
  if (!drawn_.empty()) console_.Err() << "\r\x1b[K" << std::flush;
}

void Progress::Follow(const ostrel::Progress& progress) {
  if (progress.stage != ostrel::Progress::Stage::Step) return;
  time_.Step(loop_.Now(), progress.step);
  farthest_ = std::max(farthest_, progress.step);
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
