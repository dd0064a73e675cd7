#include "cli/Ostrelctl.h"

#include <algorithm>
#include <vector>

#include "cli/commands/Commands.h"
#include "host/LoggerText.h"
#include "host/SimulatedLoggers.h"

namespace ostrel::cli {
namespace {

constexpr const char* kFooter =
    "Exit codes:\n"
    "  0  done\n"
    "  1  differences found by diff or by the verification of an upload, errors by check, or a\n"
    "     test not passed\n"
    "  2  usage\n"
    "  3  no session: port, modem or handshake\n"
    "  4  a dialogue failed or was interrupted\n"
    "  5  a file was refused, or cannot be read or written\n"
    "130  interrupted while no dialogue was under way, or nobody reads the output\n";

std::string NoModel(const std::string& name) {
  return FindTarget(name) ? std::string()
                          : name + " is none of KA1 KA2 VR200 S100 BP BQ or their display names";
}

std::string NoFeatures(const std::string& text) {
  return ReadFeatures(text) ? std::string() : text + " is no hexadecimal mask";
}

void AddGlobals(CLI::App& app, GlobalOptions& options) {
  app.add_option("--port", options.port, "COM7, the path of a device, or sim:MODEL");
  app.add_option("--target", options.target, "Model: display name, type word or short name")
      ->check(NoModel);
  app.add_option("--phone", options.phone, "Number to dial through a modem");
  CLI::Option* code = app.add_option("--code", options.code,
                                     "Access code; OSTREL_CODE of the environment gives one, too, "
                                     "and it is asked for where absent and needed");
  CLI::Option* codeFile =
      app.add_option("--code-file", options.codeFile, "File whose first line is the access code");
  CLI::Option* codeFd = app.add_option("--code-fd", options.codeDescriptor,
                                       "Open descriptor whose first line is the access code");
  codeFd->check(CLI::Range(0, 65535))->excludes(code)->excludes(codeFile);
  codeFile->excludes(code);
  app.add_option("--trace", options.trace, "File that gets what passes on the line");
  app.add_option("--record", options.record,
                 "File that gets every octet both ways, for ostrel-sim --replay");
  app.add_option("--sim-state", options.simState, "File in which a simulated logger is kept");
  app.add_option("--lang", options.lang,
                 "Column of the language table for the core's texts, else that of the locale")
      ->check(CLI::Range(1, 5));
  app.add_option_function<std::string>(
         "--features",
         [&options](const std::string& text) { options.features = ReadFeatures(text); },
         "Firmware features to count with, hexadecimal, where no logger tells them")
      ->check(NoFeatures);
  app.add_flag("--json", options.json, "Results as JSON");
  app.add_flag("--secrets", options.secrets,
               "Show the passwords of the configuration in results and in the trace");
  app.add_flag("--quiet", options.quiet, "No progress and no words about the work");
  app.add_flag("--yes", options.yes,
               "Answer questions with yes; sets a logger's clock that is off, too");
}

std::vector<Command> AddCommands(CLI::App& app) {
  std::vector<Command> commands;
  for (const auto add : {AddPorts,      AddDoctor,   AddInfo,    AddClock,       AddLive,
                         AddOutput,     AddTotal,    AddVoice,   AddProbe,       AddTerminal,
                         AddFirmware,   AddDownload, AddUpload,  AddBackups,     AddRestore,
                         AddStatements, AddDiff,     AddShow,    AddCheck,       AddSchedule,
                         AddReport,     AddCalc,     AddHistory, AddInterrupted, AddTest})
    commands.push_back(add(app));
  for (const Command& command : commands) command.parser->fallthrough();
  app.require_subcommand(1);
  return commands;
}

/// What the parser had to say: help is a result, everything else a mistake in the command line.
ExitCode TellParserResult(const CLI::App& app, const CLI::ParseError& error,
                          Environment& environment, bool json) {
  if (error.get_exit_code() != 0) {
    const bool isUnknown = app.get_subcommands().empty() && !app.remaining().empty();
    const std::string says =
        isUnknown ? "there is no command " + app.remaining().front() : error.what();
    return Console(environment.out, environment.err, false, json)
        .Fail(ExitCode::Usage, says + " (--help tells more)");
  }
  app.exit(error, environment.out, environment.err);
  environment.out.flush();
  return environment.out ? ExitCode::Done : ExitCode::BadFile;
}

/// A reader that has gone says so by a signal.
ExitCode OutputLost(CommandContext& context) {
  if (context.Interrupted())
    return context.console.Fail(ExitCode::Interrupted, "interrupted: nobody reads the output");
  return context.console.Fail(ExitCode::BadFile, "cannot write the output");
}

/// Takes the access code from where the options or the environment have it, out of the list of
/// processes.
ExitCode TakeCode(const Environment& environment, GlobalOptions& options) {
  FileResult read;
  std::string from = options.codeFile;
  if (!options.codeFile.empty()) {
    read = environment.platform.files.ReadInto(options.codeFile, options.code);
  } else if (options.codeDescriptor >= 0) {
    from = "descriptor " + std::to_string(options.codeDescriptor);
    read = environment.readDescriptor(options.codeDescriptor, true, options.code);
  } else {
    if (options.code.empty()) options.code = environment.code;
    return ExitCode::Done;
  }
  options.code.resize(std::min(options.code.find_first_of("\r\n"), options.code.size()));
  if (read.Ok() && options.code.empty()) read = {"its first line is empty"};
  if (read.Ok()) return ExitCode::Done;
  return Console(environment.out, environment.err, false, options.json)
      .Fail(ExitCode::BadFile, "no access code from " + from + ": " + read.error);
}

/// The words of a command line that decide what is done: without those that say where the logger
/// is, who asks, and what is written beside it.
std::string WordsToKeep(std::span<const std::string> args) {
  constexpr std::string_view kLeftOut[] = {"--port",      "--code",  "--code-file", "--code-fd",
                                           "--sim-state", "--trace", "--record"};
  std::string words;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string_view name = std::string_view(args[i]).substr(0, args[i].find('='));
    if (std::ranges::find(kLeftOut, name) != std::end(kLeftOut)) {
      if (name.size() == args[i].size()) ++i;
    } else {
      words += (words.empty() ? "" : " ") + args[i];
    }
  }
  return words;
}

/// Tells that what goes beside the work could not be written. Work that is done stays done.
ExitCode BesideLost(CommandContext& context, const std::string& path, ExitCode result) {
  const std::string words = "cannot write " + path;
  if (!context.isDone) return context.console.Fail(ExitCode::BadFile, words);
  context.console.Say(words);
  return result;
}

ExitCode RunChosen(const std::vector<Command>& commands, Environment& environment,
                   const GlobalOptions& options) {
  for (const Command& command : commands) {
    if (!command.parser->parsed()) continue;
    CommandContext context(environment, options);
    if (const ExitCode begun = context.StartRecording(); begun != ExitCode::Done) return begun;
    // Whoever asks for the interruptions need not be told of them.
    if (command.parser->get_name() != "interrupted") TellInterrupted(context);
    const ExitCode result = command.run(context);
    const bool isRecorded = context.EndRecording(result);
    const FileResult kept = environment.simulated.SaveState(environment.platform.files);
    environment.out.flush();
    if (!kept.Ok())
      return context.console.Fail(ExitCode::BadFile,
                                  "cannot write " + options.simState + ": " + kept.error);
    if (!environment.out && !context.isDone) return OutputLost(context);
    if (context.traceLost) return BesideLost(context, options.trace, result);
    if (!isRecorded) return BesideLost(context, options.record, result);
    return result;
  }
  return ExitCode::Usage;
}

}  // namespace

ExitCode RunOstrelctl(std::span<const std::string> args, Environment& environment) {
  CLI::App app("Reads, checks, compares and writes the configurations of telemetry loggers",
               "ostrelctl");
  app.allow_windows_style_options(false);  // "/site.ocf" is a file everywhere
  GlobalOptions options;
  options.lang = environment.lang;
  AddGlobals(app, options);
  const std::vector<Command> commands = AddCommands(app);
  const ConfiguratorOptions version;
  app.set_version_flag("--version", "ostrelctl " + std::to_string(version.versionMajor) + "." +
                                        std::to_string(version.versionMinor));
  app.footer(kFooter);
  try {
    app.parse(std::vector<std::string>(args.rbegin(), args.rend()));
  } catch (const CLI::ParseError& error) {
    return TellParserResult(app, error, environment,
                            std::ranges::find(args, "--json") != args.end());
  }
  if (const ExitCode given = TakeCode(environment, options); given != ExitCode::Done) return given;
  options.words = WordsToKeep(args);
  return RunChosen(commands, environment, options);
}

}  // namespace ostrel::cli
