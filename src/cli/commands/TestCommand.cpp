#include <iomanip>

#include "base/Scope.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "factory/TestRun.h"
#include "shell/ledger/TestRunBook.h"

namespace ostrel::cli {
namespace {

struct TestOptions {
  std::string word;
  Station station;  ///< what is named here goes before what is stored
  bool skipsKeys = false;
};

/// What was read; an old reading that was judged for want of a new one is none.
std::string Reading(const Measurement& measured) {
  return measured.value ? measured.Text() : "not read";
}

/// A test run on a terminal: what it does and finds are words about the work, what it asks for is
/// asked of the operator.
class TerminalPanel final : public TestPanel {
 public:
  explicit TerminalPanel(Online& online) : online_(online) {}

  /// What the operator waits for is said in any case.
  void ShowStep(std::string_view text, StepKind kind) override {
    kind == StepKind::Work ? Console().Note(text) : Console().Say(text);
  }
  void ShowMeasured(const Measurement& measured) override {
    Console().Note("  " + measured.name + " = " + Reading(measured) + " (" + measured.band.Text() +
                   ")");
  }
  void ShowSignal(int rssi) override { Console().Note("  Gsm: " + std::to_string(rssi)); }
  void ShowSerial(const std::string& serial) override {
    Console().Note("  Serial: " + Printable(serial));
  }
  void TellFailure(const std::string& text) override { Console().Say(text); }
  void Request(const std::string& text) override { online_.context.dialogs.AwaitDone(text); }
  bool AskAgain(const std::string& text) override {
    return !online_.context.options.yes && online_.context.dialogs.Confirm(text);
  }
  void CloseSession() override { online_.session.Close(); }

 private:
  cli::Console& Console() { return online_.context.console; }

  Online& online_;
};

Json JsonOf(const TestRecord& record) {
  Json values = Json::array();
  for (const Measurement& measured : record.values)
    values.push_back({{"name", measured.name},
                      {"value", measured.value ? JsonNumber(*measured.value) : Json()},
                      {"band", measured.band.Text()},
                      {"passed", measured.passed}});
  const std::chrono::duration<double> seconds = record.duration;
  return {{"time", DateTimeText(record.startedAt)},
          {"test", record.test},
          {"model", record.model},
          {"operator", record.operatorName},
          {"station", record.station},
          {"serial", record.serial},
          {"givenSerial", record.givenSerial},
          {"verdict", VerdictWord(record.verdict)},
          {"checked", record.checked},
          {"seconds", seconds.count()},
          {"failures", record.failures},
          {"values", std::move(values)}};
}

void WriteRecord(std::ostream& out, const TestRecord& record) {
  constexpr int kNameWidth = 14, kValueWidth = 12, kBandWidth = 14;
  for (const Measurement& measured : record.values)
    out << std::left << std::setw(kNameWidth) << measured.name << ' ' << std::setw(kValueWidth)
        << Reading(measured) << ' ' << std::setw(kBandWidth) << measured.band.Text() << ' '
        << (measured.passed ? "ok" : "FAILED") << '\n';
  out << record.model << ", serial number " << Printable(record.serial) << ": "
      << VerdictWord(record.verdict) << '\n';
}

/// What a run came to, with a line that says why where it did not come to its end.
ExitCode CodeOf(CommandContext& context, const TestRun& run, const TestRecord& record) {
  if (!run.Kept())
    return context.console.Fail(ExitCode::BadFile, "the record of the test was not kept");
  if (record.verdict == TestVerdict::Stopped)
    return context.console.Fail(ExitCode::DialogueFailed, "the test was stopped");
  if (record.verdict == TestVerdict::BrokenOff)
    return context.console.Fail(ExitCode::DialogueFailed, "the line has gone");
  if (record.verdict == TestVerdict::Failed) return ExitCode::Differences;
  if (!record.checked) return context.console.Fail(ExitCode::DialogueFailed, kUnconfirmed);
  return ExitCode::Done;
}

/// The first interrupt stops the run and lets it switch the fixture off; the next one closes the
/// port. One that leaves a question is told by the question, and again as it is served.
ExitCode RunTest(Online& online, const TestPlan& plan, const TestChoice& choice) {
  TerminalPanel panel(online);
  TestFrame frame;
  TestRun run(online.configurator.Bench(), plan, choice, panel, frame);
  std::function<void()>& onInterrupt = online.context.environment.onInterrupt;
  const Lent<std::function<void()>> stops(
      onInterrupt, [&run, &context = online.context, stopped = false, isToldTwice = false,
                    closePort = onInterrupt]() mutable {
        if (std::exchange(isToldTwice, false)) return;
        isToldTwice = context.dialogs.Left() && context.Interrupted();
        if (std::exchange(stopped, true)) return closePort();
        run.Stop();
      });
  if (!plan.hint.empty()) online.context.console.Say(plan.hint);
  const TestRecord& record = run.Run();
  const ExitCode shown = online.context.Show(
      {[&] { return JsonOf(record); }, [&](std::ostream& out) { WriteRecord(out, record); }});
  return shown == ExitCode::Done ? CodeOf(online.context, run, record) : shown;
}

const TestPlan& PlanOf(std::string_view word) {
  for (const TestPlan* plan : TestPlans())
    if (plan->word == word) return *plan;
  throw std::logic_error("no such test");
}

ExitCode RunTestCommand(CommandContext& context, const TestOptions& options) {
  const TestPlan& plan = PlanOf(options.word);
  PortChoice port;
  if (const ExitCode chosen = context.ChoosePort(port); chosen != ExitCode::Done) return chosen;
  const std::string named = context.options.target.empty()
                                ? port.simulatedModel
                                : std::string(FindTarget(context.options.target)->name);
  if (!named.empty() && named != plan.modelName)
    return context.console.Fail(ExitCode::Usage, "the test " + options.word + " is for the model " +
                                                     std::string(plan.modelName) + ", not " +
                                                     named);
  if (options.skipsKeys && &plan != &kTestBQ)
    return context.console.Fail(ExitCode::Usage,
                                "--skip-keys: the test " + options.word + " has no keys");
  TestChoice choice{
      .station = StoredStation(context.platform.settings, context.environment.station),
      .skipsKeys = options.skipsKeys};
  if (!options.station.operatorName.empty())
    choice.station.operatorName = options.station.operatorName;
  if (!options.station.name.empty()) choice.station.name = options.station.name;
  if (!options.station.folder.empty()) choice.station.folder = options.station.folder;
  return RunOnlineAs(context, port, std::string(plan.modelName),
                     [&](Online& online) { return RunTest(online, plan, choice); });
}

}  // namespace

Command AddTest(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("test", "Test a new board on its fixture");
  const auto options = std::make_shared<TestOptions>();
  parser->add_option("TEST", options->word, "main (Tavro BP), ka2 or bq")
      ->required()
      ->check(CLI::IsMember({"main", "ka2", "bq"}));
  parser->add_option("--operator", options->station.operatorName, "Who tests, for the record");
  parser->add_option("--station", options->station.name, "Where, for the record");
  parser->add_option("--folder", options->station.folder,
                     "Folder of the records and of the counter of serial numbers; stations may "
                     "share it");
  parser->add_flag("--skip-keys", options->skipsKeys, "Leave out the keys at the inputs of a BQ");
  return {parser, [options](CommandContext& context) { return RunTestCommand(context, *options); }};
}

}  // namespace ostrel::cli
