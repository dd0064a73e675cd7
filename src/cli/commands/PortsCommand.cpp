#include "cli/Json.h"
#include "cli/commands/Commands.h"

namespace ostrel::cli {
namespace {

ExitCode RunPorts(CommandContext& context) {
  const std::vector<PortEntry> entries = context.platform.port.Entries();
  std::ostream& out = context.console.Out();
  if (context.options.json) {
    JsonWriter json(out);
    json.Array([&] {
      for (const PortEntry& entry : entries)
        json.Object([&] {
          json.Member("number", entry.number);
          json.Member("name", "COM" + std::to_string(entry.number));
          json.Member("device", entry.device);
          json.Member("description", entry.description);
        });
    });
    json.End();
    return ExitCode::Done;
  }
  for (const PortEntry& entry : entries) {
    out << "COM" << entry.number << "  " << Printable(entry.device);
    if (!entry.description.empty()) out << "  " << Printable(entry.description);
    out << '\n';
  }
  return ExitCode::Done;
}

}  // namespace

Command AddPorts(CLI::App& app) {
  return {app.add_subcommand("ports", "List the ports of this machine"), RunPorts};
}

}  // namespace ostrel::cli
