#pragma once

#include <optional>
#include <string>

#include "cli/Console.h"
#include "cli/Environment.h"
#include "cli/GlobalOptions.h"
#include "platform/Dialogs.h"

namespace ostrel::cli {

/// Dialogs of a command line: messages are lines on standard error, questions are asked on the
/// terminal. Without a terminal a question is answered No, unless the options say Yes.
class ConsoleDialogs final : public Dialogs {
 public:
  ConsoleDialogs(Environment& environment, Console& console, const GlobalOptions& options)
      : environment_(environment), console_(console), options_(options) {}

  BoxAnswer ShowMessage(const MessageBox& box) override;
  /// A command names its files itself: always a cancel.
  std::optional<std::string> ChooseFile(const FileQuestion&) override { return std::nullopt; }
  /// Answers the form that asks an access code; any other form is dismissed.
  void ShowModal(Form& form) override;
  void Beep() override {}

  /// Asks a question of the command line itself.
  bool Confirm(const std::string& question);
  /// How often an access code was asked for, and how often one was given.
  int CodesAsked() const { return codesAsked_; }
  int CodesGiven() const { return codesGiven_; }

  /// Whether a question was left by an interrupt, or by the end of the input.
  bool Left() const { return left_; }
  /// While this is set, message boxes are not written: the command says itself what happened.
  bool mute = false;

 private:
  /// Asks for a line; leaves the whole command where none comes.
  std::string Ask(const std::string& prompt, bool echo);
  std::string NextCode(const std::string& prompt);

  Environment& environment_;
  Console& console_;
  const GlobalOptions& options_;
  int codesAsked_ = 0;
  int codesGiven_ = 0;
  bool left_ = false;
};

}  // namespace ostrel::cli
