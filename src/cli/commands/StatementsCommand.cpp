#include "blocks/Configuration.h"
#include "cli/Json.h"
#include "cli/commands/Commands.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

ExitCode RunStatements(CommandContext& context, const std::string& file) {
  const auto configuration = context.OpenFile(file);
  if (!configuration) return ExitCode::BadFile;
  const std::int32_t features = context.options.features.value_or(0);
  const auto statements =
      ComposeStatements(configuration->conf, {configuration->profile, features});
  std::ostream& out = context.console.Out();
  if (!context.options.json) {
    for (const std::string& statement : statements) out << Printable(statement) << '\n';
    return ExitCode::Done;
  }
  JsonWriter json(out);
  json.Object([&] {
    json.Member("file", file);
    json.Member("model", configuration->profile.TargetName);
    json.Member("features", FeaturesText(features));
    json.ArrayMember("statements", [&] {
      for (const std::string& statement : statements) json.Value(statement);
    });
  });
  json.End();
  return ExitCode::Done;
}

}  // namespace

Command AddStatements(CLI::App& app) {
  CLI::App* parser =
      app.add_subcommand("statements", "Show what an upload of a file would send, one a line");
  const auto file = std::make_shared<std::string>();
  parser->add_option("FILE", *file, "Configuration file")->required();
  return {parser, [file](CommandContext& context) { return RunStatements(context, *file); }};
}

}  // namespace ostrel::cli
