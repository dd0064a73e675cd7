#include <sstream>
#include <variant>

#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"
#include "shell/LiveTable.h"

namespace ostrel::cli {
namespace {

constexpr Duration kWatchInterval = std::chrono::seconds(1);

std::vector<LiveGroup> GroupsOf(const Online& online) {
  const Configurator& configurator = online.configurator;
  return LiveGroups(configurator.live, configurator.profile, configurator.info.Features);
}

std::vector<LiveStates> StatesOf(const Online& online) {
  return LiveStatesOf(online.configurator.live, online.configurator.profile);
}

Json LiveJson(const Online& online) {
  Json live{{"time", ClockText(online.context.platform.clock.LocalNow())}};
  for (const LiveStates& states : StatesOf(online)) {
    Json& list = live[std::string(states.key)] = Json::array();
    for (int i = 0; i < states.count; ++i) list.push_back((states.mask >> i & 1U) != 0);
  }
  for (const LiveGroup& group : GroupsOf(online)) {
    Json& list = live[std::string(group.key)] = Json::array();
    for (const LiveMeasure& measure : group.measures) {
      const auto* number = std::get_if<float>(&measure.value);
      list.push_back(
          {{"index", measure.index},
           {"name", measure.name},
           {"value", number ? JsonNumber(*number) : Json(std::get<std::int32_t>(measure.value))},
           {"unit", measure.unit}});
    }
  }
  return live;
}

void PrintLive(std::ostream& out, const Online& online) {
  out << ClockText(online.context.platform.clock.LocalNow()) << '\n';
  for (const LiveStates& states : StatesOf(online)) {
    if (states.count == 0) continue;
    out << states.title << ' ';
    for (int i = 0; i < states.count; ++i) out << ((states.mask >> i & 1U) != 0 ? '1' : '0');
    out << '\n';
  }
  for (const LiveGroup& group : GroupsOf(online))
    for (const LiveMeasure& measure : group.measures) {
      out << group.title << ' ' << measure.index << ' ' << LiveText(measure);
      if (!measure.unit.empty()) out << ' ' << Printable(measure.unit);
      if (!measure.name.empty()) out << "  " << Printable(measure.name);
      out << '\n';
    }
}

/// Each time anew on a terminal: the former values stand under the present ones then, which are
/// drawn over them line by line, so that nothing flickers.
void DrawLive(std::ostream& out, const Online& online) {
  constexpr const char* kHome = "\x1b[H";
  constexpr const char* kRestOfLine = "\x1b[K\n";
  constexpr const char* kRestOfScreen = "\x1b[J";
  std::ostringstream text;
  PrintLive(text, online);
  out << kHome;
  std::istringstream lines(text.str());
  for (std::string line; std::getline(lines, line);) out << line << kRestOfLine;
  out << kRestOfScreen;
}

void Show(const Online& online, bool watch) {
  const bool inPlace = watch && online.context.environment.outIsTerminal;
  online.context.Show(
      {[&] { return LiveJson(online); },
       [&](std::ostream& out) { inPlace ? DrawLive(out, online) : PrintLive(out, online); }},
      watch ? JsonLayout::OneLine : JsonLayout::Indented);
  online.context.console.Out().flush();
}

ExitCode RunLive(Online& online, bool watch) {
  CommandContext& context = online.context;
  EventLoop& loop = context.platform.loop;
  const auto interrupted = [&] { return online.session.Interrupted(); };
  for (;;) {
    const TimePoint next = loop.Now() + kWatchInterval;
    const LinkResult read = online.configurator.comms.ReadRealTime();
    // Watching is ended by an interrupt, which is no failure then.
    if (context.isDone = watch && interrupted(); context.isDone) return ExitCode::Done;
    if (!read) return online.session.Failed(read);
    Show(online, watch);
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
