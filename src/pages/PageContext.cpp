#include "pages/PageContext.h"

#include "base/Help.h"
#include "controls/ModalForm.h"
#include "lang/Lang.h"
#include "store/IniTool.h"

namespace ostrel {

std::string PageContext::Translate(std::string_view text) const {
  return lang.TranslateIfRoom(text);
}

std::string PageContext::ConfReadKey(std::string_view section, std::string_view key) const {
  return std::string(iniTool.ProfileRead(section, key, ConfFilePath));
}

void PageContext::WhenFree(std::function<void()> action) const {
  if (whenFree)
    whenFree(std::move(action));
  else
    action();
}

void PageContext::EditActions(ActionList& actions, std::string subject,
                              std::function<void()> edited) const {
  WhenFree([this, &actions, subject = std::move(subject), edited = std::move(edited)] {
    if (ComBusy) return;  // the list is being replaced
    CopyActions(actions, ActionBuffer);
    showActEdit(subject);
    CopyActions(ActionBuffer, actions);
    edited();
  });
}

void PageContext::ShowHelp(std::string_view word) const {
  ostrel::ShowHelp(platform.processes, programFolder, word);
}

void PageContext::ShowModal(Form& form) const { ostrel::ShowModal(platform.dialogs, form); }

bool PageContext::Ask(std::string_view question) const {
  return platform.dialogs.ShowMessage({.text = Translate(question),
                                       .title = profile.TargetName,
                                       .icon = BoxIcon::Question,
                                       .buttons = BoxButtons::YesNo}) == BoxAnswer::Yes;
}

void PageContext::ShowMessage(std::string_view text, BoxIcon icon) const {
  platform.dialogs.ShowMessage(
      {.text = std::string(text), .title = profile.TargetName, .icon = icon});
}

}  // namespace ostrel
