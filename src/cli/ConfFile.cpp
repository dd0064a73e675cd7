#include "cli/ConfFile.h"

#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "cli/FaultText.h"
#include "shell/check/CheckRules.h"
#include "shell/files/ForeignKeys.h"
#include "shell/writing/WriteDoubts.h"

namespace ostrel::cli {
namespace {

ExitCode CannotWrite(CommandContext& context, const std::string& path, const FileResult& result) {
  return context.console.Fail(ExitCode::BadFile, "cannot write " + path + ": " + result.error);
}

}  // namespace

ExitCode SaveTo(CommandContext& context, Configurator& configurator, const std::string& path) {
  if (path == kStandard) {
    IniClass document(context.platform.files);
    SaveConfiguration(configurator.conf, configurator.profile, document);
    // Why it failed is told where all output is looked after.
    const bool written =
        bool(context.console.Out() << ToCodePage(document.OutputINI()) << std::flush);
    return written ? ExitCode::Done : ExitCode::BadFile;
  }
  configurator.ConfFilePath = path;
  // Whether a protected file may go was asked ahead of the session.
  const FileResult result = configurator.SaveConf(Replacing::Any);
  return result.Ok() ? ExitCode::Done : CannotWrite(context, path, result);
}

std::optional<ModelConfiguration> OpenAndTell(CommandContext& context, const std::string& path) {
  auto configuration = context.OpenFile(path);
  if (!configuration) return {};
  if (const auto lack =
          WhatLacks(*configuration, path, context.platform.files, context.Translator()))
    context.console.Note("warning: " + path + " is not whole: " + Filled(lack->parts.front()));
  return configuration;
}

ExitCode MakeStatements(CommandContext& context, const DeviceConf& conf, const Receiver& receiver,
                        std::vector<std::string>& statements) {
  const StatementList list = ComposeUpload(conf, receiver);
  if (!list.Fault().Ok())
    return context.console.Fail(ExitCode::BadFile, FaultText(WordsOf({.link = list.Fault()}, "")));
  statements = list.All();
  return ExitCode::Done;
}

ExitCode TryToWrite(CommandContext& context, const std::string& path) {
  if (path == kStandard) return ExitCode::Done;
  if (HistoryEntry(path) != 0) return CannotWrite(context, path, {"what was is not changed"});
  Files& files = context.platform.files;
  if (files.Exists(path) && !files.Read(path))
    return CannotWrite(context, path, {"what stands there is no file to replace"});
  if (const FileResult may = files.MayReplace(path);
      !may.Ok() && !context.dialogs.Confirm(path + ": " + may.error + ". Replace it all the same?"))
    return CannotWrite(context, path, {may.error + ". --yes replaces it all the same"});
  const std::string trial = files.TemporaryBeside(files.Resolve(path));
  const FileResult made = files.Create(trial);
  if (!made.Ok()) return CannotWrite(context, path, made);
  files.Remove(trial);
  return ExitCode::Done;
}

ExitCode MayReplace(CommandContext& context, const std::string& path,
                    const TargetProfile& profile) {
  if (path == kStandard) return ExitCode::Done;
  const auto foreign = ForeignKeys(context.platform.files, path, profile);
  if (foreign.empty()) return ExitCode::Done;
  const std::string lost =
      path + " holds what this program does not write and would lose: " + ForeignKeysText(foreign);
  if (context.dialogs.Confirm(lost + ". Replace it?")) return ExitCode::Done;
  return context.console.Fail(ExitCode::BadFile, lost + ". --yes replaces it all the same");
}

SafetyCopies CopiesOf(const CommandContext& context) {
  return {context.platform.files, context.platform.clock, context.environment.dataFolder};
}

bool TellTextsNotKept(CommandContext& context, const ModelConfiguration& configuration) {
  const std::vector<Finding> lost = TextsNotKept(configuration);
  for (const Finding& finding : lost) context.console.Note("warning: " + FindingText(finding));
  return !lost.empty();
}

ExitCode SaveBackup(CommandContext& context, Configurator& configurator, const DeviceConf& held,
                    std::string& path) {
  SafetyCopies copies = CopiesOf(context);
  const SafetyCopies::Kept kept =
      copies.Keep({held, configurator.profile, configurator.info.SerialNumber,
                   configurator.comms.DownloadedLines()});
  path = kept.path;
  if (!kept.result.Ok()) return CannotWrite(context, path, kept.result);
  configurator.ledger.NoteCopy(path);
  context.console.Note("what the logger holds is kept in " + path);
  if (TellTextsNotKept(context, {configurator.profile, held}))
    context.console.Note("the logger's own lines are kept in " + SafetyCopies::LinesBeside(path));
  return ExitCode::Done;
}

}  // namespace ostrel::cli
