#pragma once

#include <QSocketNotifier>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "platform/qt/QtEventLoop.h"

namespace ostrel {

/// The carrier line of an open device, as the system offers it.
struct CarrierLine {
  /// Whether the line is up; nothing when the device has gone.
  std::function<std::optional<bool>()> look;
  /// Waits for a change of it, or of another line that counts, and gives false when this device
  /// cannot wait, or has gone. A signal ends the wait with true.
  std::function<bool()> await;
};

/// Tells of changes of a carrier line without polling: a thread waits for them. After each one, and
/// at the start, there is a second look, since a change while nobody waits wakes nobody. Where a
/// driver cannot wait, the line is looked at once a second.
class CarrierWatch {
 public:
  /// `onLook` runs on the loop, with what a look has found, whenever the line may have changed.
  CarrierWatch(QtEventLoop& loop, CarrierLine line,
               std::function<void(std::optional<bool> carrier)> onLook);
  ~CarrierWatch();
  CarrierWatch(const CarrierWatch&) = delete;
  CarrierWatch& operator=(const CarrierWatch&) = delete;

 private:
  void Wait();
  void Stop();
  void TakeWake();
  void Look();

  QtEventLoop& loop_;
  CarrierLine line_;
  std::function<void(std::optional<bool>)> onLook_;
  int wake_ = -1;  ///< an event counter: the thread writes, the loop reads
  std::unique_ptr<QSocketNotifier> wakened_;
  TimerId nextLook_ = 0;
  TimerId lateLook_ = 0;
  TimerId slowLook_ = 0;
  std::atomic<bool> stops_ = false;
  std::atomic<bool> ended_ = false;
  std::thread thread_;
};

}  // namespace ostrel
