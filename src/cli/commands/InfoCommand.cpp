#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

Json InfoJson(const Online& online) {
  const DeviceInfo& info = online.configurator.info;
  return {{"port", online.session.Port().name},
          {"model", online.configurator.profile.TargetName},
          {"firmware", VersionText(info.FirmwareVersion)},
          {"features", FeaturesText(info.Features)},
          {"serial", info.SerialNumber},
          {"battery", JsonNumber(info.BatteryVoltage)},
          {"rssi", info.Rssi},
          {"logSize", info.LogSize},
          {"logUsed", info.LogUsed},
          {"clock", ClockText(online.configurator.live.DeviceClock)}};
}

void PrintInfo(std::ostream& out, const Online& online) {
  const DeviceInfo& info = online.configurator.info;
  out << "port       " << Printable(online.session.Port().name) << '\n'
      << "model      " << online.configurator.profile.TargetName << '\n'
      << "serial     " << Printable(info.SerialNumber) << '\n'
      << "firmware   " << VersionText(info.FirmwareVersion) << '\n'
      << "features   " << FeaturesText(info.Features) << '\n'
      << "battery    " << DecText(info.BatteryVoltage) << " V\n"
      << "signal     " << info.Rssi << '\n'
      << "log        " << DecText(info.LogUsed) << " of " << DecText(info.LogSize) << " records\n"
      << "clock      " << ClockText(online.configurator.live.DeviceClock) << '\n';
}

ExitCode RunInfo(Online& online) {
  return online.context.Show(
      {[&] { return InfoJson(online); }, [&](std::ostream& out) { PrintInfo(out, online); }});
}

}  // namespace

Command AddInfo(CLI::App& app) {
  return {app.add_subcommand("info", "Show who the logger is"),
          [](CommandContext& context) { return RunOnline(context, "", RunInfo); }};
}

}  // namespace ostrel::cli
