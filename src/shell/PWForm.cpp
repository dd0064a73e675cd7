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
    if (!IsFloatText(PWText.Text())) {
      context_.ShowMessage(context_.Translate("La clave de acceso debe ser un numero"),
                           BoxIcon::Exclamation);
      return;
    }
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

}  // namespace ostrel
