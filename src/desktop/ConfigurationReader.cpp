#include "desktop/ConfigurationReader.h"

#include "platform/Dialogs.h"
#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualSettings.h"
#include "shell/Configurator.h"

namespace ostrel {
namespace {

/// Lets a second configurator work unseen.
class SilentDialogs final : public Dialogs {
 public:
  BoxAnswer ShowMessage(const MessageBox&) override { return BoxAnswer::Ok; }
  std::optional<std::string> ChooseFile(const FileQuestion&) override { return {}; }
  void ShowModal(Form&) override {}
  void Beep() override {}
};

}  // namespace

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
