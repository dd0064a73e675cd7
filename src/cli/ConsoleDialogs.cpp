#include "cli/ConsoleDialogs.h"

#include <utility>

#include "controls/Form.h"

namespace ostrel::cli {

BoxAnswer ConsoleDialogs::ShowMessage(const MessageBox& box) {
  const std::string text = box.title.empty() ? box.text : box.title + ": " + box.text;
  if (box.buttons == BoxButtons::YesNo) return Confirm(text) ? BoxAnswer::Yes : BoxAnswer::No;
  if (!mute) console_.Err() << Printable(text) << std::endl;
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

std::string ConsoleDialogs::Ask(const std::string& prompt, bool echo) {
  if (left_) return {};
  auto answer = environment_.ask(prompt, echo);
  left_ = !answer;
  if (left_ && environment_.onInterrupt) environment_.onInterrupt();
  return std::move(answer).value_or("");
}

void ConsoleDialogs::ShowModal(Form& form) {
  if (form.Name() != "PWForm") return;
  const std::string code = NextCode(form.Get<Label>("LabelPrompt").face.Caption());
  if (code.empty()) return form.Get<Button>("Cancelar").Click();
  form.Get<TextBox>("PWText").SetText(code);
  form.Get<Button>("Aceptar").Click();
}

std::string ConsoleDialogs::NextCode(const std::string& prompt) {
  ++codesAsked_;
  std::string code;
  if (!options_.code.empty()) {
    // A code that was refused once is refused again: it is not repeated.
    if (codesAsked_ == 1) code = options_.code;
  } else if (environment_.ask) {
    code = Ask(Printable(prompt) + " ", false);
  }
  if (!code.empty()) ++codesGiven_;
  return code;
}

}  // namespace ostrel::cli
