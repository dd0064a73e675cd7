#include "desktop/ConfigurationReader.h"

#include "platform/SilentDialogs.h"
#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualSettings.h"
#include "shell/Configurator.h"

namespace ostrel {
std::optional<FileContent> ReadConfiguration(const Platform& platform, const std::string& target,
                                             const std::string& path) {
  SilentDialogs dialogs;
  VirtualSettings settings;
  LinePort noPort(platform.loop);
  const Platform silent{platform.loop,      noPort,        settings, dialogs, platform.files,
                        platform.processes, platform.clock};
  Configurator second(silent, {});
  second.StartForCommand(target, 1);
  if (second.OpenFile(path) != RestoreResult::Loaded) return {};
  return FileContent{second.profile.TargetName, FieldLines(second, second.conf)};
}

}  // namespace ostrel
