#include "shell/LangForm.h"

#include "lang/Lang.h"

namespace ostrel {
namespace {

constexpr int kLastColumn = 5;

}  // namespace

LangForm::LangForm(PageContext& context)
    : context_(context),
      ComboLang(form_, "ComboLang"),
      CommandOk(form_, "CommandOk", ""),
      CommandCancel(form_, "CommandCancel", "") {
  form_.SetTitle("Select Language");
  CommandOk.OnClick = [this] {
    context_.lang.SetSelectedLang(static_cast<std::int16_t>(ComboLang.Position() + 1));
    form_.Hide();
  };
  CommandCancel.OnClick = [this] { form_.Hide(); };
}

void LangForm::AskUser() {
  ComboLang.Clear();
  for (int column = 0; column <= kLastColumn; ++column)
    if (const auto name = context_.lang.GetLangName(column); !name.empty()) ComboLang.Add(name);
  ComboLang.SetPosition(0);
  context_.ShowModal(form_);
}

}  // namespace ostrel
