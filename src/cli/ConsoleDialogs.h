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
  /// Gives the code of the options once, or asks for one on the terminal.
  std::string AskCode(const std::string& prompt) override;
  /// Forms are for a face that draws: always dismissed.
  void ShowModal(Modal&, const std::function<void()>&) override {}
  void Beep() override {}

  /// Asks a question of the command line itself.
  bool Confirm(const std::string& question);
  /// Asks for something to be done, and waits until the operator says that it is; without an
  /// operator it goes on.
  void AwaitDone(const std::string& request);
  /// Whether a question was left by an interrupt, or by the end of the input.
  bool Left() const { return left_; }
  /// While this is set, message boxes are not written: the command says itself what happened.
  bool mute = false;

 private:
  /// Asks for a line; leaves the whole command where none comes.
  std::string Ask(const std::string& prompt, bool echo);

  Environment& environment_;
  Console& console_;
  const GlobalOptions& options_;
  bool codeUsed_ = false;  ///< the code of the options has been given
  bool left_ = false;
};

}  // namespace ostrel::cli
