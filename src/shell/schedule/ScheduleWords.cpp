#include "shell/schedule/ScheduleWords.h"

#include <algorithm>
#include <array>

#include "blocks/timers/EnabledTimers.h"
#include "pages/ActionCatalogue.h"

namespace ostrel {
namespace {

constexpr std::array<const char*, 7> kDays{"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"};

constexpr const char* kEverySeconds = "every %1 s";
constexpr const char* kWithin = "%1, from %2 to %3, %4";
constexpr const char* kEachDay = "every day";
constexpr const char* kEveryDays = "every %1 days";
constexpr const char* kOnDays = "on %1";
constexpr const char* kOnNoDay = "on no day";
constexpr const char* kAtTime = "%1 at %2";
constexpr const char* kLastDay = "last";

std::string WeekWords(std::uint8_t week, const Say& say) {
  if ((week & kAllDays) == kAllDays) return say({kEachDay});
  std::string days;
  for (std::size_t day = 0; day < kDays.size(); ++day)
    if ((week >> day & 1) != 0) days += (days.empty() ? "" : " ") + say({kDays[day]});
  return days.empty() ? say({kOnNoDay}) : say({kOnDays, {days}});
}

std::string MonthWords(double mask, const Say& say) {
  const std::string bits = Dec2Bin(mask);
  std::string days;
  for (std::size_t day = 0; day < bits.size(); ++day)
    if (bits[day] == '1')
      days += (days.empty() ? "" : ", ") +
              (day + 1 == bits.size() ? say({kLastDay}) : std::to_string(day + 1));
  return days.empty() ? say({kOnNoDay}) : say({kOnDays, {days}});
}

/// A number without its place for the sign.
std::string Bare(float number) {
  const std::string text = NumText(number);
  return text.starts_with(' ') ? text.substr(1) : text;
}

struct RuleWords {
  const Say& say;

  std::string operator()(const ConfCTimer& timer) const {
    const std::string period = say({kEverySeconds, {Bare(timer.PERIOD)}});
    const ValidityRange& valid = timer.valid;
    if (valid.SIEMPRE) return period;
    return say(
        {kWithin,
         {period, TimeText(valid.INICIO), TimeText(valid.FINAL), WeekWords(valid.SEMANA, say)}});
  }
  std::string operator()(const ConfLTimer& timer) const {
    if (timer.PERIOD == 1) return say({kEachDay});
    return say({kEveryDays, {std::to_string(timer.PERIOD)}});
  }
  std::string operator()(const ConfWTimer& timer) const {
    return say({kAtTime, {WeekWords(timer.SEMANA, say), TimeText(timer.INICIO)}});
  }
  std::string operator()(const ConfMTimer& timer) const {
    return say({kAtTime, {MonthWords(timer.MES, say), TimeText(timer.INICIO)}});
  }
};

/// Gathers what happens into a line for each day.
class DayLines {
 public:
  explicit DayLines(const Say& say) : say_(say) {}

  void Add(const DateTime& moment, const std::string& behind) {
    const std::string text = DateTimeText(moment);
    const std::string date = text.substr(0, text.find(' '));
    const std::string time =
        TimeText({moment.hour * 3600 + moment.minute * 60 + moment.second}) + behind;
    if (date == date_) {
      lines_.back() += ", " + time;
      return;
    }
    date_ = date;
    lines_.push_back(say_({kDays[static_cast<std::size_t>(WeekdayOf(moment))]}) + " " + date +
                     ": " + time);
  }
  std::vector<std::string> Take() { return std::move(lines_); }

 private:
  const Say& say_;
  std::string date_;
  std::vector<std::string> lines_;
};

}  // namespace

std::string TimerText(const SectionMeta& section, int number, const Say& say) {
  return say({std::string(section.words)}) + " " + std::to_string(number);
}

std::string RuleText(const ScheduledTimer& timer, const Say& say) {
  return std::visit(RuleWords{say}, timer.record);
}

std::vector<std::string> MomentLines(const std::vector<DateTime>& moments, const Say& say) {
  DayLines lines(say);
  for (const DateTime& moment : moments) lines.Add(moment, "");
  return lines.Take();
}

std::vector<std::string> StartLines(const ScheduledMacro& macro, const Say& say) {
  DayLines lines(say);
  for (const auto& [time, section, timer] : macro.starts)
    lines.Add(time, " (" + TimerText(*section, timer, say) + ")");
  return lines.Take();
}

std::vector<std::string> ActionTexts(
    const ScheduledTimer& timer, const TargetProfile& profile,
    const std::function<std::string(std::string_view)>& translate) {
  const std::vector<ActionItem> offered = OfferedActions(profile, translate);
  std::vector<std::string> texts;
  for (const std::int16_t number : timer.Actions()) {
    const auto item = std::ranges::find(offered, number, &ActionItem::number);
    texts.push_back(item == offered.end() ? std::to_string(number) : item->text);
  }
  return texts;
}

std::vector<std::string> SchedulePhrases() {
  std::vector<std::string> phrases{kEverySeconds, kWithin,  kEachDay, kEveryDays,
                                   kOnDays,       kOnNoDay, kAtTime,  kLastDay};
  phrases.insert(phrases.end(), kDays.begin(), kDays.end());
  for (const SectionMeta* section : {&CyclicTimers::kSection, &LongTimers::kSection,
                                     &WeeklyTimers::kSection, &MonthlyTimers::kSection})
    phrases.emplace_back(section->words);
  return phrases;
}

}  // namespace ostrel
