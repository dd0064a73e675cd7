#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

ExitCode RunClock(Online& online, bool set) {
  if (set) {
    const ExitCode written =
        online.session.Run([&] { return online.configurator.comms.WriteDeviceRTC(); });
    if (written != ExitCode::Done) return written;
  }
  const ExitCode read =
      online.session.Run([&] { return online.configurator.comms.ReadDeviceRTC(); });
  if (read != ExitCode::Done) return read;
  const DateTime& logger = online.configurator.live.DeviceClock;
  const DateTime computer = online.context.platform.clock.LocalNow();
  const std::int64_t ahead = ToSeconds(logger) - ToSeconds(computer);
  return online.context.Show({[&] {
                                return Json{{"logger", ClockText(logger)},
                                            {"computer", ClockText(computer)},
                                            {"secondsAhead", ahead},
                                            {"set", set}};
                              },
                              [&](std::ostream& out) {
                                out << "logger     " << ClockText(logger) << '\n'
                                    << "computer   " << ClockText(computer) << '\n'
                                    << "difference " << ahead << " s\n";
                              }});
}

}  // namespace

Command AddClock(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("clock", "Show the logger's clock, or set it");
  const auto set = std::make_shared<bool>(false);
  parser->add_flag("--set", *set, "Set it to the computer's time");
  return {parser, [set](CommandContext& context) {
            return RunOnline(context, "", [&](Online& online) { return RunClock(online, *set); });
          }};
}

}  // namespace ostrel::cli
