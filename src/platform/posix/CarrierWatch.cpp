#include "platform/posix/CarrierWatch.h"

#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <csignal>
#include <system_error>
#include <utility>

namespace ostrel {
namespace {

constexpr Duration kSlowLook = std::chrono::seconds(1);
/// A change that comes before the thread waits again is none that it waits for.
constexpr Duration kLateLook = std::chrono::milliseconds(100);
constexpr auto kStopInterval = std::chrono::milliseconds(1);

/// The signal that ends a wait in the system; it does nothing else.
int StopSignal() {
  static const int number = [] {
    const int free = SIGRTMAX;
    struct sigaction action {};
    action.sa_handler = [](int) {};
    ::sigaction(free, &action, nullptr);
    return free;
  }();
  return number;
}

}  // namespace

CarrierWatch::CarrierWatch(QtEventLoop& loop, CarrierLine line,
                           std::function<void(std::optional<bool>)> onLook)
    : loop_(loop),
      line_(std::move(line)),
      onLook_(std::move(onLook)),
      wake_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (wake_ < 0) return;
  StopSignal();
  wakened_ = std::make_unique<QSocketNotifier>(wake_, QSocketNotifier::Read);
  QObject::connect(wakened_.get(), &QSocketNotifier::activated, wakened_.get(),
                   [this] { loop_.Guard([this] { TakeWake(); }); });
  try {
    thread_ = std::thread([this] { Wait(); });
  } catch (const std::system_error&) {  // no thread is to be had
    ended_ = true;
    ::eventfd_write(wake_, 1);
  }
  lateLook_ = loop_.After(kLateLook, "carrier", [this] { Look(); });
}

CarrierWatch::~CarrierWatch() {
  Stop();
  for (const TimerId timer : {nextLook_, lateLook_, slowLook_}) loop_.Cancel(timer);
  wakened_.reset();
  if (wake_ >= 0) ::close(wake_);
}

/// The thread: wakes the loop for each change, and once more when it can wait no longer.
void CarrierWatch::Wait() {
  bool waits = true;
  while (waits && !stops_) {
    waits = line_.await();
    ended_ = !waits;
    if (!stops_) ::eventfd_write(wake_, 1);
  }
  ended_ = true;
}

/// A signal may come just before the thread goes into its wait, so it is sent until the thread
/// ends.
void CarrierWatch::Stop() {
  stops_ = true;
  if (!thread_.joinable()) return;
  while (!ended_) {
    ::pthread_kill(thread_.native_handle(), StopSignal());
    std::this_thread::sleep_for(kStopInterval);
  }
  thread_.join();
}

void CarrierWatch::TakeWake() {
  eventfd_t changes = 0;
  ::eventfd_read(wake_, &changes);
  if (ended_ && slowLook_ == 0) slowLook_ = loop_.Every(kSlowLook, "carrier", [this] { Look(); });
  // Not from within the notifier: whoever is told may end this watch.
  for (const auto& [timer, delay] :
       {std::pair(&nextLook_, Duration::zero()), {&lateLook_, kLateLook}}) {
    loop_.Cancel(*timer);
    *timer = loop_.After(delay, "carrier", [this] { Look(); });
  }
}

void CarrierWatch::Look() {
  const auto onLook = onLook_;
  onLook(line_.look());
}

}  // namespace ostrel
