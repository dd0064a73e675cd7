#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/schedule/Schedule.h"
#include "shell/words/Phrase.h"

namespace ostrel {

// A schedule in words. `Say` gives a phrase in the language of a face; `Filled` is that of one
// which speaks English.
using Say = std::function<std::string(const Phrase& phrase)>;

/// "cyclic timer 3".
std::string TimerText(const SectionMeta& section, int number, const Say& say);

/// When a timer fires: "every 900 s, from 8:00:00 to 20:00:00, on Mo Tu".
std::string RuleText(const ScheduledTimer& timer, const Say& say);

/// Moments, a line for each day: "Mo 2026-03-02: 8:00:00, 8:15:00".
std::vector<std::string> MomentLines(const std::vector<DateTime>& moments, const Say& say);

/// When and by which timers a macro is started, in the same form: "8:00:00 (cyclic timer 3)".
std::vector<std::string> StartLines(const ScheduledMacro& macro, const Say& say);

/// The actions of a timer as the model calls them, and by their number alone where it has none.
std::vector<std::string> ActionTexts(const ScheduledTimer& timer, const TargetProfile& profile,
                                     const std::function<std::string(std::string_view)>& translate);

/// All phrases that may be said, for those who translate them.
std::vector<std::string> SchedulePhrases();

}  // namespace ostrel
