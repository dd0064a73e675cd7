#include <algorithm>
#include <cstdlib>

#include "blocks/bus/ModbusChannels.h"
#include "blocks/timers/EnabledTimers.h"
#include "shell/check/CheckRules.h"

namespace ostrel {
namespace {

Finding AtTimer(const SectionMeta& section, int timer, std::string_view word, Phrase sentence) {
  return {SectionName(section, timer), std::string(word), std::move(sentence)};
}

/// Why an enabled timer never runs: the field and what is wrong with it.
struct Idleness {
  std::string_view word;
  const char* sentence;
};

constexpr Idleness kNoPeriod{"PERIOD",
                             "the timer is enabled, but its period is not above 0: give it one"};
constexpr Idleness kNoWeek{"SEMANA", "the timer is enabled, but on no day: choose days"};
constexpr Idleness kNoMonth{"MES", "the timer is enabled, but on no day: choose days"};

std::optional<Idleness> WhyIdle(const ConfCTimer& timer) {
  if (!(timer.PERIOD > 0)) return kNoPeriod;
  if (!timer.valid.SIEMPRE && (timer.valid.SEMANA & kAllDays) == 0) return kNoWeek;
  return {};
}
std::optional<Idleness> WhyIdle(const ConfLTimer& timer) {
  if (timer.PERIOD <= 0) return kNoPeriod;
  return {};
}
std::optional<Idleness> WhyIdle(const ConfWTimer& timer) {
  if ((timer.SEMANA & kAllDays) == 0) return kNoWeek;
  return {};
}
std::optional<Idleness> WhyIdle(const ConfMTimer& timer) {
  if (Dec2Bin(timer.MES).find('1') == std::string::npos) return kNoMonth;
  return {};
}

/// The actions that read channels of the bus: all of them, or one of the groups.
constexpr std::int16_t kReadAllModbus = 70;
constexpr std::int16_t kReadLastModbusGroup = 74;

bool ReadsModbus(const ActionList& actions) {
  return std::any_of(actions.begin(), actions.begin() + kActionPlaces, [](std::int16_t number) {
    return number >= kReadAllModbus && number <= kReadLastModbusGroup;
  });
}

}  // namespace

std::vector<Finding> LongPeriods(const Examined& file) {
  std::vector<Finding> found;
  EachEnabledTimer(file.Conf(), [&](const SectionMeta& section, int number, const auto& timer) {
    if constexpr (Is<std::remove_cvref_t<decltype(timer)>, ConfLTimer>)
      if (std::abs(int{timer.PERIOD}) > LongTimers::kMostDays)
        found.push_back(AtTimer(
            section, number, "PERIOD",
            {"%1 days do not fit a statement, and nothing can be sent: choose at most 24855",
             {std::to_string(timer.PERIOD)}}));
  });
  return found;
}

std::vector<Finding> TimersThatNeverRun(const Examined& file) {
  std::vector<Finding> found;
  EachEnabledTimer(file.Conf(), [&](const SectionMeta& section, int number, const auto& timer) {
    if (const auto idle = WhyIdle(timer))
      found.push_back(AtTimer(section, number, idle->word, idle->sentence));
  });
  return found;
}

std::vector<Finding> TimersWithoutActions(const Examined& file) {
  std::vector<Finding> found;
  EachEnabledTimer(file.Conf(), [&](const SectionMeta& section, int number, const auto& timer) {
    if (CountActions(timer.ACT) == 0 && !WhyIdle(timer))
      found.push_back(AtTimer(section, number, "ACT( 0)",
                              "the timer is enabled, but runs no action: choose one"));
  });
  return found;
}

/// Which channels a group holds is the logger's to know, so any reading counts for all.
std::vector<Finding> ModbusNeverRead(const Examined& file) {
  if (!file.Conf().ModbusBus.MASTER) return {};
  bool isRead = false;
  EachEnabledTimer(file.Conf(), [&](const SectionMeta&, int, const auto& timer) {
    isRead = isRead || (ReadsModbus(timer.ACT) && !WhyIdle(timer));
  });
  if (isRead) return {};
  std::vector<Finding> found;
  for (int c = 0; c < ModbusChannels::Count({file.Model(), kEveryFeature}); ++c) {
    const ConfModbus& channel = file.Conf().Modbus[c];
    if (channel.SLAVE == 0 || ModbusChannels::IsOff(channel)) continue;
    found.push_back({SectionName(ModbusChannels::kSection, c), "SLAVE",
                     "no timer reads the channel: let one run action 70, or that of its group"});
  }
  return found;
}

}  // namespace ostrel
