#include "cli/ConfFile.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "shell/report/Commissioning.h"

namespace ostrel::cli {
namespace {

constexpr std::string_view kHtmlEnd = ".html";
constexpr std::string_view kPdfEnd = ".pdf";
constexpr std::string_view kPortWord = "port";

struct ReportOptions {
  std::string file;  ///< or "port"
  std::string out;
  std::string language = "en";
};

std::string NoReportName(const std::string& path) {
  return path.ends_with(kHtmlEnd) || path.ends_with(kPdfEnd)
             ? std::string()
             : path + " is neither an .html nor a .pdf file";
}

ExitCode WriteReport(CommandContext& context, const ReportOptions& options,
                     const Commissioned& work) {
  const std::string& code = options.language;
  const ReportLanguage language{
      .code = code,
      .say =
          [&](std::string_view text) {
            return context.environment.translate ? context.environment.translate(code, text)
                                                 : std::string(text);
          },
      .translate = context.TranslatorTo(code == "es" ? kSpanishColumn : kEnglishColumn)};
  std::string octets = ReportHtml(CommissioningReport(work, language, context.platform.files));
  if (options.out.ends_with(kPdfEnd)) octets = context.environment.makePdf(octets);
  FileResult saved = {"it could not be set as pages"};
  if (!octets.empty())
    saved = SaveWhole(context.platform.files, options.out, octets, Replacing::Any);
  if (!saved.Ok())
    return context.console.Fail(ExitCode::BadFile,
                                "cannot write " + options.out + ": " + saved.error);
  context.console.Note("report written to " + options.out);
  return ExitCode::Done;
}

/// Adds what the logger of a session tells of itself, and what it measures now.
ExitCode AskLogger(const Online& online, Commissioned& work) {
  Configurator& logger = online.configurator;
  const bool isClockRead = logger.comms.ReadDeviceRTC();
  const ExitCode named = online.session.Run([&] { return logger.comms.ReadIOParameter(); });
  if (named != ExitCode::Done) return named;
  const ExitCode read = online.session.Run([&] { return logger.comms.ReadRealTime(); });
  if (read != ExitCode::Done) return read;
  const CommandContext& context = online.context;
  AddLogger(work, logger, context.platform, context.environment.dataFolder,
            {.clock = isClockRead, .live = true});
  return ExitCode::Done;
}

ExitCode RunReport(CommandContext& context, const ReportOptions& options) {
  const bool isOfPort = options.file == kPortWord;
  std::optional<ModelConfiguration> configuration;
  if (!isOfPort) {
    configuration = context.OpenFile(options.file);
    if (!configuration) return ExitCode::BadFile;
  }
  if (const ExitCode tried = TryToWrite(context, options.out); tried != ExitCode::Done)
    return tried;
  Commissioned work{.configuration = configuration.value_or(ModelConfiguration()),
                    .madeAt = context.platform.clock.LocalNow(),
                    .file = isOfPort ? std::string() : options.file};
  if (!isOfPort && !context.HasPort()) return WriteReport(context, options, work);
  const ExitCode asked =
      RunOnline(context, isOfPort ? std::string() : options.file, [&](Online& online) {
        if (isOfPort) {
          const ExitCode downloaded = online.session.Download();
          if (downloaded != ExitCode::Done) return downloaded;
          work.configuration = {online.configurator.profile, online.configurator.conf};
        } else if (options.file != kStandard) {
          online.configurator.ledger.TakeFile(options.file);
        }
        return AskLogger(online, work);
      });
  return asked == ExitCode::Done ? WriteReport(context, options, work) : asked;
}

}  // namespace

Command AddReport(CLI::App& app) {
  CLI::App* parser =
      app.add_subcommand("report", "Write a commissioning report to print, to sign and to keep");
  const auto options = std::make_shared<ReportOptions>();
  parser
      ->add_option("FILE", options->file,
                   "Configuration file, or \"port\" for what the logger holds")
      ->required();
  parser->add_option("--out", options->out, "File to write: .html or .pdf")
      ->required()
      ->check(NoReportName);
  parser->add_option("--language", options->language, "Language of the report")
      ->check(CLI::IsMember({"en", "es"}))
      ->capture_default_str();
  parser->footer("With a FILE and --port the logger there tells who it is and what it measures.");
  return {parser, [options](CommandContext& context) { return RunReport(context, *options); }};
}

}  // namespace ostrel::cli
