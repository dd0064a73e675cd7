#include "blocks/Configuration.h"
#include "cli/commands/Commands.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

ExitCode RunStatements(CommandContext& context, const std::string& file) {
  const auto configuration = context.OpenFile(file);
  if (!configuration) return ExitCode::BadFile;
  const std::int32_t features = context.options.features.value_or(0);
  const auto statements =
      context.Shown(ComposeStatements(configuration->conf, {configuration->profile, features}));
  return context.Show({[&] {
                         return Json{{"file", file},
                                     {"model", configuration->profile.TargetName},
                                     {"features", FeaturesText(features)},
                                     {"statements", statements}};
                       },
                       [&](std::ostream& out) {
                         for (const std::string& statement : statements)
                           out << Printable(statement) << '\n';
                       }});
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
