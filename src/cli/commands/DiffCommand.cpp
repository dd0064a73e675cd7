#include "cli/ConfFile.h"
#include "cli/DifferenceText.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

constexpr std::string_view kPort = "port";

struct DiffOptions {
  std::string a, b;
};

ExitCode Report(CommandContext& context, const DiffOptions& options, const Comparison& comparison,
                std::optional<std::int32_t> features) {
  context.Show({[&] {
                  return Json{{"a", options.a},
                              {"b", options.b},
                              {"features", features ? Json(FeaturesText(*features)) : Json()},
                              {"same", comparison.isSame},
                              {"differences", DifferencesJson(comparison)}};
                },
                [&](std::ostream& out) { PrintDifferences(out, comparison); }});
  if (comparison.isSame && !context.options.json)
    context.console.Note(features ? "the same to a logger of these features" : "the same");
  return comparison.isSame ? ExitCode::Done : ExitCode::Differences;
}

ExitCode DiffFiles(CommandContext& context, const DiffOptions& options) {
  const auto a = OpenAndTell(context, options.a);
  const auto b = a ? OpenAndTell(context, options.b) : std::nullopt;
  if (!b) return ExitCode::BadFile;
  const auto features = context.options.features;
  return Report(context, options, Compare(*a, *b, features, context.ShownPasswords()), features);
}

ExitCode DiffWithPort(CommandContext& context, const DiffOptions& options, const std::string& file,
                      bool isPortFirst) {
  const auto other = OpenAndTell(context, file);
  if (!other) return ExitCode::BadFile;
  return RunOnline(context, file, [&](Online& online) {
    const ExitCode downloaded = online.session.Download();
    if (downloaded != ExitCode::Done) return downloaded;
    const Configurator& logger = online.configurator;
    const std::int32_t features = context.options.features.value_or(logger.info.Features);
    const ModelConfiguration held{logger.profile,
                                  ReadAsSent(logger.conf, other->conf, {logger.profile, features})};
    const ModelConfiguration &a = isPortFirst ? held : *other, &b = isPortFirst ? *other : held;
    return Report(context, options, Compare(a, b, features, context.ShownPasswords()), features);
  });
}

ExitCode RunDiff(CommandContext& context, const DiffOptions& options) {
  if (options.a == kPort && options.b == kPort)
    return context.console.Fail(ExitCode::Usage, "a logger is compared with a file");
  if (options.a == kPort) return DiffWithPort(context, options, options.b, true);
  if (options.b == kPort) return DiffWithPort(context, options, options.a, false);
  return DiffFiles(context, options);
}

}  // namespace

Command AddDiff(CLI::App& app) {
  CLI::App* parser = app.add_subcommand(
      "diff", "Compare two configurations; with known features, as a logger of these takes them");
  const auto options = std::make_shared<DiffOptions>();
  parser
      ->add_option("A", options->a,
                   "File, - for standard input, or \"port\" for what the logger holds")
      ->required();
  parser->add_option("B", options->b, "File, or \"port\"")->required();
  return {parser, [options](CommandContext& context) { return RunDiff(context, *options); }};
}

}  // namespace ostrel::cli
