#include "blocks/Orders.h"
#include "cli/ConfFile.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

/// The blocks that some firmware takes, and one without any features does not, or takes otherwise.
std::vector<std::string> BlocksOfFirmware(const ModelConfiguration& configuration) {
  std::vector<std::string> names;
  for (const UploadStep& step : UploadOrder()) {
    StatementList without, with;
    ComposeStep(step, configuration.conf, {configuration.profile, 0}, without);
    ComposeStep(step, configuration.conf, {configuration.profile, kEveryFeature}, with);
    if (without.All() != with.All()) names.emplace_back(step.name);
  }
  return names;
}

ExitCode Report(CommandContext& context, const std::string& file,
                const ModelConfiguration& configuration, std::optional<std::int32_t> features) {
  const std::int32_t mask = features.value_or(0);
  std::vector<std::string> statements;
  const ExitCode made =
      MakeStatements(context, configuration.conf, {configuration.profile, mask}, statements);
  if (made != ExitCode::Done) return made;
  statements = context.Shown(std::move(statements));
  const auto leftOut = features ? std::vector<std::string>() : BlocksOfFirmware(configuration);
  context.Show({[&] {
                  return Json{{"file", file},
                              {"model", configuration.profile.TargetName},
                              {"features", FeaturesText(mask)},
                              {"featuresKnown", features.has_value()},
                              {"leftOut", leftOut},
                              {"statements", statements}};
                },
                [&](std::ostream& out) {
                  for (const std::string& statement : statements)
                    out << Printable(statement) << '\n';
                }});
  if (leftOut.empty()) return ExitCode::Done;
  std::string names;
  for (const std::string& name : leftOut) names += (names.empty() ? "" : ", ") + name;
  context.console.Note("the firmware is not known, so what depends on it is left out of: " + names +
                       ". --port or --features tells it");
  return ExitCode::Done;
}

ExitCode RunStatements(CommandContext& context, const std::string& file) {
  const auto configuration = OpenAndTell(context, file);
  if (!configuration) return ExitCode::BadFile;
  return WithFeatures(context, file, [&](std::optional<std::int32_t> features) {
    return Report(context, file, *configuration, features);
  });
}

}  // namespace

Command AddStatements(CLI::App& app) {
  CLI::App* parser =
      app.add_subcommand("statements", "Show what an upload of a file would send, one a line");
  const auto file = std::make_shared<std::string>();
  parser->add_option("FILE", *file, "Configuration file, - for standard input")->required();
  return {parser, [file](CommandContext& context) { return RunStatements(context, *file); }};
}

}  // namespace ostrel::cli
