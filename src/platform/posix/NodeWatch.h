#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

#include "platform/qt/QtEventLoop.h"

namespace ostrel {

enum class NodeEvent {
  Gone,   ///< the node of an open device is taken away; comes once
  Opened  ///< somebody opens it
};

/// Tells what happens to a device's node, without polling.
class NodeWatch {
 public:
  /// `onEvent` runs on the loop. Where the system cannot watch, it never does.
  NodeWatch(QtEventLoop& loop, std::string path, std::function<void()> onEvent,
            NodeEvent event = NodeEvent::Gone);
  ~NodeWatch();
  NodeWatch(const NodeWatch&) = delete;
  NodeWatch& operator=(const NodeWatch&) = delete;

  /// Whether the system can watch it.
  bool Watches() const { return arrived_ != nullptr; }

 private:
  void TakeEvents();

  QtEventLoop& loop_;
  std::string path_;
  std::function<void()> onEvent_;
  NodeEvent event_;
  int events_ = -1;
  std::unique_ptr<QSocketNotifier> arrived_;
};

}  // namespace ostrel
