#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "cli/CommandContext.h"
#include "cli/LoggerSession.h"

namespace ostrel::cli {

/// What a command works with once its session stands.
struct Online {
  CommandContext& context;
  Configurator& configurator;
  LoggerSession& session;
};

/// Opens a session as the options say and runs the rest of a command in it. The model of `file`
/// counts when the options name none.
ExitCode RunOnline(CommandContext& context, const std::string& file,
                   const std::function<ExitCode(Online&)>& work, OpenTo wanted = OpenTo::Working);

/// The same with a model that the command itself knows.
ExitCode RunOnlineAs(CommandContext& context, const PortChoice& port, const std::string& model,
                     const std::function<ExitCode(Online&)>& work, OpenTo wanted = OpenTo::Working);

/// Refuses a logger that answers in the place of the interrupted one; empty is known of none.
ExitCode OtherLogger(const Online& online, const std::string& interrupted);

/// Runs a command on a file with the firmware's features: those of the options, else those of the
/// logger at the port of the options, else none, since they are not known.
ExitCode WithFeatures(CommandContext& context, const std::string& file,
                      const std::function<ExitCode(std::optional<std::int32_t> features)>& work);

}  // namespace ostrel::cli
