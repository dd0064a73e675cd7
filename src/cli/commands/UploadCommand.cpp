#include <set>

#include "cli/ConfFile.h"
#include "cli/DifferenceText.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "cli/commands/UploadRun.h"
#include "host/LoggerText.h"
#include "link/UploadPlan.h"
#include "shell/ledger/History.h"
#include "shell/ledger/IdentityGuard.h"
#include "shell/writing/GuardedWrite.h"
#include "shell/writing/WriteDoubts.h"

namespace ostrel::cli {
namespace {

/// What an upload came to.
struct UploadResult {
  std::string backup;                    ///< path of the safety copy; empty without one
  std::optional<Comparison> comparison;  ///< with what was read back; nothing when not verified
};

std::string PlanText(std::size_t statements, std::int32_t features, const UploadPlan& plan) {
  return std::to_string(statements) + " statements for features " + FeaturesText(features) + ", " +
         std::to_string(plan.octets) + " octets, about " + DurationText(plan.duration) +
         " on the line";
}

Json PlanJson(const TargetProfile& profile, std::int32_t features,
              const std::vector<std::string>& statements) {
  const UploadPlan plan = PlanUpload(statements, features);
  return {{"model", profile.TargetName},
          {"features", FeaturesText(features)},
          {"statements", statements.size()},
          {"octets", plan.octets},
          {"seconds", std::chrono::duration<double>(plan.duration).count()}};
}

ExitCode ShowPlan(CommandContext& context, const ModelConfiguration& configuration,
                  std::int32_t features) {
  std::vector<std::string> statements;
  const ExitCode made =
      MakeStatements(context, configuration.conf, {configuration.profile, features}, statements);
  if (made != ExitCode::Done) return made;
  return context.Show(
      {[&] {
         Json plan = PlanJson(configuration.profile, features, statements);
         plan["statementTexts"] = context.Shown(statements);
         return plan;
       },
       [&](std::ostream& out) {
         for (const std::string& statement : context.Shown(statements))
           out << Printable(statement) << '\n';
         out << PlanText(statements.size(), features, PlanUpload(statements, features)) << '\n';
       }});
}

ExitCode Report(Online& online, const UploadOptions& options, const DeviceConf& sent,
                const UploadResult& result) {
  CommandContext& context = online.context;
  Configurator& configurator = online.configurator;
  const std::int32_t features = configurator.info.Features;
  const bool isSame = !result.comparison || result.comparison->isSame;
  context.Show({[&] {
                  Json json{{"file", options.file}, {"serial", configurator.info.SerialNumber}};
                  json.update(PlanJson(configurator.profile, features,
                                       ComposeStatements(sent, {configurator.profile, features})));
                  json["backup"] = result.backup.empty() ? Json() : Json(result.backup);
                  json["verified"] = result.comparison ? Json(isSame) : Json();
                  if (result.comparison) {
                    // What this logger does not get cannot come back.
                    json["differences"] = DifferencesJson(*result.comparison, true);
                    json["notSent"] = DifferencesJson(*result.comparison, false);
                  }
                  return json;
                },
                [&](std::ostream& out) {
                  if (!isSame) PrintDifferences(out, *result.comparison);
                }});
  if (!isSame)
    return context.console.Fail(ExitCode::Differences,
                                "the logger holds another configuration than was sent");
  context.isDone = true;
  context.console.Note(result.comparison ? "configuration written and verified"
                                         : "configuration written");
  return ExitCode::Done;
}

/// Refuses what speaks against writing a file, unless it is forced: errors that `check` finds, a
/// file or a logger of another model than the one chosen. What is forced is told once.
class Refusal {
 public:
  Refusal(CommandContext& context, bool isForced) : context_(context), isForced_(isForced) {}

