#include "platform/posix/NodeWatch.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace ostrel {

NodeWatch::NodeWatch(QtEventLoop& loop, std::string path, std::function<void()> onEvent,
                     NodeEvent event)
    : loop_(loop),
      path_(std::move(path)),
      onEvent_(std::move(onEvent)),
      event_(event),
      events_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  // An open node that is removed changes its count of names, and goes only when it is closed.
  constexpr unsigned kGone = IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF;
  const unsigned watched = event == NodeEvent::Gone ? kGone : IN_OPEN;
  if (events_ < 0 || ::inotify_add_watch(events_, path_.c_str(), watched) < 0) return;
  arrived_ = std::make_unique<QSocketNotifier>(events_, QSocketNotifier::Read);
  QObject::connect(arrived_.get(), &QSocketNotifier::activated, arrived_.get(),
                   [this] { loop_.Guard([this] { TakeEvents(); }); });
}

NodeWatch::~NodeWatch() {
  arrived_.reset();
  if (events_ >= 0) ::close(events_);
}

void NodeWatch::TakeEvents() {
  std::array<char, 4096> events;
  while (::read(events_, events.data(), events.size()) > 0) {
  }
  if (event_ == NodeEvent::Gone) {
    if (::access(path_.c_str(), F_OK) == 0) return;
    arrived_->setEnabled(false);
  }
  onEvent_();
}

}  // namespace ostrel
