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
  // The keys' own language needs no table.
  if (ComboLang.Rows().empty()) ComboLang.Add("Español");
  // Columns count from 1; before the first choice none is in use.
  const int inUse = context_.lang.SelectedLang() - 1;
  const int offered = static_cast<int>(ComboLang.Rows().size());
  ComboLang.SetPosition(inUse >= 0 && inUse < offered ? inUse : 0);
  context_.ShowModal(form_);
  return accepted_;
}

}  // namespace ostrel
