#pragma once

#include <functional>

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
                   const std::function<ExitCode(Online&)>& work);

}  // namespace ostrel::cli
