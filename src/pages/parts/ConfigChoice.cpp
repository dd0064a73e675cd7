#include "pages/parts/ConfigChoice.h"

namespace ostrel {

ConfigChoice::ConfigChoice(Form& form, const ControlNames& names, int configs)
    : options_{OptionButton(form, group_, names("Config0"), "Configuracion 0"),
               OptionButton(form, group_, names("Config1"), "Configuracion 1"),
               OptionButton(form, group_, names("Config2"), "Configuracion 2"),
               OptionButton(form, group_, names("Config3"), "Configuracion 3")},
      configs_(configs) {
  for (std::size_t config = 0; config < options_.size(); ++config) {
    OptionButton& option = options_[config];
    const auto number = static_cast<std::int16_t>(config);
    option.face.SetVisible(number == 0 || number < configs);
    option.OnClick = [this, number] { Select(number); };
  }
}

void ConfigChoice::Select(std::int16_t config) {
  if (config >= configs_)
    return options_[static_cast<std::size_t>(CurrentConfig_)].SetSelected(true);
  if (OnLeave) OnLeave();
  CurrentConfig_ = config;
  if (OnShow) OnShow();
}

}  // namespace ostrel
