#include "cli/ConsoleDialogs.h"

#include "controls/Form.h"

namespace ostrel::cli {

BoxAnswer ConsoleDialogs::ShowMessage(const MessageBox& box) {
  const std::string text = box.title.empty() ? box.text : box.title + ": " + box.text;
  if (box.buttons == BoxButtons::YesNo) return Confirm(text) ? BoxAnswer::Yes : BoxAnswer::No;
  console_.Err() << Printable(text) << std::endl;
  return BoxAnswer::Ok;
}

bool ConsoleDialogs::Confirm(const std::string& question) {
  const std::string shown = Printable(question);
  if (options_.yes || !environment_.ask) {
    console_.Note(shown + (options_.yes ? " yes" : " no (--yes answers yes)"));
    return options_.yes;
  }
  const std::string answer = environment_.ask(shown + " [y/N] ", true).value_or("");
  return answer == "y" || answer == "Y" || answer == "yes";
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
    code = environment_.ask(Printable(prompt) + " ", false).value_or("");
  }
  if (!code.empty()) ++codesGiven_;
  return code;
}

}  // namespace ostrel::cli
