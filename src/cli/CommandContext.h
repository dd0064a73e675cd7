#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "cli/Console.h"
#include "cli/ConsoleDialogs.h"
#include "cli/Environment.h"
#include "cli/GlobalOptions.h"
#include "cli/Result.h"
#include "cli/StandardFiles.h"
#include "lang/Lang.h"
#include "platform/TappedPort.h"
#include "recording/Recorder.h"
#include "shell/Configurator.h"
#include "shell/files/ConfigurationFile.h"
#include "shell/words/FieldWords.h"

namespace ostrel::cli {

/// A port as the command line names it.
struct PortChoice {
  std::int16_t number = 0;
  std::string name{};            ///< for messages: "COM7 (/dev/ttyS6)"
  std::string simulatedModel{};  ///< display name of the simulated logger there; else empty
};

/// What a command runs in: the world, the options that all commands share, and configurators.
class CommandContext {
 public:
  CommandContext(Environment& environment, GlobalOptions options);

  Environment& environment;
  const GlobalOptions options;
  Console console;
  ConsoleDialogs dialogs;
  StandardFiles files;
  TappedPort tapped;        ///< that of the environment
  const Platform platform;  ///< that of the environment; the dialogs are those of the command line
  bool traceLost = false;   ///< the trace could not be written whole
  /// What was to be done is done: output that cannot be written does not change that.
  bool isDone = false;

  /// Begins the recording that the options ask for. Anything but Done after saying why it cannot be
  /// written.
  ExitCode StartRecording();
  /// Ends it with what the command came to; false when it could not be written whole.
  bool EndRecording(ExitCode code);

  /// A configurator with the ports of the environment, on a model by its display name.
  std::unique_ptr<Configurator> MakeOnline(std::string_view model);
  /// The configuration of a file, with its model. Nothing, after saying why, when it is refused.
  std::optional<ModelConfiguration> OpenFile(const std::string& path);
  /// Gives texts in the language of the options.
  Translation Translator() {
    return [this](std::string_view text) { return lang_.TranslateIfRoom(text); };
  }
  /// The same in another language, by its column in the table of texts.
  Translation TranslatorTo(std::int16_t column) {
    return [this, column](std::string_view text) { return lang_.TranslateToIfRoom(column, text); };
  }

  /// The model to work with, by its display name: that of the options, else that of the simulated
  /// logger, else that of the file's stamp, else the stored one. Nothing, after saying why, when
  /// none of these tells.
  std::optional<std::string> ChooseModel(const PortChoice& port, const std::string& file);
  /// Finds the port of the options. Anything but Done after saying why there is none.
  ExitCode ChoosePort(PortChoice& choice);
  bool HasPort() const { return !options.port.empty(); }
  Passwords ShownPasswords() const {
    return options.secrets ? Passwords::Shown : Passwords::Hidden;
  }

  /// Statements as they may be shown.
  std::vector<std::string> Shown(std::vector<std::string> statements) const;

  /// Whether a signal has come that ends the program.
  bool Interrupted() const { return environment.interrupted && environment.interrupted(); }

  /// Writes a result to the output, in the form that the options ask for. Done, so that a command
  /// can end with it.
  ExitCode Show(const Result& result, JsonLayout layout = JsonLayout::Indented);

 private:
  PortChoice NumberedPort(std::int16_t number);
  /// Display name of the model that a file's stamp names; empty when it names none.
  std::string ModelOfFile(const std::string& path);

  Lang lang_;
  std::unique_ptr<std::ostream> recording_;
  std::unique_ptr<Recorder> recorder_;
};

}  // namespace ostrel::cli
