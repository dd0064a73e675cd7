#include "shell/PWForm.h"

#include "platform/Dialogs.h"

namespace ostrel {

PWForm::PWForm(PageContext& context)
    : context_(context),
      LabelPrompt(form_, "LabelPrompt", "Introduzca la clave de acceso:"),
      PWText(form_, "PWText"),
      Aceptar(form_, "Aceptar", "Aceptar"),
      Cancelar(form_, "Cancelar", "Cancelar") {}

void PWForm::ShowModal(std::string& AccessCode) {
  Aceptar.OnClick = [this, &AccessCode] {
    if (!CheckCode(context_, PWText.Text())) return;
    AccessCode = PWText.Text();
    form_.Close();
  };
  Cancelar.OnClick = [this, &AccessCode] {
    AccessCode.clear();
    form_.Close();
  };
  form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
  PWText.SetText("");
  context_.platform.dialogs.Beep();
  context_.ShowModal(form_);
  Aceptar.OnClick = Cancelar.OnClick = nullptr;
}

bool CheckCode(const PageContext& context, std::string_view code) {
  if (IsFloatText(code)) return true;
  context.ShowMessage(context.Translate("La clave de acceso debe ser un numero"),
                      BoxIcon::Exclamation);
  return false;
}

}  // namespace ostrel
