#include "cli/Json.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

void WriteInfo(JsonWriter& json, const Online& online) {
  const DeviceInfo& info = online.configurator.info;
  json.Object([&] {
    json.Member("port", online.session.Port().name);
    json.Member("model", online.configurator.profile.TargetName);
    json.Member("firmware", VersionText(info.FirmwareVersion));
    json.Member("features", FeaturesText(info.Features));
    json.Member("serial", info.SerialNumber);
    json.Member("battery", info.BatteryVoltage);
    json.Member("rssi", info.Rssi);
    json.Member("logSize", info.LogSize);
    json.Member("logUsed", info.LogUsed);
    json.Member("clock", ClockText(online.configurator.live.DeviceClock));
  });
  json.End();
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
      << "log        " << info.LogUsed << " of " << info.LogSize << " records\n"
      << "clock      " << ClockText(online.configurator.live.DeviceClock) << '\n';
}

ExitCode RunInfo(Online& online) {
  Console& console = online.context.console;
  if (online.context.options.json) {
    JsonWriter json(console.Out());
    WriteInfo(json, online);
  } else {
    PrintInfo(console.Out(), online);
  }
  return ExitCode::Done;
}

}  // namespace

Command AddInfo(CLI::App& app) {
  return {app.add_subcommand("info", "Show who the logger is"),
          [](CommandContext& context) { return RunOnline(context, "", RunInfo); }};
}

}  // namespace ostrel::cli