  ExitCode Of(const std::vector<std::string>& doubts) {
    if (doubts.empty()) return ExitCode::Done;
    if (!isForced_)
      return context_.console.Fail(
          ExitCode::BadFile, doubts.front() + ". Nothing was sent: --force sends it all the same");
    for (const std::string& doubt : doubts)
      if (told_.insert(doubt).second) context_.console.Note("forced: " + doubt);
    return ExitCode::Done;
  }

 private:
  CommandContext& context_;
  bool isForced_;
  std::set<std::string> told_;
};

std::vector<std::string> DoubtsOfFile(CommandContext& context, const UploadOptions& options,
                                      const ModelConfiguration& configuration) {
  IniClass document(context.platform.files);
  document.OpenINI(options.file, false);
  std::vector<std::string> doubts;
  for (const FoundByRule& error : ErrorsIn(configuration, context.options.features, &document,
                                           context.platform.files, context.Translator()))
    doubts.push_back(options.file + ": " + FindingText(error.finding) + " (" +
                     std::string(error.rule->id) + ")");
  return doubts;
}

std::vector<std::string> DoubtsOfModel(const Configurator& configurator) {
  if (const auto doubt = configurator.session.ModelDoubt()) return {Filled(*doubt)};
  return {};
}

/// What speaks against writing to the logger that answers, before it is read.
std::vector<std::string> DoubtsOfLogger(const Configurator& configurator) {
  std::vector<std::string> doubts = DoubtsOfModel(configurator);
  for (const Phrase& doubt : DoubtsOfIdentity(configurator)) doubts.push_back(Filled(doubt));
  return doubts;
}

/// Whether a file is a former state, which is written because the logger holds another one now.
bool IsFormerState(const UploadOptions& options) {
  return !options.copy.empty() || (options.finishes.empty() && HistoryEntry(options.file) != 0);
}

/// Writes with safety copy and verification, as far as the options want them.
ExitCode Send(Online& online, const UploadOptions& options, Refusal& refusal) {
  CommandContext& context = online.context;
  UploadResult result;
  ExitCode code = ExitCode::Done;
  const auto step = [&code](ExitCode ended) {
    code = ended;
    return ended == ExitCode::Done;
  };
  WriteRoad road{.read = [&] { return step(online.session.Download()); },
                 .write = [&] { return step(online.session.Upload()); },
                 .verify = !options.noVerify,
                 .passwords = context.ShownPasswords()};
  if (!options.noBackup)
    road.keep = [&](const DeviceConf& held) {
      if (!step(refusal.Of(DoubtsOfModel(online.configurator)))) return false;
      return step(SaveBackup(context, online.configurator, held, result.backup));
    };
  const bool isUnasked = options.noBackup && options.force;
  if (!IsFormerState(options) && !isUnasked)
    road.inSpiteOf = [&](const Phrase& doubt) { return step(refusal.Of({Filled(doubt)})); };
  const WriteResult written = WriteGuarded(online.configurator, road);
  if (written.end != WriteEnd::Written) return code;
  result.comparison = written.verified;
  return Report(online, options, written.sent, result);
}

/// Loads the file into the configurator of a session. A file of another model than the logger's is
/// for another logger, most likely.
ExitCode LoadFile(CommandContext& context, Configurator& configurator, const UploadOptions& options,
                  Refusal& refusal) {
  const std::string& file = options.file;
  const std::string model = configurator.profile.TargetName;
  const auto read = context.OpenFile(file);
  if (!read) return ExitCode::BadFile;
  // What cannot be made into statements no force can send.
  std::vector<std::string> statements;
  const ExitCode made =
      MakeStatements(context, read->conf, {read->profile, kEveryFeature}, statements);
  if (made != ExitCode::Done) return made;
  const ExitCode refused = refusal.Of(DoubtsOfFile(context, options, *read));
  if (refused != ExitCode::Done) return refused;
  configurator.conf = read->conf;
  if (file != kStandard)
    configurator.ledger.TakeFile(options.finishes.empty() ? file : options.finishes);
  const std::string& fileModel = read->profile.TargetName;
  if (fileModel == model) return ExitCode::Done;
  configurator.TargetDeviceChange(fileModel);
  const std::string other =
      file + " is for the model " + fileModel + ", and the logger is of the model " + model;
  if (!options.dryRun) return refusal.Of({other});
  context.console.Note("warning: " + other);
  return ExitCode::Done;
}

/// What speaks against a safety copy of another logger than the one that answers.
ExitCode MayTakeCopy(const Online& online, const std::string& name) {
  const std::string& serial = online.configurator.info.SerialNumber;
  if (name.empty() || SafetyCopies::IsOf(name, serial)) return ExitCode::Done;
  const std::string says = "the copy " + name + " is not of the logger " + serial;
  if (online.context.dialogs.Confirm(says + ". Write it all the same?")) return ExitCode::Done;
  return online.context.console.Fail(ExitCode::BadFile, says + ": --yes writes it all the same");
}

/// Takes the texts of a safety copy from the logger's own lines, where these stand beside it. What
/// cannot be sent is left out, as in the copy.
void TakeLines(const Online& online, const std::string& name) {
  if (name.empty()) return;
  Configurator& configurator = online.configurator;
  configurator.comms.TakeKeptLines(CopiesOf(online.context).Lines(name));
  for (const Field& field : FieldsOf(configurator.conf, configurator.profile))
    if (const auto* text = std::get_if<std::string*>(&field.value))
      (*text)->resize(UpToControl(**text).size());
}

}  // namespace

ExitCode RunUpload(CommandContext& context, const UploadOptions& options) {
  if (options.dryRun && !context.HasPort()) {
    const auto configuration = context.OpenFile(options.file);
    if (!configuration) return ExitCode::BadFile;
    return ShowPlan(context, *configuration, context.options.features.value_or(0));
  }
  PortChoice port;
  const ExitCode chosen = context.ChoosePort(port);
  if (chosen != ExitCode::Done) return chosen;
  const auto model = context.ChooseModel(port, options.file);
  if (!model) return ExitCode::Usage;
  const auto configurator = context.MakeOnline(*model);
  Refusal refusal(context, options.force);
  const ExitCode loaded = LoadFile(context, *configurator, options, refusal);
  if (loaded != ExitCode::Done) return loaded;
  LoggerSession session(context, *configurator, port);
  const ExitCode opened = session.Open();
  if (opened != ExitCode::Done) return opened;
  Online online{context, *configurator, session};
  if (const ExitCode other = OtherLogger(online, options.serial); other != ExitCode::Done)
    return other;
  const ExitCode mayTake = MayTakeCopy(online, options.copy);
  if (mayTake != ExitCode::Done) return mayTake;
  TakeLines(online, options.copy);
  if (options.dryRun)
    return ShowPlan(context, {configurator->profile, configurator->conf},
                    configurator->info.Features);
  const ExitCode refused = refusal.Of(DoubtsOfLogger(*configurator));
  if (refused != ExitCode::Done) return refused;
  return Send(online, options, refusal);
}

void AddUploadFlags(CLI::App& parser, UploadOptions& options) {
  parser.add_flag("--no-verify", options.noVerify, "Do not read back and compare");
  parser.add_flag("--no-backup", options.noBackup, "Keep no copy of the former configuration");
  parser.add_flag("--force", options.force,
                  "Write in spite of errors in the file, or of a logger that it is not for");
  parser.add_flag("--dry-run", options.dryRun, "Show what would be sent, and how long it takes");
}

Command AddUpload(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("upload", "Write a file's configuration into the logger");
  const auto options = std::make_shared<UploadOptions>();
  parser->add_option("FILE", options->file, "Configuration file, - for standard input")->required();
  AddUploadFlags(*parser, *options);
  return {parser, [options](CommandContext& context) { return RunUpload(context, *options); }};
}

}  // namespace ostrel::cli
