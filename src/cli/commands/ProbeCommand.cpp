#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"

namespace ostrel::cli {
namespace {

ExitCode RunProbe(Online& online) {
  const TargetProfile& model = online.configurator.profile;
  if (model.OneWireCount == 0)
    return online.context.console.Fail(ExitCode::Usage,
                                       "the " + model.TargetName + " has no 1-Wire probes");
  ProbeIdentity identity;
  const ExitCode read =
      online.session.Run([&] { return online.configurator.comms.ReadProbeIdentity(identity); });
  if (read != ExitCode::Done) return read;
  const std::string whole = identity.first + "." + identity.second;
  return online.context.Show({[&] {
                                return Json{{"identity", whole}};
                              },
                              [&](std::ostream& out) { out << Printable(whole) << '\n'; }});
}

}  // namespace

Command AddProbe(CLI::App& app) {
  return {app.add_subcommand("probe",
                             "Show the identity of the 1-Wire probe, which must be the only one "
                             "on the bus"),
          [](CommandContext& context) { return RunOnline(context, "", RunProbe); }};
}

}  // namespace ostrel::cli
