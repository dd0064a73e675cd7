#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>

#include "platform/qt/InputLines.h"

namespace ostrel {
namespace {

class PosixInputLines {
 public:
  PosixInputLines(QtEventLoop& loop, InputTaker taker) : joiner_(std::move(taker)) {
    QObject::connect(&readable_, &QSocketNotifier::activated, &readable_,
                     [this, &loop] { loop.Guard([this] { Read(); }); });
  }

 private:
  void Read() {
    std::array<char, 4096> block{};
    const ssize_t got = ::read(STDIN_FILENO, block.data(), block.size());
    if (got < 0 && (errno == EINTR || errno == EAGAIN)) return;
    if (got > 0) return joiner_.Take({block.data(), static_cast<std::size_t>(got)});
    readable_.setEnabled(false);
    joiner_.End();
  }

  LineJoiner joiner_;
  QSocketNotifier readable_{STDIN_FILENO, QSocketNotifier::Read};
};

}  // namespace

std::shared_ptr<void> WatchInputLines(QtEventLoop& loop, InputTaker taker) {
  return std::make_shared<PosixInputLines>(loop, std::move(taker));
}

}  // namespace ostrel
