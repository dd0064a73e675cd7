#pragma once

#include <string>
#include <vector>

#include "blocks/Receiver.h"
#include "cli/CommandContext.h"
#include "shell/writing/SafetyCopies.h"

namespace ostrel::cli {

/// Writes the configuration of a configurator to a path, whole or not at all, and says why it
/// failed.
ExitCode SaveTo(CommandContext& context, Configurator& configurator, const std::string& path);

/// The configuration of a file, as `CommandContext::OpenFile` opens it; what it lacks is told.
std::optional<ModelConfiguration> OpenAndTell(CommandContext& context, const std::string& path);

/// The statements that a configuration gives for a receiver. Anything but Done after saying why one
/// of them cannot be made.
ExitCode MakeStatements(CommandContext& context, const DeviceConf& conf, const Receiver& receiver,
                        std::vector<std::string>& statements);

/// Makes sure that a file can be made at a path before a logger is kept busy for it, and asks
/// before a protected one is replaced. Anything but Done after saying why not.
ExitCode TryToWrite(CommandContext& context, const std::string& path);

/// Asks before a file is replaced that holds what a configuration of the model does not write.
/// Anything but Done after saying what would be lost.
ExitCode MayReplace(CommandContext& context, const std::string& path, const TargetProfile& profile);

/// The safety copies of the user.
SafetyCopies CopiesOf(const CommandContext& context);

/// Tells which texts of a configuration a file does not keep as they are, and whether there are
/// any.
bool TellTextsNotKept(CommandContext& context, const ModelConfiguration& configuration);

/// Keeps what the logger of a session holds as a safety copy in the user's data folder, named by
/// serial number and time, with the logger's own lines beside it. `path` tells where.
ExitCode SaveBackup(CommandContext& context, Configurator& configurator, const DeviceConf& held,
                    std::string& path);

}  // namespace ostrel::cli
