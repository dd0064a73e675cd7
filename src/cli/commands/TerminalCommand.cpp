#include <algorithm>
#include <deque>
#include <utility>

#include "base/CodePage.h"
#include "base/Printable.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "tools/LineStamper.h"

namespace ostrel::cli {
namespace {

using std::chrono::milliseconds;

/// Behind the answers to a command, ahead of the next one; and the longest that a command waits for
/// a console that never rests, once that has begun to answer.
constexpr Duration kBetweenCommands = milliseconds(200);
constexpr Duration kLongestBetween = std::chrono::seconds(2);
/// A console that has said nothing for so long has said all.
constexpr Duration kQuietAtEnd = std::chrono::seconds(1);
constexpr double kMostSeconds = 86'400.0 * 366;

struct TerminalOptions {
  std::string traces;  ///< "on", "off", or empty to leave them alone
  bool stamp = false;
  bool raw = false;
  std::string log;
  double seconds = 0;  ///< 0 for no limit
};

/// Ends each line by a line feed alone, whatever ended it on the wire.
class LineEnds {
 public:
  std::string Take(std::string_view piece) {
    std::string text;
    for (const char c : piece) {
      if (c != '\n' || !behindReturn_) text += c == '\r' ? '\n' : c;
      behindReturn_ = c == '\r';
    }
    return text;
  }

 private:
  bool behindReturn_ = false;
};

/// One session of the console.
class ConsoleRun {
 public:
  ConsoleRun(Online& online, const TerminalOptions& options, std::ostream* log)
      : online_(online),
        context_(online.context),
        comms_(online.configurator.comms),
        loop_(context_.platform.loop),
        options_(options),
        log_(log),
        end_(options.seconds > 0 ? loop_.Now() + std::chrono::duration_cast<Duration>(
                                                     std::chrono::duration<double>(options.seconds))
                                 : kNever) {}

  ExitCode Run() {
    if (!options_.traces.empty()) Post(options_.traces == "on" ? "#041" : "#040", false);
    std::shared_ptr<void> watch;
    if (context_.environment.watchInput)
      watch = context_.environment.watchInput([this](std::string line) { lines_.push_back(line); },
                                              [this] { inputEnded_ = true; });
    while (!IsOver()) {
      const std::size_t known = lines_.size();
      const bool ended = inputEnded_;
      const auto moved = [&] {
        return Take() || IsBroken() || lines_.size() != known || inputEnded_ != ended;
      };
      loop_.RunUntil(moved, std::min(end_, NextMoment()));
      if (!lines_.empty() && loop_.Now() >= NextMoment()) SendNext();
    }
    if (!rest_.empty()) ShowJson(std::exchange(rest_, {}));
    return Outcome();
  }

 private:
  /// A call ends with its carrier; a cable may bring text without one.
  bool IsBroken() const {
    const bool isCall = !context_.options.phone.empty();
    return online_.session.Interrupted() ||
           (isCall ? comms_.LineLost() : !comms_.TheLine().GoesOn());
  }
  bool IsOver() const {
    const bool isDone = inputEnded_ && lines_.empty() && loop_.Now() >= QuietFor(kQuietAtEnd);
    return isDone || IsBroken() || loop_.Now() >= end_ || !context_.console.Out() || logFailed_;
  }
  /// When something falls due that nothing else brings about.
  TimePoint NextMoment() const {
    if (lines_.empty()) return inputEnded_ ? QuietFor(kQuietAtEnd) : kNever;
    if (!begun_) return {};
    const TimePoint quiet = QuietFor(kBetweenCommands);
    return isAwaited_ ? quiet : std::min(quiet, *begun_ + kLongestBetween);
  }
  /// When the console will have been quiet for so long. Its first words may take as long as any
  /// answer on this kind of line.
  TimePoint QuietFor(Duration quiet) const {
    if (isAwaited_) quiet = std::max<Duration>(quiet, milliseconds(comms_.ReplyTimeout));
    return movedAt_ + quiet;
  }

  ExitCode Outcome() {
    if (logFailed_) return context_.console.Fail(ExitCode::BadFile, "cannot write " + options_.log);
    if (!context_.console.Out()) return ExitCode::BadFile;
    context_.isDone = online_.session.Interrupted();
    if (context_.isDone || !comms_.LineLost()) return ExitCode::Done;
    return online_.session.Failed(comms_.TheLine().FaultNow(LinkFault::Kind::Silence));
  }

