#include "shell/LangForm.h"

#include "lang/Lang.h"

namespace ostrel {

LangForm::LangForm(PageContext& context)
    : context_(context),
      ComboLang(form_, "ComboLang"),
      CommandOk(form_, "CommandOk", ""),
      CommandCancel(form_, "CommandCancel", "") {
  form_.SetTitle("Select Language");
  CommandOk.OnClick = [this] {
    context_.lang.SetSelectedLang(static_cast<std::int16_t>(ComboLang.Position() + 1));
    accepted_ = true;
    form_.Hide();
  };
  CommandCancel.OnClick = [this] { form_.Hide(); };
}

bool LangForm::AskUser() {
  accepted_ = false;
  ComboLang.Clear();
  for (const std::string& name : context_.lang.OfferedNames()) ComboLang.Add(name);
  ComboLang.SetPosition(0);
  context_.ShowModal(form_);
  return accepted_;
}

}  // namespace ostrel
