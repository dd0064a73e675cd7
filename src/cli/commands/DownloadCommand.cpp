#include "cli/ConfFile.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"
#include "shell/check/CheckRules.h"

namespace ostrel::cli {
namespace {

ExitCode RunDownload(Online& online, const std::string& file) {
  CommandContext& context = online.context;
  const ExitCode mayReplace = MayReplace(context, file, online.configurator.profile);
  if (mayReplace != ExitCode::Done) return mayReplace;
  const ExitCode downloaded = online.session.Download();
  if (downloaded != ExitCode::Done) return downloaded;
  const ExitCode saved = SaveTo(context, online.configurator, file);
  if (saved != ExitCode::Done) return saved;
  Configurator& configurator = online.configurator;
  const std::string& serial = configurator.info.SerialNumber;
  context.console.Note("configuration of " + serial + " saved to " +
                       (file == kStandard ? "standard output" : file));
  const ModelConfiguration read{configurator.profile, configurator.conf};
  if (std::string copy; !TextsNotKept(read).empty()) {
    const ExitCode kept = SaveBackup(context, configurator, read.conf, copy);
    if (kept != ExitCode::Done) return kept;
  }
  return context.Show({[&] {
                         return Json{{"file", file},
                                     {"model", configurator.profile.TargetName},
                                     {"serial", serial},
                                     {"features", FeaturesText(configurator.info.Features)}};
                       },
                       [](std::ostream&) {}});
}

}  // namespace

Command AddDownload(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("download", "Read the logger's configuration into a file");
  const auto file = std::make_shared<std::string>();
  parser
      ->add_option("FILE", *file,
                   "File to write, - for standard output; one that stands is replaced")
      ->required();
  return {parser, [file](CommandContext& context) {
            if (*file == kStandard && context.options.json)
              return context.console.Fail(ExitCode::Usage,
                                          "the file and the result of --json cannot both go to "
                                          "standard output");
            const ExitCode writable = TryToWrite(context, *file);
            if (writable != ExitCode::Done) return writable;
            return RunOnline(context, "",
                             [&](Online& online) { return RunDownload(online, *file); });
          }};
}

}  // namespace ostrel::cli
