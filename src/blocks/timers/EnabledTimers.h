#pragma once

#include "blocks/timers/CyclicTimers.h"
#include "blocks/timers/LongTimers.h"
#include "blocks/timers/MonthlyTimers.h"
#include "blocks/timers/WeeklyTimers.h"

namespace ostrel {

/// Runs `work` on each enabled timer of a configuration: section, number, record. The record is of
/// one of the four kinds.
template <class Work>
void EachEnabledTimer(const DeviceConf& conf, const Work& work) {
  const auto each = [&work](const SectionMeta& section, const auto& timers) {
    for (int t = 0; t < kTimers; ++t)
      if (timers[t].HABIL) work(section, t, timers[t]);
  };
  each(CyclicTimers::kSection, conf.CTimer);
  each(LongTimers::kSection, conf.LTimer);
  each(WeeklyTimers::kSection, conf.WTimer);
  each(MonthlyTimers::kSection, conf.MTimer);
}

}  // namespace ostrel
