#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

constexpr std::int16_t kTotals = 9;  ///< a logger reports nine, whatever its model counts

struct TotalOptions {
  std::int16_t index = 0;
  std::optional<std::int32_t> value;
  bool expansion = false;  ///< of a counter on an expansion module
};

/// The present total as text, read anew.
std::string ReadTotal(const Online& online, const TotalOptions& options) {
  return options.expansion ? DecText(online.configurator.live.ModuloValue[options.index])
                           : std::to_string(online.configurator.totals[options.index]);
}

ExitCode RunTotal(Online& online, const TotalOptions& options) {
  Comms& comms = online.configurator.comms;
  const TargetProfile& model = online.configurator.profile;
  if (options.expansion && options.index >= model.ModuloCount)
    return online.context.console.Fail(
        ExitCode::Usage, "the " + model.TargetName +
                             (model.ModuloCount == 0 ? " has no expansion inputs"
                                                     : " has " + std::to_string(model.ModuloCount) +
                                                           " expansion inputs, counted from 0"));
  if (options.value) {
    const ExitCode written = online.session.Run([&] {
      return options.expansion ? comms.SetExpValue(options.index, *options.value)
                               : comms.SetTotalCNT(options.index, *options.value);
    });
    if (written != ExitCode::Done) return written;
  }
  const ExitCode read = online.session.Run(
      [&] { return options.expansion ? comms.ReadRealTime() : comms.ReadTotalCount(); });
  if (read != ExitCode::Done) return read;
  const std::string total = ReadTotal(online, options);
  return online.context.Show({[&] {
                                return Json{{"index", options.index},
                                            {"expansion", options.expansion},
                                            {"total", Json::parse(total)},
                                            {"set", options.value.has_value()}};
                              },
                              [&](std::ostream& out) { out << total << '\n'; }});
}

}  // namespace

Command AddTotal(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("total", "Show a total of the logger, or set it");
  const auto options = std::make_shared<TotalOptions>();
  parser->add_option("INDEX", options->index, "Counter, counted from 0")
      ->required()
      ->check(NoWholeNumber)
      ->check(CLI::NonNegativeNumber);
  parser->add_option("VALUE", options->value, "New total")->check(NoWholeNumber);
  parser->add_flag("--expansion", options->expansion, "Of a counter on an expansion module");
  return {parser, [options](CommandContext& context) {
            if (!options->expansion && options->index >= kTotals)
              return context.console.Fail(ExitCode::Usage, "there is no total " +
                                                               std::to_string(options->index) +
                                                               ": a logger has totals 0 to 8");
            return RunOnline(context, "",
                             [&](Online& online) { return RunTotal(online, *options); });
          }};
}

}  // namespace ostrel::cli
