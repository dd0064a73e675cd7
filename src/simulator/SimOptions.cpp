#include "simulator/SimOptions.h"

#include <CLI/CLI.hpp>
#include <vector>

#include "base/CodePage.h"
#include "base/Printable.h"
#include "host/LoggerText.h"
#include "sim/fixture/FixtureText.h"

namespace ostrel {
namespace {

struct Texts {
  std::string model = "VR200";
  std::string features;
  std::optional<std::string> serial;
  std::vector<std::string> faults;
  int firmware = -1;
};

void AddOptions(CLI::App& app, SimOptions& options, Texts& texts) {
  app.add_option("--model", texts.model, "KA1 KA2 VR200 S100 BP BQ")->capture_default_str();
  app.add_option("--firmware", texts.firmware, "Version of the firmware in hundredths")
      ->check(CLI::Range(0, 9999));
  app.add_option("--serial", texts.serial, "Serial number; 0, or -1 of a KA2, is a new board's");
  app.add_option("--features", texts.features, "Features of the firmware, hexadecimal");
  app.add_flag("--pace", options.isPaced, "960 octets a second, as on a cable");
  app.add_flag("--bare-greeting", options.logger.greetsBare,
               "Greet without telling model and version");
  app.add_flag("--own-names", options.logger.tellsOwnNames,
               "Tell the names of the channels that the model has, not of all there may be");
  app.add_flag("--empty", options.isEmpty, "Start without a configuration");
  app.add_option("--state", options.stateFile, "File in which the logger is kept");
  app.add_option("--fixture", options.fixture,
                 "File that tells how a BP, KA2 or BQ and its fixture do in a factory test");
  app.add_option("--replay", options.replay,
                 "Recording of ostrelctl --record whose logger is played; no other option of a "
                 "logger counts then");
  app.add_flag("--modem", options.logger.modem, "Behind a modem instead of a cable");
  app.add_option("--code", options.logger.accessCode, "Access code of a data call");
  app.add_option("--fault", texts.faults, "What goes wrong; may be given again")
      ->allow_extra_args(false);
  app.add_option("--seed", options.logger.seed, "Of live values and faults")
      ->check([](const std::string& text) {
        return text.starts_with('-') ? text + " is no seed" : NoWholeNumber(text);
      })
      ->capture_default_str();
  app.add_option("--link", options.link, "Symbolic link to make to the pseudo-terminal");
  app.footer("Faults:\n" + sim::FaultHelp() + "\nLines of a fixture:\n" + sim::FixtureHelp());
}

/// What is wrong with the texts; empty when all could be taken over.
std::string Take(const Texts& texts, sim::LoggerOptions& options) {
  const auto model = sim::ParseModel(texts.model);
  if (!model) return "there is no model " + texts.model;
  const sim::LoggerOptions usual = sim::MakeDefaultOptions(*model);
  options.model = *model;
  options.version = texts.firmware < 0 ? usual.version : texts.firmware;
  options.features = usual.features;
  options.serial = texts.serial.value_or(usual.serial);
  options.battery = usual.battery;
  if (!texts.features.empty()) {
    const auto features = ReadFeatures(texts.features);
    if (!features) return texts.features + " is no hexadecimal mask";
    options.features = static_cast<std::uint32_t>(*features);
  }
  for (const std::string& text : texts.faults) {
    std::string error;
    const auto fault = sim::ParseFault(text, error);
    if (!fault) return "fault " + text + ": " + error;
    options.faults.push_back(*fault);
  }
  return {};
}

/// Octets of the line as they may be shown.
std::string Shown(const std::string& octets) {
  return Printable(FromCodePage(WithoutSecrets(octets)));
}

/// A time in seconds, ahead of what happened then.
std::string Stamp(TimePoint at) {
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(at).count();
  return std::to_string(milliseconds / 1000) + "." +
         std::to_string(milliseconds % 1000 + 1000).substr(1) + "  ";
}

std::string_view MatchWords(ReplayMatch match) {
  switch (match) {
    case ReplayMatch::InOrder:
      return "";
    case ReplayMatch::Elsewhere:
      return "  (from another place)";
    case ReplayMatch::Alike:
      return "  (to a request of its kind)";
    case ReplayMatch::Unknown:
      return "  (not recorded)";
  }
  return "";
}

}  // namespace

bool ParseSimOptions(std::span<const std::string> args, SimOptions& options, std::ostream& out,
                     std::ostream& err, ExitCode& code) {
  CLI::App app("A simulated telemetry logger on a pseudo-terminal", "ostrel-sim");
  app.allow_windows_style_options(false);  // "/state" is a file everywhere
  Texts texts;
  AddOptions(app, options, texts);
  code = ExitCode::Done;
  std::string wrong;
  try {
    app.parse(std::vector<std::string>(args.rbegin(), args.rend()));
    wrong = Take(texts, options.logger);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
      app.exit(error, out, err);
      return false;
    }
    wrong = error.what();
  }
  if (wrong.empty()) return true;
  err << "ostrel-sim: " << Printable(wrong) << " (--help tells more)\n";
  code = ExitCode::Usage;
  return false;
}

std::string ExchangeLine(const sim::Exchange& exchange) {
  std::string line = Stamp(exchange.at) + Shown(exchange.request);
  if (!exchange.reply.empty()) line += " -> " + Shown(exchange.reply);
  if (exchange.frames > 1) line += " and " + std::to_string(exchange.frames - 1) + " more";
  if (!exchange.note.empty()) line += "  (" + Printable(FromCodePage(exchange.note)) + ")";
  return line;
}

std::string ReplayLine(TimePoint at, const ReplayedRequest& request) {
  std::string text = request.request;
  while (!text.empty() && (text.back() == '\r' || text.back() == '\n')) text.pop_back();
  return Stamp(at) + Printable(FromCodePage(text)) + " -> " + std::to_string(request.answers) +
         (request.answers == 1 ? " line" : " lines") + std::string(MatchWords(request.match));
}

}  // namespace ostrel
