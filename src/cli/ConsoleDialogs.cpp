#include "cli/ConsoleDialogs.h"

#include <utility>

namespace ostrel::cli {

BoxAnswer ConsoleDialogs::ShowMessage(const MessageBox& box) {
  const std::string text = box.title.empty() ? box.text : box.title + ": " + box.text;
  if (box.buttons == BoxButtons::YesNo) return Confirm(text) ? BoxAnswer::Yes : BoxAnswer::No;
  if (!mute) console_.Say(text);
  return BoxAnswer::Ok;
}

bool ConsoleDialogs::Confirm(const std::string& question) {
  const std::string shown = Printable(question);
  if (options_.yes || !environment_.ask) {
    console_.Note(shown + (options_.yes ? " yes" : " no (--yes answers yes)"));
    return options_.yes;
  }
  const std::string answer = Ask(shown + " [y/N] ", true);
  return answer == "y" || answer == "Y" || answer == "yes";
}

void ConsoleDialogs::AwaitDone(const std::string& request) {
  const std::string shown = Printable(request);
  if (options_.yes || !environment_.ask) return console_.Say(shown);
  Ask(shown + " [Enter] ", true);
}

std::string ConsoleDialogs::Ask(const std::string& prompt, bool echo) {
  if (left_) return {};
  auto answer = environment_.ask(prompt, echo);
  left_ = !answer;
  if (left_ && environment_.onInterrupt) environment_.onInterrupt();
  return std::move(answer).value_or("");
}

std::string ConsoleDialogs::AskCode(const std::string& prompt) {
  if (options_.code.empty())
    return environment_.ask ? Ask(Printable(prompt) + " ", false) : std::string();
  // A code that was refused once is refused again: it is not repeated.
  return std::exchange(codeUsed_, true) ? std::string() : options_.code;
}

}  // namespace ostrel::cli
