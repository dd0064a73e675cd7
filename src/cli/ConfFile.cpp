#include "cli/ConfFile.h"

#include <algorithm>

#include "cli/LoggerText.h"

namespace ostrel::cli {
namespace {

/// A serial number as part of a file name.
std::string NameOf(std::string_view serial) {
  std::string name;
  for (const char c : serial) {
    const bool isPlain =
        (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-';
    name += isPlain ? c : '_';
  }
  return name.empty() ? "unknown" : name;
}

/// "20260302-090507".
std::string StampOf(const DateTime& time) {
  std::string stamp = ClockText(time);
  std::erase_if(stamp, [](char c) { return c == '-' || c == ':'; });
  std::ranges::replace(stamp, ' ', '-');
  return stamp;
}

ExitCode CannotWrite(CommandContext& context, const std::string& path, const FileResult& result) {
  return context.console.Fail(ExitCode::BadFile, "cannot write " + path + ": " + result.error);
}

}  // namespace

ExitCode SaveTo(CommandContext& context, Configurator& configurator, const std::string& path) {
  configurator.ConfFilePath = path;
  const FileResult result = configurator.SaveConf();
  return result.Ok() ? ExitCode::Done : CannotWrite(context, path, result);
}

ExitCode TryToWrite(CommandContext& context, const std::string& path) {
  Files& files = context.environment.files;
  if (files.Exists(path) && !files.Read(path))
    return CannotWrite(context, path, {"what stands there is no file to replace"});
  const std::string trial = files.Resolve(path) + ".try";
  if (files.Exists(trial)) return ExitCode::Done;
  const FileResult made = files.Create(trial);
  if (!made.Ok()) return CannotWrite(context, path, made);
  files.Remove(trial);
  return ExitCode::Done;
}

ExitCode SaveBackup(CommandContext& context, Configurator& configurator, std::string& path) {
  Environment& environment = context.environment;
  const std::string folder = environment.dataFolder + "/backups";
  if (const FileResult made = environment.files.MakeFolder(folder); !made.Ok())
    return CannotWrite(context, folder, made);
  const std::string name = folder + "/" + NameOf(configurator.info.SerialNumber) + "-" +
                           StampOf(environment.clock.LocalNow());
  path = name + ".ocf";
  for (int next = 2; environment.files.Exists(path); ++next)
    path = name + "-" + std::to_string(next) + ".ocf";
  return SaveTo(context, configurator, path);
}

}  // namespace ostrel::cli
