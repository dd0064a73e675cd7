#include "cli/commands/OnlineCommand.h"

namespace ostrel::cli {

ExitCode RunOnline(CommandContext& context, const std::string& file,
                   const std::function<ExitCode(Online&)>& work, OpenTo wanted) {
  PortChoice port;
  const ExitCode chosen = context.ChoosePort(port);
  if (chosen != ExitCode::Done) return chosen;
  const auto model = context.ChooseModel(port, file);
  if (!model) return ExitCode::Usage;
  return RunOnlineAs(context, port, *model, work, wanted);
}

ExitCode RunOnlineAs(CommandContext& context, const PortChoice& port, const std::string& model,
                     const std::function<ExitCode(Online&)>& work, OpenTo wanted) {
  const auto configurator = context.MakeOnline(model);
  LoggerSession session(context, *configurator, port);
  const ExitCode opened = session.Open(wanted);
  if (opened != ExitCode::Done) return opened;
  Online online{context, *configurator, session};
  return work(online);
}

ExitCode OtherLogger(const Online& online, const std::string& interrupted) {
  const std::string& answers = online.configurator.info.SerialNumber;
  if (interrupted.empty() || interrupted == answers) return ExitCode::Done;
  return online.context.console.Fail(ExitCode::BadFile, "the logger that answers is " + answers +
                                                            ", the interrupted one is " +
                                                            interrupted + ". Nothing was changed");
}

ExitCode WithFeatures(CommandContext& context, const std::string& file,
                      const std::function<ExitCode(std::optional<std::int32_t> features)>& work) {
  if (context.options.features || !context.HasPort()) return work(context.options.features);
  return RunOnline(context, file,
                   [&](Online& online) { return work(online.configurator.info.Features); });
}

}  // namespace ostrel::cli
