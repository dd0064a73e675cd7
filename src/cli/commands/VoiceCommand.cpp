#include <algorithm>
#include <cctype>

#include "base/Printable.h"
#include "base/Scope.h"
#include "blocks/Configuration.h"
#include "cli/ConfFile.h"
#include "cli/TransferLine.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "shell/writing/VoiceDoubts.h"
#include "shell/writing/WriteDoubts.h"
#include "store/IniClass.h"
#include "store/IniTool.h"

namespace ostrel::cli {
namespace {

constexpr std::string_view kNoMacroWord = "none";
constexpr std::string_view kConfigurationEnd = ".ocf";
constexpr std::string_view kListLabel = "voice-call list";
constexpr std::string_view kTooMany = "a list has 250 numbers at the most";
/// Refused lines that are told one by one.
constexpr std::size_t kRefusedTold = 12;

struct VoiceOptions {
  std::string file;
  std::string macro;  ///< a number, "none", or empty where none was given
};

std::string NoMacroChoice(const std::string& text) {
  const auto number = RoundToEven<std::int16_t>(NumVal(text));
  const bool isMacro = text.find_first_not_of("0123456789") == std::string::npos && !text.empty() &&
                       number && *number < kVoiceMacros;
  return isMacro || text == kNoMacroWord ? std::string() : text + " is neither 0 to 39 nor none";
}

std::int16_t MacroOf(const std::string& text) {
  return text == kNoMacroWord ? kNoVoiceMacro
                              : RoundToEven<std::int16_t>(NumVal(text)).value_or(kNoVoiceMacro);
}

std::string MacroWords(std::int16_t macro) {
  return macro < 0 ? "no macro" : "macro " + std::to_string(macro);
}

std::string CountWords(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " number, " : " numbers, ");
}

/// Whether a file is a configuration, by its stamp; any other is a list in plain text.
bool IsConfiguration(CommandContext& context, const std::string& path) {
  IniTool tool(context.platform.files);
  return !ModelOfStamp(tool.ProfileRead(kStampSection, kStampKey, path)).empty();
}

/// Says that the firmware has no such list; Done where it has one.
ExitCode WantList(const Online& online) {
  if (Has(online.configurator.info.Features, Feature::MissedCallMacro)) return ExitCode::Done;
  return online.context.console.Fail(
      ExitCode::DialogueFailed,
      "the firmware of the " + online.configurator.profile.TargetName + " has no voice-call list");
}

// ---- Reading

ExitCode Read(const Online& online, ConfAutVoz& list) {
  const ExitCode wanted = WantList(online);
  if (wanted != ExitCode::Done) return wanted;
  TransferWatch& watch = online.configurator.session.Watch();
  const TransferLine shown(online.context.console, watch, kListLabel,
                           online.context.environment.errIsTerminal);
  watch.BeginList(kVoiceNumbers);
  const AtEnd ended([&] { watch.End(); });
  return online.session.Run([&] { return online.configurator.comms.ReadAutVozList(list); });
}

/// Reads the list and puts it where it belongs by `keep`.
ExitCode ReadOnline(CommandContext& context, const std::string& file,
                    const std::function<ExitCode(const ConfAutVoz&)>& keep) {
  return RunOnline(context, file, [&](Online& online) {
    ConfAutVoz list;
    const ExitCode read = Read(online, list);
    if (read != ExitCode::Done) return read;
    const ExitCode kept = keep(list);
    if (kept == ExitCode::Done)
      context.console.Note(CountWords(NumbersOf(list).size()) + MacroWords(list.MACRO));
    return kept;
  });
}

ExitCode ReadToOutput(CommandContext& context) {
  return ReadOnline(context, "", [&](const ConfAutVoz& list) {
    return context.Show({[&] {
                           return Json{{"numbers", NumbersOf(list)},
                                       {"macro", list.MACRO < 0 ? Json() : Json(list.MACRO)}};
                         },
                         [&](std::ostream& out) {
                           for (const std::string& number : NumbersOf(list))
                             out << Printable(number) << '\n';
                         }});
  });
}

ExitCode Written(CommandContext& context, const std::string& path, const FileResult& result) {
  if (result.Ok()) return ExitCode::Done;
  return context.console.Fail(ExitCode::BadFile, "cannot write " + path + ": " + result.error);
}

/// Into a configuration, the rest of which stays as it is.
ExitCode ReadToConfiguration(CommandContext& context, const std::string& path) {
  auto configuration = context.OpenFile(path);
  if (!configuration) return ExitCode::BadFile;
  // Saving a file that was cut would make it look whole.
  IniClass former(context.platform.files);
  former.OpenINI(path, false);
  const auto errors = ErrorsIn(*configuration, context.options.features, &former,
                               context.platform.files, context.Translator());
  if (!errors.empty())
    return context.console.Fail(ExitCode::BadFile, path + ": " +
                                                       FindingText(errors.front().finding) +
                                                       ". Nothing was read: mend the file first");
  const ExitCode tried = TryToWrite(context, path);
  if (tried != ExitCode::Done) return tried;
  const ExitCode replaced = MayReplace(context, path, configuration->profile);
  if (replaced != ExitCode::Done) return replaced;
  return ReadOnline(context, path, [&](const ConfAutVoz& list) {
    ConfAutVoz& kept = configuration->conf.AutVoz;
    SetNumbers(kept, NumbersOf(list));
    kept.MACRO = list.MACRO;
    IniClass document(context.platform.files);
    SaveConfiguration(configuration->conf, configuration->profile, document);
    return Written(context, path, document.SaveINI(path, Replacing::Any));
  });
}

/// Asks before a text is replaced that is no list of numbers.
ExitCode MayReplaceText(CommandContext& context, const std::string& path) {
  std::vector<std::string> numbers;
  const auto text = context.platform.files.Read(path);
  if (!text || AddNumbers(*text, numbers, Repeated::Taken).empty()) return ExitCode::Done;
  const std::string other = path + " holds something else than a list of numbers";
  if (context.dialogs.Confirm(other + ". Replace it?")) return ExitCode::Done;
  return context.console.Fail(ExitCode::BadFile, other + ". --yes replaces it all the same");
}

ExitCode ReadToText(CommandContext& context, const std::string& path) {
  const ExitCode tried = TryToWrite(context, path);
  if (tried != ExitCode::Done) return tried;
  const ExitCode replaced = MayReplaceText(context, path);
  if (replaced != ExitCode::Done) return replaced;
  return ReadOnline(context, "", [&](const ConfAutVoz& list) {
    std::string text;
    for (const std::string& number : NumbersOf(list)) text += number + "\n";
    return Written(context, path, SaveWhole(context.platform.files, path, text, Replacing::Any));
  });
}

bool EndsAsConfiguration(std::string path) {
  std::ranges::transform(path, path.begin(), [](unsigned char c) { return std::tolower(c); });
  return path.ends_with(kConfigurationEnd);
}

ExitCode RunRead(CommandContext& context, const VoiceOptions& options) {
  if (options.file.empty() || options.file == kStandard) return ReadToOutput(context);
  if (IsConfiguration(context, options.file)) return ReadToConfiguration(context, options.file);
  if (EndsAsConfiguration(options.file))
    return context.console.Fail(ExitCode::BadFile,
                                options.file + " holds no configuration to put the list into");
  return ReadToText(context, options.file);
}

// ---- Writing

std::string NoNumber(std::string_view text) { return Excerpt(text) + " is no telephone number"; }

/// The list of a text file, with the macro that the options choose. Nothing, after saying why, when
/// a line is no number.
std::optional<ConfAutVoz> OpenText(CommandContext& context, const VoiceOptions& options) {
  const std::string& path = options.file;
  const auto text = context.platform.files.Read(path);
  std::vector<std::string> numbers;
  if (!text) {
    context.console.Fail(ExitCode::BadFile, "cannot read " + path);
    return {};
  }
  const auto refused = AddNumbers(*text, numbers, Repeated::Taken);
  for (std::size_t i = 0; i < std::min(refused.size(), kRefusedTold); ++i)
    context.console.Fail(
        ExitCode::BadFile,
        path + ", line " + std::to_string(refused[i].line) + ": " +
            (refused[i].fault == NumberFault::ListFull ? std::string(kTooMany)
                                                       : NoNumber(refused[i].text)));
  if (refused.size() > kRefusedTold)
    context.console.Fail(ExitCode::BadFile, path + ": " + std::to_string(refused.size()) +
                                                " lines are refused in all");
  if (!refused.empty()) return {};
  ConfAutVoz list;
  SetNumbers(list, numbers);
  if (!options.macro.empty()) list.MACRO = MacroOf(options.macro);
  return list;
}

/// Why a list is refused; empty where it is not. One without a number is asked about.
std::string WhyRefused(const ConfAutVoz& list) {
  using Kind = VoiceDoubt::Kind;
  const auto doubt = DoubtOfVoiceList(list);
  if (!doubt || doubt->kind == Kind::Empty) return {};
  if (doubt->kind == Kind::NoNumber)
    return "TEL " + std::to_string(doubt->place) + ": " + NoNumber(doubt->number);
  if (doubt->kind == Kind::TooMany) return std::string(kTooMany);
  return "MACRO: voice calls start macros 0 to 39: choose one of these or none";
}

/// The list of a configuration, with the macro that the options choose in place of its own.
/// Nothing, after saying why, when a logger would not take it.
std::optional<ConfAutVoz> OpenConfigured(CommandContext& context, const VoiceOptions& options) {
  const auto configuration = context.OpenFile(options.file);
  if (!configuration) return {};
  ConfAutVoz list = configuration->conf.AutVoz;
  IniTool tool(context.platform.files);
  std::string why;
  if (!options.macro.empty())
    list.MACRO = MacroOf(options.macro);
  else if (tool.ProfileRead("AUT_VOZ", "MACRO", options.file).empty())
    why = "it chooses no macro for voice calls: --macro does";
  if (why.empty()) why = WhyRefused(list);
  if (!why.empty()) {
    context.console.Fail(ExitCode::BadFile, options.file + ": " + why);
    return {};
  }
  SetNumbers(list, NumbersOf(list));
  return list;
}

ExitCode WriteOnline(Online& online, const std::string& file, ConfAutVoz list, bool keepsMacro) {
  CommandContext& context = online.context;
  if (file != kStandard) online.configurator.ledger.TakeFile(file);
  const ExitCode wanted = WantList(online);
  if (wanted != ExitCode::Done) return wanted;
  if (keepsMacro) {
    ConfAutVoz held;
    const ExitCode read = Read(online, held);
    if (read != ExitCode::Done) return read;
    list.MACRO = held.MACRO;
  }
  TransferWatch& watch = online.configurator.session.Watch();
  ExitCode code = ExitCode::Done;
  {
    const TransferLine shown(context.console, watch, kListLabel, context.environment.errIsTerminal);
    watch.BeginList(list.AutVozCount);
    code = online.session.WriteVoiceList(list);
    watch.End();
  }
  if (code != ExitCode::Done) return code;
  const std::size_t count = NumbersOf(list).size();
  context.Show(
      {[&] {
         return Json{{"written", count}, {"macro", list.MACRO < 0 ? Json() : Json(list.MACRO)}};
       },
       [](std::ostream&) {}});
  context.console.Note(CountWords(count) + MacroWords(list.MACRO) + " written");
  return ExitCode::Done;
}

/// Asks before the list that a logger holds is only taken away.
ExitCode MayEmpty(CommandContext& context, const std::string& file, const ConfAutVoz& list) {
  const auto doubt = DoubtOfVoiceList(list);
  if (!doubt || doubt->kind != VoiceDoubt::Kind::Empty) return ExitCode::Done;
  const std::string loses =
      file + " holds no number: the logger would lose all numbers of its list";
  if (context.dialogs.Confirm(loses + ". Write it?")) return ExitCode::Done;
  return context.console.Fail(ExitCode::BadFile, loses + ". --yes writes it all the same");
}

ExitCode RunWrite(CommandContext& context, const VoiceOptions& options) {
  const bool isConfiguration = IsConfiguration(context, options.file);
  const std::optional<ConfAutVoz> list =
      isConfiguration ? OpenConfigured(context, options) : OpenText(context, options);
  if (!list) return ExitCode::BadFile;
  const ExitCode may = MayEmpty(context, options.file, *list);
  if (may != ExitCode::Done) return may;
  const bool keepsMacro = !isConfiguration && options.macro.empty();
  return RunOnline(context, isConfiguration ? options.file : std::string(), [&](Online& online) {
    return WriteOnline(online, options.file, *list, keepsMacro);
  });
}

}  // namespace

Command AddVoice(CLI::App& app) {
  CLI::App* parser =
      app.add_subcommand("voice", "Read or write the list of numbers whose voice calls are taken");
  const auto options = std::make_shared<VoiceOptions>();
  CLI::App* read = parser->add_subcommand("read", "Read the list: one number a line");
  read->add_option(
      "FILE", options->file,
      "Configuration file that gets the list, or text file, which is replaced; the output "
      "where absent");
  CLI::App* write = parser->add_subcommand(
      "write",
      "Write the list. With a text file the logger keeps its macro, unless told otherwise");
  write
      ->add_option("FILE", options->file, "Configuration file, or text file with one number a line")
      ->required();
  write->add_option("--macro", options->macro, "Macro that a call starts: 0 to 39, or none")
      ->check(NoMacroChoice);
  for (CLI::App* each : {read, write}) each->fallthrough();
  parser->require_subcommand(1);
  return {parser, [options, read](CommandContext& context) {
            return read->parsed() ? RunRead(context, *options) : RunWrite(context, *options);
          }};
}

}  // namespace ostrel::cli
