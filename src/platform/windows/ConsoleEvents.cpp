#include "platform/windows/ConsoleEvents.h"

#include <windows.h>

#include <QWinEventNotifier>
#include <atomic>
#include <utility>

namespace ostrel {
namespace {

std::atomic<bool> hasComeEvent = false;

/// What wakes the loop; it stays for the life of the program, for the thread that sets it.
HANDLE Waker() {
  static const HANDLE event = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
  return event;
}

/// On a thread of the system's own.
BOOL WINAPI OnConsoleEvent(DWORD kind) {
  hasComeEvent = true;
  ::SetEvent(Waker());
  // After these the system ends the program as soon as this returns, or some seconds later.
  if (kind != CTRL_C_EVENT && kind != CTRL_BREAK_EVENT) ::Sleep(INFINITE);
  return TRUE;
}

}  // namespace

ConsoleEvents::ConsoleEvents(QtEventLoop& loop, std::function<void()> onEvent)
    : notifier_(std::make_unique<QWinEventNotifier>(Waker())) {
  hasComeEvent = false;
  QObject::connect(notifier_.get(), &QWinEventNotifier::activated, notifier_.get(),
                   [&loop, onEvent = std::move(onEvent)] { loop.Guard(onEvent); });
  ::SetConsoleCtrlHandler(OnConsoleEvent, TRUE);
}

ConsoleEvents::~ConsoleEvents() { ::SetConsoleCtrlHandler(OnConsoleEvent, FALSE); }

bool ConsoleEvents::HasCome() { return hasComeEvent; }

}  // namespace ostrel
