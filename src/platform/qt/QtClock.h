#pragma once

#include <QDateTime>

#include "platform/Clock.h"

namespace ostrel {

/// The computer's wall clock, in its local time zone.
class QtClock final : public Clock {
 public:
  DateTime LocalNow() const override {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
  }
};

}  // namespace ostrel
