#include "platform/posix/SignalPipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

namespace ostrel {
namespace {

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE};

std::array<int, 2> pipeEnds{-1, -1};
volatile std::sig_atomic_t hasCome = 0;

extern "C" void OnSignal(int) {
  const int kept = errno;
  hasCome = 1;
  const char octet = 's';
  // A full pipe already says that there was a signal.
  [[maybe_unused]] const auto written = write(pipeEnds[1], &octet, 1);
  errno = kept;
}

/// Whether whoever ignores a signal means it: a shell ignores those of the keyboard for whatever it
/// starts in the background.
bool IsAskedFor(int signal) { return signal == SIGHUP || signal == SIGPIPE; }

bool IsIgnored(int signal) {
  struct sigaction present {};
  return sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_IGN;
}

void SetHandler(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  // Without SA_RESTART: a question on the terminal must end, too.
  for (const int signal : kSignals)
    if (!IsAskedFor(signal) || !IsIgnored(signal)) sigaction(signal, &action, nullptr);
}

}  // namespace

SignalPipe::SignalPipe(QtEventLoop& loop, std::function<void()> onSignal) {
  hasCome = 0;
  if (pipe2(pipeEnds.data(), O_NONBLOCK | O_CLOEXEC) != 0)
    throw std::system_error(errno, std::generic_category(), "pipe");
  notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated,
                   [this, &loop, onSignal = std::move(onSignal)] {
                     Drain();
                     loop.Guard(onSignal);
                   });
  SetHandler(OnSignal);
  std::signal(SIGXFSZ, SIG_IGN);
}

SignalPipe::~SignalPipe() {
  SetHandler(SIG_DFL);
  notifier_.reset();
  for (int& end : pipeEnds) close(std::exchange(end, -1));
}

bool SignalPipe::HasCome() { return hasCome != 0; }

void SignalPipe::Drain() const {
  std::array<char, 64> octets{};
  while (read(pipeEnds[0], octets.data(), octets.size()) > 0) {
  }
}

}  // namespace ostrel