  void SendNext() {
    const std::string line = std::move(lines_.front());
    lines_.pop_front();
    if (line.empty()) return;
    if (UpToControl(line).size() != line.size() || (options_.raw && !line.starts_with('#')))
      return context_.console.Say("not sent, it is no " +
                                  std::string(options_.raw ? "frame" : "command") + ": " +
                                  Excerpt(line));
    Post(options_.raw ? line : "#01" + line, true);
  }
  void Post(std::string message, bool isAnswered) {
    comms_.TxSer(message, 0);
    isAwaited_ = isAnswered;
    begun_ = movedAt_ = loop_.Now();
  }

  /// Shows what has come; false for nothing.
  bool Take() {
    const std::string octets = comms_.TakeInput();
    if (octets.empty()) return false;
    movedAt_ = loop_.Now();
    if (std::exchange(isAwaited_, false)) begun_ = movedAt_;
    const std::string stamp = options_.stamp ? StampOf(context_.platform.clock) : std::string();
    const std::string plain = FromCodePage(ends_.Take(octets));
    const std::string text = stamper_.Take(plain, stamp);
    if (log_ && !(*log_ << text << std::flush)) logFailed_ = true;
    if (context_.options.json)
      ShowLines(plain);
    else
      context_.console.Out() << Shown(text) << std::flush;
    return true;
  }
  /// A terminal is not to be led astray by what a logger says.
  std::string Shown(const std::string& text) const {
    if (!context_.environment.outIsTerminal) return text;
    std::string shown;
    std::string_view rest = text;
    for (std::size_t end = rest.find_first_of("\n\t"); end != std::string_view::npos;
         end = rest.find_first_of("\n\t")) {
      shown += Printable(rest.substr(0, end)) + rest[end];
      rest.remove_prefix(end + 1);
    }
    return shown + Printable(rest);
  }
  void ShowLines(std::string_view text) {
    for (const char c : text)
      if (c == '\n')
        ShowJson(std::exchange(rest_, {}));
      else
        rest_ += c;
  }
  void ShowJson(const std::string& line) {
    Json value;
    if (options_.stamp) value["time"] = DateTimeText(context_.platform.clock.LocalNow());
    value["text"] = line;
    WriteJson(context_.console.Out(), value, JsonLayout::OneLine);
    context_.console.Out().flush();
  }

  Online& online_;
  CommandContext& context_;
  Comms& comms_;
  EventLoop& loop_;
  const TerminalOptions& options_;
  std::ostream* log_;
  TimePoint end_;
  std::deque<std::string> lines_;  ///< typed, not sent yet
  bool inputEnded_ = false;
  bool logFailed_ = false;
  TimePoint movedAt_ = loop_.Now();  ///< when something was sent or came last
  std::optional<TimePoint> begun_;   ///< when the last message went, or its answer began
  bool isAwaited_ = false;           ///< nothing has come since a message that is answered
  LineEnds ends_;
  LineStamper stamper_;
  std::string rest_;  ///< of a line under way, for programs
};

/// What a range would not say of "nan" and the like.
std::string WhyNoSeconds(const std::string& text) {
  double seconds = 0;
  if (CLI::detail::lexical_cast(text, seconds) && seconds > 0 && seconds <= kMostSeconds) return {};
  return text + " is no number of seconds up to a year";
}

ExitCode RunTerminal(CommandContext& context, const TerminalOptions& options) {
  std::unique_ptr<std::ostream> log;
  if (!options.log.empty()) {
    std::string why;
    log = context.environment.openLog(options.log, why);
    if (!log)
      return context.console.Fail(ExitCode::BadFile, "cannot write " + options.log + ": " + why);
  }
  return RunOnline(context, "",
                   [&](Online& online) { return ConsoleRun(online, options, log.get()).Run(); });
}

}  // namespace

Command AddTerminal(CLI::App& app) {
  CLI::App* parser = app.add_subcommand(
      "terminal", "Show the logger's console; lines of standard input are sent as commands");
  const auto options = std::make_shared<TerminalOptions>();
  parser->add_option("--traces", options->traces, "Switch the logger's traces on or off")
      ->check(CLI::IsMember({"on", "off"}));
  parser->add_flag("--stamp", options->stamp, "The time of day before each line");
  parser->add_option("--log", options->log, "File to which all that comes is added");
  parser->add_option("--seconds", options->seconds, "End after so many seconds")
      ->check(CLI::Validator(WhyNoSeconds, "SECONDS"));
  parser->add_flag("--raw", options->raw, "Send lines as frames, which begin with \"#\"");
  return {parser, [options](CommandContext& context) { return RunTerminal(context, *options); }};
}

}  // namespace ostrel::cli
