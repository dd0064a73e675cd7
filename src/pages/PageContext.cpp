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

void PageContext::EditActions(ActionList& actions) const {
  CopyActions(actions, ActionBuffer);
  showActEdit();
  CopyActions(ActionBuffer, actions);
}

void PageContext::ShowHelp(std::string_view word) const {
  ostrel::ShowHelp(platform.processes, programFolder, word);
}

void PageContext::ShowModal(Form& form) const { ostrel::ShowModal(platform.dialogs, form); }

void PageContext::ShowMessage(std::string_view text, BoxIcon icon) const {
  platform.dialogs.ShowMessage(
      {.text = std::string(text), .title = profile.TargetName, .icon = icon});
}

}  // namespace ostrel
