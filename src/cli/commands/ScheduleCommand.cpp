#include "blocks/FileKeys.h"
#include "cli/ConfFile.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "shell/schedule/ScheduleWords.h"

namespace ostrel::cli {
namespace {

struct ScheduleOptions {
  std::string file;
  std::string from;  ///< empty for now
};

std::string NoMoment(const std::string& text) {
  return ReadDateTime(text) ? std::string()
                            : text + " is no moment: write 2026-03-02 or \"2026-03-02 08:00\"";
}

std::string English(const Phrase& phrase) { return Filled(phrase); }

/// The condition of a timer; empty for none.
std::string FlagText(const ScheduledTimer& timer) {
  return timer.Flag() > 0 ? "F" + std::to_string(timer.Flag() - 1) : std::string();
}

Json TimerJson(const ScheduledTimer& timer) {
  Json firings = Json::array();
  for (const DateTime& moment : timer.firings) firings.push_back(DateTimeText(moment));
  return {{"section", SectionName(*timer.section, timer.number)},
          {"rule", RuleText(timer, English)},
          {"condition", timer.Flag() > 0 ? Json(FlagText(timer)) : Json()},
          {"actions", timer.Actions()},
          {"firings", std::move(firings)}};
}

Json MacroJson(const ScheduledMacro& macro) {
  Json starts = Json::array();
  for (const auto& [time, section, timer] : macro.starts)
    starts.push_back({{"time", DateTimeText(time)}, {"section", SectionName(*section, timer)}});
  return {{"macro", macro.number}, {"starts", std::move(starts)}};
}

Json ScheduleJson(const ScheduleOptions& options, const TargetProfile& profile,
                  const Schedule& schedule) {
  Json timers = Json::array(), macros = Json::array();
  for (const ScheduledTimer& timer : schedule.timers) timers.push_back(TimerJson(timer));
  for (const ScheduledMacro& macro : schedule.macros) macros.push_back(MacroJson(macro));
  return {
      {"file", options.file},  {"model", profile.TargetName}, {"from", DateTimeText(schedule.from)},
      {"days", kScheduleDays}, {"timers", std::move(timers)}, {"macros", std::move(macros)}};
}

void PrintLines(std::ostream& out, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) out << "  " << line << '\n';
  if (lines.empty()) out << "  not within " << kScheduleDays << " days\n";
}

void Print(std::ostream& out, CommandContext& context, const TargetProfile& profile,
           const Schedule& schedule) {
  out << "from " << DateTimeText(schedule.from) << ", " << kScheduleDays << " days\n";
  for (const ScheduledTimer& timer : schedule.timers) {
    out << '\n'
        << TimerText(*timer.section, timer.number, English) << ": " << RuleText(timer, English);
    if (timer.Flag() > 0) out << ", if " << FlagText(timer);
    out << '\n';
    for (const std::string& action : ActionTexts(timer, profile, context.Translator()))
      out << "  runs " << action << '\n';
    PrintLines(out, MomentLines(timer.firings, English));
  }
  for (const ScheduledMacro& macro : schedule.macros) {
    out << "\nmacro " << macro.number << '\n';
    PrintLines(out, StartLines(macro, English));
  }
}

ExitCode RunSchedule(CommandContext& context, const ScheduleOptions& options) {
  const auto configuration = OpenAndTell(context, options.file);
  if (!configuration) return ExitCode::BadFile;
  const auto& [profile, conf] = *configuration;
  const DateTime from = ReadDateTime(options.from).value_or(context.platform.clock.LocalNow());
  return WithFeatures(context, options.file, [&](std::optional<std::int32_t> features) {
    const Schedule schedule = MakeSchedule(conf, {profile, features.value_or(kEveryFeature)}, from);
    if (schedule.timers.empty()) context.console.Note(options.file + ": no timer is enabled");
    return context.Show({[&] { return ScheduleJson(options, profile, schedule); },
                         [&](std::ostream& out) { Print(out, context, profile, schedule); }});
  });
}

}  // namespace

Command AddSchedule(CLI::App& app) {
  CLI::App* parser = app.add_subcommand(
      "schedule", "Show when the timers of a file fire in a week, and the macros that they start");
  const auto options = std::make_shared<ScheduleOptions>();
  parser->add_option("FILE", options->file, "Configuration file")->required();
  parser->add_option("--from", options->from, "Moment to begin at, else now")->check(NoMoment);
  parser->footer(
      "Ten firings each at the most. Cyclic and long timers count from a moment that the logger\n"
      "alone knows: they are told as if they began to count at the first moment. A timer with a\n"
      "condition is told as if its flag were true.");
  return {parser, [options](CommandContext& context) { return RunSchedule(context, *options); }};
}

}  // namespace ostrel::cli
