#include <windows.h>

#include <QObject>
#include <array>
#include <mutex>
#include <thread>

#include "platform/qt/InputLines.h"

namespace ostrel {
namespace {

/// What the reading thread and whoever takes the lines share. The thread waits in the system for
/// input that may never come, so it is left behind when nobody wants lines any more.
struct Channel {
  std::mutex mutex;
  QObject* taker = nullptr;  ///< null when nobody wants lines any more
  std::function<void(std::string_view octets)> take;
};

void ReadInput(const std::shared_ptr<Channel>& channel) {
  std::array<char, 4096> block{};
  for (DWORD got = 1; got > 0;) {
    if (!::ReadFile(::GetStdHandle(STD_INPUT_HANDLE), block.data(), block.size(), &got, nullptr))
      got = 0;
    const std::lock_guard lock(channel->mutex);
    if (!channel->taker) return;
    QMetaObject::invokeMethod(
        channel->taker,
        [channel, octets = std::string(block.data(), got)] { channel->take(octets); },
        Qt::QueuedConnection);
  }
}

class WindowsInputLines {
 public:
  WindowsInputLines(QtEventLoop& loop, InputTaker taker) : joiner_(std::move(taker)) {
    channel_->taker = &context_;
    channel_->take = [this, &loop](std::string_view octets) {
      loop.Guard([&] { octets.empty() ? joiner_.End() : joiner_.Take(octets); });
    };
    std::thread(ReadInput, channel_).detach();
  }
  ~WindowsInputLines() {
    const std::lock_guard lock(channel_->mutex);
    channel_->taker = nullptr;
  }
  WindowsInputLines(const WindowsInputLines&) = delete;
  WindowsInputLines& operator=(const WindowsInputLines&) = delete;

 private:
  LineJoiner joiner_;
  QObject context_;  ///< what was put into the loop for it goes with it
  std::shared_ptr<Channel> channel_ = std::make_shared<Channel>();
};

}  // namespace

std::shared_ptr<void> WatchInputLines(QtEventLoop& loop, InputTaker taker) {
  return std::make_shared<WindowsInputLines>(loop, std::move(taker));
}

}  // namespace ostrel
