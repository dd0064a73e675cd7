#include "cli/CommandContext.h"

#include <algorithm>
#include <charconv>

#include "blocks/Configuration.h"
#include "host/Folders.h"
#include "host/LangSeed.h"
#include "host/SimulatedLoggers.h"
#include "link/WireText.h"
#include "platform/Clock.h"

namespace ostrel::cli {
namespace {

constexpr std::string_view kSimulated = "sim:";
constexpr std::string_view kNumbered = "COM";

std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return upper;
}

/// A file as sentences name it.
std::string NameOf(const std::string& path) {
  return path == kStandard ? std::string("standard input") : path;
}

std::optional<std::int16_t> PortNumber(std::string_view digits) {
  std::int16_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

}  // namespace

CommandContext::CommandContext(Environment& world, GlobalOptions shared)
    : environment(world),
      options(std::move(shared)),
      console(world.out, world.err, options.quiet, options.json),
      dialogs(world, console, options),
      files(world.platform.files,
            [&world](std::string& octets) {
              return world.readDescriptor ? world.readDescriptor(0, false, octets)
                                          : FileResult{"there is none"};
            }),
      tapped(world.platform.port),
      platform(world.platform.With(dialogs).With(files).With(tapped)),
      lang_(platform.files, SeedLang(platform.files, world.shippedLang, LangIn(world.dataFolder))) {
  lang_.Init();
  lang_.SetSelectedLang(options.lang);
}

ExitCode CommandContext::StartRecording() {
  const std::string& path = options.record;
  if (path.empty()) return ExitCode::Done;
  std::string why;
  recording_ = environment.openLineRecording(path, why);
  if (!recording_)
    return console.Fail(ExitCode::BadFile, "cannot write the recording to " + path + ": " + why);
  recorder_ = std::make_unique<Recorder>(
      platform.loop, [this](std::string_view text) { *recording_ << text << std::flush; },
      DateTimeText(platform.clock.LocalNow()));
  recorder_->Write(RecordedKind::Command, options.words);
  tapped.Join(*recorder_);
  return ExitCode::Done;
}

bool CommandContext::EndRecording(ExitCode code) {
  if (!recorder_) return true;
  recorder_->Write(RecordedKind::End, std::to_string(static_cast<int>(code)));
  tapped.Leave(*recorder_);
  recorder_.reset();
  return !recording_->flush().fail();
}

std::unique_ptr<Configurator> CommandContext::MakeOnline(std::string_view model) {
  auto configurator = std::make_unique<Configurator>(
      platform, ConfiguratorOptions{.programFolder = {}, .lang = &lang_});
  configurator->StartForCommand(model, options.lang);
  return configurator;
}

std::optional<ModelConfiguration> CommandContext::OpenFile(const std::string& path) {
  std::string octets;
  if (const FileResult can = platform.files.ReadInto(path, octets); !can.Ok()) {
    console.Fail(ExitCode::BadFile, "cannot read " + NameOf(path) + ": " + can.error);
    return {};
  }
  TargetProfile present;
  if (const auto model = ChooseModel({}, path)) SelectTarget(present, *model);
  auto read = ReadConfiguration(platform.files, path, present, Translator());
  if (!read) {
    console.Fail(ExitCode::BadFile, NameOf(path) + " is no configuration of any of the six models");
    return {};
  }
  if (!options.target.empty() && read->profile.TargetName != present.TargetName)
    console.Note(path + " is for the model " + read->profile.TargetName + ", not " +
                 present.TargetName);
  return read;
}

std::string CommandContext::ModelOfFile(const std::string& path) {
  IniTool tool(platform.files);
  const std::string stamp = tool.ProfileRead(kStampSection, kStampKey, path);
  for (const TargetModel& model : TargetModels())
    if (model.type == stamp) return std::string(model.name);
  return {};
}

std::optional<std::string> CommandContext::ChooseModel(const PortChoice& port,
                                                       const std::string& file) {
  if (!options.target.empty()) return std::string(FindTarget(options.target)->name);
  if (!port.simulatedModel.empty()) return port.simulatedModel;
  if (!file.empty())
    if (std::string model = ModelOfFile(file); !model.empty()) return model;
  const TargetModel* stored = FindTarget(StoredSettings(platform.settings).Target());
  if (stored) return std::string(stored->name);
  // A file without a known stamp is refused in any case, whatever the model.
  if (!file.empty()) return std::string(TargetNamesOffered().front());
  console.Fail(ExitCode::Usage,
               "which model is it? --target names one of KA1 KA2 VR200 S100 BP BQ");
  return std::nullopt;
}

PortChoice CommandContext::NumberedPort(std::int16_t number) {
  PortChoice choice{.number = number, .name = "COM" + std::to_string(number)};
  choice.simulatedModel = environment.simulated.ModelAt(number);
  for (const PortEntry& entry : platform.port.Entries())
    if (entry.number == number && !entry.device.empty()) choice.name += " (" + entry.device + ")";
  return choice;
}

ExitCode CommandContext::ChoosePort(PortChoice& choice) {
  const std::string_view port = options.port;
  if (port.empty())
    return console.Fail(ExitCode::Usage, "no port: --port takes COM7, a device path or sim:VR200");
  if (Upper(port.substr(0, kSimulated.size())) == Upper(kSimulated)) {
    const TargetModel* model = FindTarget(port.substr(kSimulated.size()));
    if (!model)
      return console.Fail(ExitCode::Usage, options.port +
                                               " is none of sim:KA1 sim:KA2 sim:VR200 "
                                               "sim:S100 sim:BP sim:BQ");
    choice = NumberedPort(environment.simulated.NumberOf(model->name));
    return ExitCode::Done;
  }
  if (Upper(port.substr(0, kNumbered.size())) == kNumbered) {
    const auto number = PortNumber(port.substr(kNumbered.size()));
    if (!number || *number < kFirstPort || *number > kLastPort)
      return console.Fail(ExitCode::Usage, options.port + " is none of COM1 to COM256");
    choice = NumberedPort(*number);
    return ExitCode::Done;
  }
  const int number = environment.numberOfDevice ? environment.numberOfDevice(options.port) : 0;
  if (number == 0) return console.Fail(ExitCode::NoSession, "there is no port " + options.port);
  choice = {.number = static_cast<std::int16_t>(number), .name = options.port};
  return ExitCode::Done;
}

std::vector<std::string> CommandContext::Shown(std::vector<std::string> statements) const {
  if (!options.secrets)
    for (std::string& statement : statements) statement = MaskPasswords(statement);
  return statements;
}

ExitCode CommandContext::Show(const Result& result, JsonLayout layout) {
  if (options.json)
    WriteJson(console.Out(), result.json(), layout);
  else
    result.text(console.Out());
  return ExitCode::Done;
}

}  // namespace ostrel::cli
