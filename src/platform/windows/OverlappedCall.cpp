#include "platform/windows/OverlappedCall.h"

#include <utility>

namespace ostrel {

OverlappedCall::OverlappedCall(QtEventLoop& loop, std::function<void()> onEnd)
    : event_(::CreateEventW(nullptr, TRUE, FALSE, nullptr)), notifier_(event_.Get()) {
  state_.hEvent = event_.Get();
  notifier_.setEnabled(false);
  QObject::connect(&notifier_, &QWinEventNotifier::activated, &notifier_,
                   [this, &loop, onEnd = std::move(onEnd)] {
                     if (isUnderWay_) loop.Guard(onEnd);
                   });
}

bool OverlappedCall::Begun(bool isDone) {
  // A call that is done at once sets its event, too.
  isUnderWay_ = isDone || ::GetLastError() == ERROR_IO_PENDING;
  notifier_.setEnabled(isUnderWay_);
  return isUnderWay_;
}

std::optional<std::size_t> OverlappedCall::End(HANDLE device) {
  notifier_.setEnabled(false);
  isUnderWay_ = false;
  DWORD count = 0;
  if (!::GetOverlappedResult(device, &state_, &count, FALSE)) return {};
  return count;
}

void OverlappedCall::Abandon(HANDLE device) {
  if (!isUnderWay_) return;
  ::CancelIoEx(device, &state_);
  DWORD count = 0;
  ::GetOverlappedResult(device, &state_, &count, TRUE);
  End(device);
}

}  // namespace ostrel
