#pragma once

#include <QDateTime>

#include "platform/Clock.h"

namespace ostrel {

/// The computer's wall clock, in its local time zone.
class QtClock final : public Clock {
 public:
  std::chrono::milliseconds LocalTime() const override {
    const QDateTime now = QDateTime::currentDateTime();
    return std::chrono::milliseconds(now.toMSecsSinceEpoch()) +
           std::chrono::seconds(now.offsetFromUtc());
  }
  std::chrono::minutes UtcOffset() const override {
    return std::chrono::minutes(QDateTime::currentDateTime().offsetFromUtc() / 60);
  }
};

}  // namespace ostrel
