#include <sstream>
#include <variant>

#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"
#include "model/Features.h"

namespace ostrel::cli {
namespace {

constexpr Duration kWatchInterval = std::chrono::seconds(1);

/// One measured channel, ready to be shown.
struct Measure {
  int index;
  std::variant<float, std::int32_t> value;
  std::string name, unit;
};

/// The channels of one kind.
struct Group {
  std::string_view key;
  std::string_view title;
  std::vector<Measure> measures;
};

/// States told by the bits of a mask.
struct States {
  std::string_view key;
  std::string_view title;
  std::uint32_t mask;
  int count;
};

template <class Values, class Names, class Units>
Group MakeGroup(std::string_view key, std::string_view title, int count, const Values& values,
                const Names& names, const Units& units) {
  Group group{key, title, {}};
  for (int i = 0; i < count; ++i) group.measures.push_back({i, values[i], names[i], units[i]});
  return group;
}

std::vector<Group> GroupsOf(const Configurator& configurator) {
  const TargetProfile& model = configurator.profile;
  const RealTimeData& live = configurator.live;
  const Bounded<std::string, 10> noUnits;
  const int aux = model.IsKA1 || model.IsKA2 ? 4 : 0;
  const int math = Has(configurator.info.Features, Feature::Math) ? model.MathCount : 0;
  return {
      MakeGroup("analog", "analog input", model.AnalogCount, live.AnalogValue, live.AnalogName,
                live.AnalogUnit),
      MakeGroup("counters", "counter", model.CaudalCount, live.CounterValue, live.CounterName,
                noUnits),
      MakeGroup("flows", "flow meter", model.CaudalCount, live.FlowValue, live.FlowName,
                live.FlowUnit),
      MakeGroup("math", "math channel", math, live.MathValue, live.MathName, live.MathUnit),
      MakeGroup("modbus", "MODBUS channel", model.IsVR200 ? model.ModbusCount : 0, live.ModbusValue,
                live.ModbusName, live.ModbusUnit),
      MakeGroup("aux", "auxiliary input", aux, live.AuxValue, live.AuxName, live.AuxUnit),
      MakeGroup("modules", "expansion input", model.ModuloCount, live.ModuloValue, live.ModuloName,
                live.ModuloUnit),
  };
}

std::vector<States> StatesOf(const Configurator& configurator) {
  const RealTimeData& live = configurator.live;
  return {{"digital", "digital inputs", static_cast<std::uint16_t>(live.DigitalMask),
           configurator.profile.DigitalCount},
          {"outputs", "outputs", static_cast<std::uint16_t>(live.OutputMask),
           configurator.profile.OutputCount},
          {"flags", "flags", static_cast<std::uint32_t>(live.FlagMask), 16}};
}

Json LiveJson(const Online& online) {
  Json live{{"time", ClockText(online.context.platform.clock.LocalNow())}};
  for (const States& states : StatesOf(online.configurator)) {
    Json& list = live[std::string(states.key)] = Json::array();
    for (int i = 0; i < states.count; ++i) list.push_back((states.mask >> i & 1U) != 0);
  }
  for (const Group& group : GroupsOf(online.configurator)) {
    Json& list = live[std::string(group.key)] = Json::array();
    for (const Measure& measure : group.measures) {
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
  for (const States& states : StatesOf(online.configurator)) {
    if (states.count == 0) continue;
    out << states.title << ' ';
    for (int i = 0; i < states.count; ++i) out << ((states.mask >> i & 1U) != 0 ? '1' : '0');
    out << '\n';
  }
  for (const Group& group : GroupsOf(online.configurator))
    for (const Measure& measure : group.measures) {
      const auto* number = std::get_if<float>(&measure.value);
      const std::string value =
          number ? DecText(*number) : std::to_string(std::get<std::int32_t>(measure.value));
      out << group.title << ' ' << measure.index << ' ' << value;
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
