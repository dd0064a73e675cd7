#include <algorithm>

#include "base/Channels.h"
#include "model/Features.h"
#include "shell/report/ReportWriter.h"
#include "shell/schedule/ScheduleWords.h"
#include "shell/words/FieldWords.h"
#include "shell/words/Recipients.h"

namespace ostrel::report {
namespace {

constexpr std::array<std::string_view, 7> kWeek{"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"};

std::string Joined(const std::vector<std::string>& texts, std::string_view between) {
  std::string joined;
  for (const std::string& text : texts) joined.append(joined.empty() ? "" : between).append(text);
  return joined;
}

std::string MaskTokens(const ConfPhone& phone, bool isS100) {
  std::vector<std::string> tokens;
  for (int place = 0; place < kMaskPlaces; ++place)
    if (std::string token = ChannelToToken(phone.ListaMask[place], isS100); !token.empty())
      tokens.push_back(std::move(token));
  return Joined(tokens, " ");
}

// Names of timers and of actions are long words, times of a day are short.
constexpr int kTimerWidth = 14, kRuleWidth = 15, kDayWidth = 8, kActionsWidth = 15;

/// A time of day, without its seconds where these are none.
std::string ShortTime(const TimeOfDay& time) {
  std::string text = TimeText(time);
  if (text.ends_with(":00")) text.resize(text.size() - 3);
  return text;
}

/// When a timer runs on each day of a week, Monday first; nothing where the days of a week do not
/// decide it.
struct DayTimes {
  using Days = std::array<std::string, 7>;

  static Days On(std::uint8_t week, const std::string& text) {
    Days days;
    for (std::size_t day = 0; day < days.size(); ++day)
      if ((week >> day & 1U) != 0) days[day] = text;
    return days;
  }
  Days operator()(const ConfCTimer& timer) const {
    const ValidityRange& valid = timer.valid;
    if (valid.SIEMPRE) return On(kAllDays, "0:00 - 24:00");
    return On(valid.SEMANA, ShortTime(valid.INICIO) + " - " + ShortTime(valid.FINAL));
  }
  Days operator()(const ConfWTimer& timer) const {
    return On(timer.SEMANA, ShortTime(timer.INICIO));
  }
  Days operator()(const ConfLTimer&) const { return {}; }
  Days operator()(const ConfMTimer&) const { return {}; }
};

}  // namespace

ReportPart Writer::Telephones() const {
  ReportPart part{.form = ReportForm::Table,
                  .caption = Say("Telephones"),
                  .head = Head({"number", "priority", "privilege", "gets the alarms of"})};
  for (int slot = 0; slot < kPhones; ++slot) {
    const ConfPhone& phone = Conf().Phone[slot];
    if (phone.TLF.empty()) continue;
    const std::string tokens = MaskTokens(phone, Model().IsS100);
    std::string channels = Say("all channels");
    if (phone.MASKMODE != 0)
      channels = Say(phone.MASKMODE == 1 ? "these alone:" : "all but these:") + " " + tokens;
    part.rows.push_back({phone.TLF, phone.Prio == 0 ? Say("none") : std::to_string(phone.Prio),
                         PrivilegeText(phone.PRV), channels});
  }
  if (part.rows.empty()) return {.note = Say("No telephone is told anything.")};
  return part;
}

std::string Writer::PrivilegeText(std::int16_t level) const {
  constexpr std::array<std::string_view, 4> kLevels{"User", "Advanced user", "Administrator",
                                                    "Kestrel"};
  const auto place = static_cast<std::size_t>(level);
  return place < kLevels.size() ? Say(kLevels[place]) : std::to_string(level);
}

std::string Writer::Ways(const AlarmBlock& alarm) const {
  std::vector<std::string> ways;
  if (alarm.SMS) ways.push_back(Say("SMS"));
  if (alarm.VOZ) ways.push_back(Say("SMS and voice"));
  if (alarm.GPRS) ways.push_back(Say("GPRS"));
  return ways.empty() ? Say("nobody") : Joined(ways, ", ");
}

ReportPart Writer::Alarms() const {
  ReportPart part{.form = ReportForm::Table,
                  .caption = Say("Alarms"),
                  .head = Head({"channel", "alarm", "text", "told by", "told to"})};
  const Receiver receiver{Model(), Features().value_or(kEveryFeature)};
  VisitAlarms(Conf(), receiver, [&](const AlarmPlace& place, const AlarmBlock& alarm) {
    if (!alarm.HABIL) return;
    const bool isByPhone = alarm.SMS || alarm.VOZ;
    const std::vector<std::string> numbers =
        isByPhone ? RecipientsOf(Conf(), place, Model().IsS100, Features())
                  : std::vector<std::string>();
    part.rows.push_back({SectionWords({place.section, place.channel, {}, {}}, language_.say),
                         std::to_string(place.config), alarm.TEXTO, Ways(alarm),
                         Joined(numbers, "\n")});
  });
  if (part.rows.empty()) return {.note = Say("No alarm is enabled.")};
  return part;
}

ReportSection Writer::Recipients() const {
  return {Say("Who is told what"), {Telephones(), Alarms()}};
}

ReportSection Writer::Timers() const {
  const ostrel::Say say = [this](const Phrase& phrase) {
    return Filled(Say(phrase.text), phrase.arguments);
  };
  const Receiver receiver{Model(), Features().value_or(kEveryFeature)};
  ReportPart part{.form = ReportForm::Table,
                  .head = Head({"timer", "when"}),
                  .widths = {kTimerWidth, kRuleWidth}};
  for (const std::string_view day : kWeek) part.head.push_back(Say(day));
  part.head.push_back(Say("runs"));
  part.widths.resize(part.head.size() - 1, kDayWidth);
  part.widths.push_back(kActionsWidth);
  for (const ScheduledTimer& timer : MakeSchedule(Conf(), receiver, work_.madeAt).timers) {
    std::string rule = RuleText(timer, say);
    if (timer.Flag() > 0) rule += ", " + Say("if") + " F" + std::to_string(timer.Flag() - 1);
    std::vector<std::string> row{TimerText(*timer.section, timer.number, say), std::move(rule)};
    for (const std::string& times : std::visit(DayTimes{}, timer.record)) row.push_back(times);
    row.push_back(Joined(ActionTexts(timer, Model(), language_.translate), "\n"));
    part.rows.push_back(std::move(row));
  }
  if (part.rows.empty()) part = {.note = Say("No timer is enabled.")};
  return {Say("Timers in a week"), {part}};
}

}  // namespace ostrel::report
