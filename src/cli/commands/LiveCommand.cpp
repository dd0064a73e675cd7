#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <memory>
#include <optional>
#include <sstream>

#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"
#include "model/LiveRound.h"
#include "tools/live/LiveRecording.h"

namespace ostrel::cli {
namespace {

constexpr int kLongestIntervalMs = 86'400'000;

struct LiveOptions {
  bool watch = false;
  int intervalMs = 1000;  ///< from the beginning of a round to that of the next
  int count = 0;          ///< rounds; 0 for no end
  std::string csv;        ///< file that gets the rounds; empty for none
};

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
  if (value.IsFresh() && value.id.kind == LiveKind::Counter)
    number = static_cast<std::int64_t>(*value.number);
  else if (value.IsFresh())
    number =
        IsWide(value.id.kind) ? Json(*value.number) : JsonNumber(static_cast<float>(*value.number));
  return {{"index", value.id.index}, {"name", value.name}, {"value", number}, {"unit", value.unit}};
}

Json StateJson(const LiveValue& value) { return value.IsFresh() ? Json(*value.on) : Json(); }

Json LiveJson(const LiveRound& round) {
  Json live{{"time", ClockText(round.at.LocalSeconds())}};
  for (const KindWords& words : kKinds) {
    Json& list = live[std::string(words.key)] = Json::array();
    for (const LiveValue& value : ValuesOf(round, words.kind))
      list.push_back(IsState(words.kind) ? StateJson(value) : MeasureJson(value));
  }
  return live;
}

/// A value that did not come in this round is none.
std::string Shown(const LiveValue& value) { return value.IsFresh() ? LiveText(value) : "-"; }

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

/// Whether the next round may bring what this one did not.
bool IsPassing(const LinkFault& fault) {
  using Kind = LinkFault::Kind;
  return fault.IsDamage() || fault.kind == Kind::Silence || fault.kind == Kind::WrongAnswer;
}

/// Reads rounds and shows or records them.
class LiveRun {
 public:
  LiveRun(Online& online, const LiveOptions& options)
      : online_(online), context_(online.context), options_(options) {}

  ExitCode Run() {
    if (const ExitCode opened = OpenRecording(); opened != ExitCode::Done) return opened;
    EventLoop& loop = context_.platform.loop;
    const auto interrupted = [this] { return online_.session.Interrupted(); };
    for (int round = 1;; ++round) {
      const TimePoint next = loop.Now() + std::chrono::milliseconds(options_.intervalMs);
      const LinkResult read = online_.configurator.comms.ReadRealTime();
      // Watching is ended by an interrupt, which is no failure then.
      if (context_.isDone = options_.watch && interrupted(); context_.isDone) return ExitCode::Done;
      const bool isLast = !options_.watch || round == options_.count;
      // While watching, a round that failed has its row, of gaps, the last one as any other.
      const bool hasRow = read || (options_.watch && IsPassing(read.Fault()));
      if (!hasRow) return online_.session.Failed(read);
      if (const ExitCode taken = Take(); taken != ExitCode::Done) return taken;
      if (!read && isLast) return online_.session.Failed(read);
      if (isLast || loop.RunUntil(interrupted, next)) return ExitCode::Done;
    }
  }

 private:
  bool IsOnOutput() const { return options_.csv == kStandard; }

  /// A former recording goes with a question alone: nobody measures those rounds again.
  bool MayReplace() {
    std::string end;
    const FileResult read = context_.platform.files.ReadEnd(options_.csv, 1, end);
    return !read.Ok() || end.empty() ||
           context_.dialogs.Confirm(options_.csv + " holds something already. Replace it?");
  }

  ExitCode OpenRecording() {
    if (options_.csv.empty()) return ExitCode::Done;
    if (!IsOnOutput() && !MayReplace())
      return context_.console.Fail(ExitCode::BadFile, options_.csv + " holds something already: " +
                                                          "--yes replaces a recording");
    std::string why;
    auto out = IsOnOutput() ? std::make_unique<std::ostream>(context_.console.Out().rdbuf())
                            : context_.environment.openRecording(options_.csv, why);
    if (!out)
      return context_.console.Fail(ExitCode::BadFile,
                                   "cannot write the values to " + options_.csv + ": " + why);
    recording_.emplace(std::move(out));
    return ExitCode::Done;
  }

  /// Records and shows the values as they are now.
  ExitCode Take() {
    const Configurator& program = online_.configurator;
    const LiveRound round =
        TakeRound(program.live, program.profile, program.info, WallTimeOf(context_.platform.clock));
    if (recording_ && !recording_->Add(round)) {
      if (IsOnOutput()) return Unread();
      return context_.console.Fail(ExitCode::BadFile,
                                   "cannot write the values to " + options_.csv + " to the end");
    }
    if (!IsOnOutput()) Show(online_, round, options_.watch);
    return context_.console.Out() ? ExitCode::Done : Unread();
  }

  /// Nobody reads the output any more, which an interrupt may have ended as well.
  ExitCode Unread() {
    context_.isDone = options_.watch && context_.Interrupted();
    return context_.isDone ? ExitCode::Done : ExitCode::BadFile;
  }

  Online& online_;
  CommandContext& context_;
  const LiveOptions& options_;
  std::optional<LiveRecording> recording_;
};

}  // namespace

Command AddLive(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("live", "Show the live values of the logger");
  const auto options = std::make_shared<LiveOptions>();
  CLI::Option* watch = parser->add_flag(
      "--watch", options->watch, "Again each second, in place on a terminal, until interrupted");
  parser->add_option("--interval", options->intervalMs, "Milliseconds from one round to the next")
      ->needs(watch)
      ->check(CLI::Range(1, kLongestIntervalMs))
      ->type_name("MS");
  parser->add_option("--count", options->count, "End after so many rounds")
      ->needs(watch)
      ->check(CLI::Range(1, std::numeric_limits<int>::max()))
      ->type_name("N");
  parser
      ->add_option("--csv", options->csv,
                   "Record the rounds as comma-separated values; \"-\" for standard output")
      ->type_name("FILE");
  return {parser, [options](CommandContext& context) {
            return RunOnline(context, "",
                             [&](Online& online) { return LiveRun(online, *options).Run(); });
          }};
}

}  // namespace ostrel::cli
