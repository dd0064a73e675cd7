#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

constexpr std::int16_t kTotals = 9;  ///< a logger reports nine, whatever its model counts

struct TotalOptions {
  std::int16_t index = 0;
  std::optional<std::int32_t> value;
};

ExitCode RunTotal(Online& online, const TotalOptions& options) {
  Comms& comms = online.configurator.comms;
  if (options.value) {
    const ExitCode written =
        online.session.Run([&] { return comms.SetTotalCNT(options.index, *options.value); });
    if (written != ExitCode::Done) return written;
  }
  const ExitCode read = online.session.Run([&] { return comms.ReadTotalCount(); });
  if (read != ExitCode::Done) return read;
  const std::int32_t total = online.configurator.totals[options.index];
  return online.context.Show({[&] {
                                return Json{{"index", options.index},
                                            {"total", total},
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
      ->check(CLI::Range(0, kTotals - 1));
  parser->add_option("VALUE", options->value, "New total")->check(NoWholeNumber);
  return {parser, [options](CommandContext& context) {
            return RunOnline(context, "",
                             [&](Online& online) { return RunTotal(online, *options); });
          }};
}

}  // namespace ostrel::cli
