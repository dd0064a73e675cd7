#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

#include "platform/qt/QtEventLoop.h"

namespace ostrel {

/// Tells when the node of an open device is taken away, without polling.
class NodeWatch {
 public:
  /// `onGone` runs on the loop. Where the system cannot watch, it never does.
  NodeWatch(QtEventLoop& loop, std::string path, std::function<void()> onGone);
  ~NodeWatch();
  NodeWatch(const NodeWatch&) = delete;
  NodeWatch& operator=(const NodeWatch&) = delete;

 private:
  void TakeEvents();

  QtEventLoop& loop_;
  std::string path_;
  std::function<void()> onGone_;
  int events_ = -1;
  std::unique_ptr<QSocketNotifier> arrived_;
};

}  // namespace ostrel
