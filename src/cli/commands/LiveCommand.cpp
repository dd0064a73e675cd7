#include <algorithm>
#include <array>
#include <iterator>
#include <sstream>

#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"
#include "model/LiveRound.h"

namespace ostrel::cli {
namespace {

constexpr Duration kWatchInterval = std::chrono::seconds(1);

/// How a kind of value is called in the output.
struct KindWords {
  LiveKind kind;
  std::string_view key;    ///< of its list in JSON
  std::string_view title;  ///< of its lines
};

constexpr std::array<KindWords, 11> kKinds{{
    {LiveKind::Digital, "digital", "digital inputs"},
    {LiveKind::Output, "outputs", "outputs"},
    {LiveKind::Flag, "flags", "flags"},
    {LiveKind::Analog, "analog", "analog input"},
    {LiveKind::Counter, "counters", "counter"},
    {LiveKind::Flow, "flows", "flow meter"},
    {LiveKind::Math, "math", "math channel"},
    {LiveKind::MathRegister, "registers", "math register"},
    {LiveKind::Modbus, "modbus", "MODBUS channel"},
    {LiveKind::Probe, "aux", "auxiliary input"},
    {LiveKind::Module, "modules", "expansion input"},
}};

/// The values of one kind, which stand together in a round.
std::vector<LiveValue> ValuesOf(const LiveRound& round, LiveKind kind) {
  std::vector<LiveValue> values;
  std::ranges::copy_if(round.values, std::back_inserter(values),
                       [kind](const LiveValue& value) { return value.id.kind == kind; });
  return values;
}

Json MeasureJson(const LiveValue& value) {
  Json number;
  if (value.number && value.id.kind == LiveKind::Counter)
    number = static_cast<std::int64_t>(*value.number);
  else if (value.number)
    number = JsonNumber(static_cast<float>(*value.number));
  return {{"index", value.id.index}, {"name", value.name}, {"value", number}, {"unit", value.unit}};
}

Json StateJson(const LiveValue& value) { return value.on ? Json(*value.on) : Json(); }

Json LiveJson(const LiveRound& round) {
  Json live{{"time", ClockText(round.at.LocalSeconds())}};
  for (const KindWords& words : kKinds) {
    Json& list = live[std::string(words.key)] = Json::array();
    for (const LiveValue& value : ValuesOf(round, words.kind))
      list.push_back(IsState(words.kind) ? StateJson(value) : MeasureJson(value));
  }
  return live;
}

/// What stands for a value that has not come.
std::string Shown(const LiveValue& value) { return value.HasValue() ? LiveText(value) : "-"; }

void PrintLive(std::ostream& out, const LiveRound& round) {
  out << ClockText(round.at.LocalSeconds()) << '\n';
  for (const KindWords& words : kKinds) {
    const std::vector<LiveValue> values = ValuesOf(round, words.kind);
    if (IsState(words.kind) && !values.empty()) {
      out << words.title << ' ';
      for (const LiveValue& value : values) out << Shown(value);
      out << '\n';
      continue;
    }
    for (const LiveValue& value : values) {
      out << words.title << ' ' << value.id.index << ' ' << Shown(value);
      if (!value.unit.empty()) out << ' ' << Printable(value.unit);
      if (!value.name.empty()) out << "  " << Printable(value.name);
      out << '\n';
    }
  }
}

/// Each time anew on a terminal: the former values stand under the present ones then, which are
/// drawn over them line by line, so that nothing flickers.
void DrawLive(std::ostream& out, const LiveRound& round) {
  constexpr const char* kHome = "\x1b[H";
  constexpr const char* kRestOfLine = "\x1b[K\n";
  constexpr const char* kRestOfScreen = "\x1b[J";
  std::ostringstream text;
  PrintLive(text, round);
  out << kHome;
  std::istringstream lines(text.str());
  for (std::string line; std::getline(lines, line);) out << line << kRestOfLine;
  out << kRestOfScreen;
}

void Show(const Online& online, const LiveRound& round, bool watch) {
  const bool inPlace = watch && online.context.environment.outIsTerminal;
  online.context.Show(
      {[&] { return LiveJson(round); },
       [&](std::ostream& out) { inPlace ? DrawLive(out, round) : PrintLive(out, round); }},
      watch ? JsonLayout::OneLine : JsonLayout::Indented);
  online.context.console.Out().flush();
}

ExitCode RunLive(Online& online, bool watch) {
  CommandContext& context = online.context;
  const Configurator& configurator = online.configurator;
  EventLoop& loop = context.platform.loop;
  const auto interrupted = [&] { return online.session.Interrupted(); };
  for (;;) {
    const TimePoint next = loop.Now() + kWatchInterval;
    const LinkResult read = online.configurator.comms.ReadRealTime();
    // Watching is ended by an interrupt, which is no failure then.
    if (context.isDone = watch && interrupted(); context.isDone) return ExitCode::Done;
    if (!read) return online.session.Failed(read);
    Show(online,
         TakeRound(configurator.live, configurator.profile, configurator.info,
                   WallTimeOf(context.platform.clock)),
         watch);
    if (!context.console.Out()) {
      context.isDone = watch && context.Interrupted();
      return context.isDone ? ExitCode::Done : ExitCode::BadFile;
    }
    if (!watch || loop.RunUntil(interrupted, next)) return ExitCode::Done;
  }
}

}  // namespace

Command AddLive(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("live", "Show the live values of the logger");
  const auto watch = std::make_shared<bool>(false);
  parser->add_flag("--watch", *watch,
                   "Again each second, in place on a terminal, until interrupted");
  return {parser, [watch](CommandContext& context) {
            return RunOnline(context, "", [&](Online& online) { return RunLive(online, *watch); });
          }};
}

}  // namespace ostrel::cli
