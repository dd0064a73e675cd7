#include "cli/InputLines.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

namespace ostrel::cli {

InputLines::InputLines(QtEventLoop& loop, OnLine onLine, OnEnd onEnd)
    : onLine_(std::move(onLine)),
      onEnd_(std::move(onEnd)),
      readable_(std::make_unique<QSocketNotifier>(STDIN_FILENO, QSocketNotifier::Read)) {
  QObject::connect(readable_.get(), &QSocketNotifier::activated, readable_.get(),
                   [this, &loop] { loop.Guard([this] { Read(); }); });
}

void InputLines::Read() {
  std::array<char, 4096> block{};
  const ssize_t got = read(STDIN_FILENO, block.data(), block.size());
  if (got < 0 && (errno == EINTR || errno == EAGAIN)) return;
  for (const char c : std::string_view(block.data(), got > 0 ? static_cast<std::size_t>(got) : 0))
    if (c == '\n')
      onLine_(std::exchange(line_, {}));
    else if (c != '\r')
      line_ += c;
  if (got > 0) return;
  readable_->setEnabled(false);
  if (!line_.empty()) onLine_(std::exchange(line_, {}));
  onEnd_();
}

}  // namespace ostrel::cli
