#include "cli/commands/Commands.h"

namespace ostrel::cli {
namespace {

Json PortsJson(const std::vector<PortEntry>& entries) {
  Json list = Json::array();
  for (const PortEntry& entry : entries)
    list.push_back({{"number", entry.number},
                    {"name", "COM" + std::to_string(entry.number)},
                    {"device", entry.device},
                    {"description", entry.description}});
  return list;
}

void PrintPorts(std::ostream& out, const std::vector<PortEntry>& entries) {
  for (const PortEntry& entry : entries) {
    out << "COM" << entry.number << "  " << Printable(entry.device);
    if (!entry.description.empty()) out << "  " << Printable(entry.description);
    out << '\n';
  }
}

ExitCode RunPorts(CommandContext& context) {
  const std::vector<PortEntry> entries = context.platform.port.Entries();
  return context.Show(
      {[&] { return PortsJson(entries); }, [&](std::ostream& out) { PrintPorts(out, entries); }});
}

}  // namespace

Command AddPorts(CLI::App& app) {
  return {app.add_subcommand("ports", "List the ports of this machine"), RunPorts};
}

}  // namespace ostrel::cli
