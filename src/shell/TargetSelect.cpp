#include "shell/TargetSelect.h"

namespace ostrel {

TargetSelect::TargetSelect(PageContext& context, StoredSettings settings,
                           std::function<void(const std::string&)> change)
    : context_(context),
      settings_(settings),
      LabelNotice(form_, "LabelNotice",
                  "Esta version del configurado es universal, por favor seleccione el dispositivo "
                  "que desea configurar"),
      ComboTarget(form_, "ComboTarget"),
      LabelWarning(form_, "LabelWarning",
                   "No se puede cambiar de dispositivo mientras hay una conexion en curso"),
      CommandChange(form_, "CommandChange", "Cambiar") {
  LabelWarning.face.SetVisible(false);
  CommandChange.OnClick = [this, change = std::move(change)] {
    if (context_.Connected) return Form_Activate();
    const std::string name = ComboTarget.Text();
    change(name);
    settings_.SetTarget(name);
  };
}

void TargetSelect::LoadText() {
  form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
}

void TargetSelect::Form_Load() {
  const std::string stored = settings_.Target();
  LoadText();
  ComboTarget.Clear();
  for (const std::string_view name : TargetNamesOffered()) ComboTarget.Add(name);
  ComboTarget.SetPosition(0);
  for (std::size_t row = 0; row < ComboTarget.Rows().size(); ++row)
    if (ComboTarget.Rows()[row].text == stored) ComboTarget.SetPosition(static_cast<int>(row));
}

void TargetSelect::Form_Activate() {
  LabelWarning.face.SetVisible(context_.Connected);
  CommandChange.face.SetEnabled(!context_.Connected);
}

}  // namespace ostrel
