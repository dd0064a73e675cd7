#include <utility>

#include "base/Scope.h"
#include "cli/TransferLine.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "tools/FirmwareChoice.h"

namespace ostrel::cli {
namespace {

constexpr std::string_view kStay = "--yes sends them all the same";
constexpr Duration kSecondThought = std::chrono::seconds(5);

/// Reads the files and has the operator look at what seems wrong with them.
ExitCode TakeFiles(CommandContext& context, const FirmwarePaths& paths, FirmwareFiles& files) {
  if (paths.image.empty())
    return context.console.Fail(ExitCode::BadFile, "the path of the image is empty");
  if (!AreNamed(paths))
    return context.console.Fail(
        ExitCode::BadFile, "\"CopyFlash\" must stand in the path of the loader: " + paths.loader);
  std::string failed;
  if (const FileResult read = ReadFirmware(context.platform.files, paths, files, failed);
      !read.Ok())
    return context.console.Fail(ExitCode::BadFile, "cannot read " + failed + ": " + read.error);
  const auto doubts = FirmwareDoubts(paths, files, context.Translator());
  for (const std::string& doubt : doubts) context.console.Say("warning: " + doubt);
  if (doubts.empty() ||
      context.dialogs.Confirm("The logger may be left without firmware. Go on with these files?"))
    return ExitCode::Done;
  return context.console.Fail(ExitCode::BadFile,
                              "the files look wrong, nothing was sent: " + std::string(kStay));
}

std::string_view StageWords(FirmwareStage stage) {
  switch (stage) {
    case FirmwareStage::Asking:
    case FirmwareStage::Erasing:
      return "erasing the flash";
    case FirmwareStage::Image:
      return "sending the image";
    case FirmwareStage::Loader:
      return "sending the loader";
    case FirmwareStage::Copying:
      break;
  }
  return "all is sent: the logger writes its flash";
}

/// While the flash holds no firmware an interrupt only tells what it would leave behind; one more,
/// soon after it, breaks off.
std::function<void()> AskingTwice(Online& online, std::function<void()> breakOff) {
  return [&online, breakOff = std::move(breakOff), until = TimePoint::min()]() mutable {
    const EventLoop& loop = online.context.platform.loop;
    if (online.configurator.session.Flash() == FlashState::Kept || loop.Now() < until)
      return breakOff();
    until = loop.Now() + kSecondThought;
    online.context.console.Say(
        "the logger has no firmware until this ends: interrupt again within 5 s to break off");
  };
}

ExitCode SendFiles(Online& online, const FirmwareFiles& files) {
  CommandContext& context = online.context;
  const std::string& logger = online.configurator.profile.TargetName;
  if (!context.dialogs.Confirm("The firmware of the " + logger + " is erased and replaced. Go on?"))
    return context.console.Fail(ExitCode::DialogueFailed,
                                "nothing was sent: --yes replaces the firmware");
  std::string_view told;
  const auto tell = [&](FirmwareStage stage) {
    if (StageWords(stage) == told) return;
    told = StageWords(stage);
    context.console.Note(told);
  };
  ExitCode code = ExitCode::Done;
  {
    std::function<void()>& onInterrupt = context.environment.onInterrupt;
    const Lent<std::function<void()>> asksTwice(onInterrupt, AskingTwice(online, onInterrupt));
    const TransferLine shown(context.console, online.configurator.session.Watch(), "firmware",
                             context.environment.errIsTerminal);
    code = online.session.SendFirmware(files, tell);
  }
  if (code != ExitCode::Done) return code;
  context.console.Say(
      context.Translator()("NO CORTE LA ALIMENTACION MIENTRAS DURE LA ACTUALIZACION"));
  return context.Show({[&] {
                         return Json{{"image", SentOctets(files.image.size())},
                                     {"loader", SentOctets(files.loader.size())}};
                       },
                       [](std::ostream&) {}});
}

ExitCode RunFirmware(CommandContext& context, const FirmwarePaths& paths) {
  FirmwareFiles files;
  const ExitCode taken = TakeFiles(context, paths, files);
  if (taken != ExitCode::Done) return taken;
  // A logger whose last update failed has no firmware that could tell who it is.
  return RunOnline(
      context, "", [&](Online& online) { return SendFiles(online, files); }, OpenTo::AnyThatGreets);
}

}  // namespace

Command AddFirmware(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("firmware", "Replace the firmware of the logger");
  const auto paths = std::make_shared<FirmwarePaths>();
  parser->add_option("IMAGE", paths->image, "Firmware image, Intel hex")->required();
  parser->add_option("LOADER", paths->loader, "The loader CopyFlash, Intel hex")->required();
  return {parser, [paths](CommandContext& context) { return RunFirmware(context, *paths); }};
}

}  // namespace ostrel::cli
