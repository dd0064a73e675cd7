#include "cli/TransferLine.h"

#include <cstdint>

namespace ostrel::cli {
namespace {

constexpr int kBarWidth = 30;

}  // namespace

TransferLine::TransferLine(Console& console, TransferWatch& watch, std::string_view label,
                           bool isShown)
    : console_(console), watch_(watch), label_(label) {
  if (isShown && console.MayDraw()) watch_.OnStep = [this] { Draw(); };
}

TransferLine::~TransferLine() {
  watch_.OnStep = nullptr;
  if (!drawn_.empty()) console_.Err() << "\r\x1b[K" << std::flush;
}

void TransferLine::Draw() {
  const std::int64_t done = watch_.Done();  // octets, of a firmware: times 100 they are many
  const std::int64_t steps = watch_.Steps();
  const auto filled = static_cast<std::size_t>(done * kBarWidth / steps);
  std::string line = label_ + " [" + std::string(filled, '#') +
                     std::string(kBarWidth - filled, ' ') + "] " +
                     std::to_string(done * 100 / steps) + "%";
  if (const auto left = watch_.Left()) line += ", " + DurationText(*left) + " left";
  if (line == drawn_) return;
  drawn_ = line;
  console_.Err() << '\r' << line << "\x1b[K" << std::flush;
}

}  // namespace ostrel::cli
