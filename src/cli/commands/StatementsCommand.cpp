#include "cli/Json.h"
#include "cli/commands/Commands.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

ExitCode RunStatements(CommandContext& context, const std::string& file) {
  const auto configurator = context.OpenOffline(file);
  if (!configurator) return ExitCode::BadFile;
  const std::int32_t features = context.options.features.value_or(0);
  const DeviceConf conf = configurator->conf;
  const auto statements = configurator->StatementsOf(conf, features);
  std::ostream& out = context.console.Out();
  if (!context.options.json) {
    for (const std::string& statement : statements) out << Printable(statement) << '\n';
    return ExitCode::Done;
  }
  JsonWriter json(out);
  json.Object([&] {
    json.Member("file", file);
    json.Member("model", configurator->profile.TargetName);
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
