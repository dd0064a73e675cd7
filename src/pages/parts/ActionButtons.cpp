#include "pages/parts/ActionButtons.h"

namespace ostrel {

ActionButtons::ActionButtons(Form& form, const ControlNames& names, bool hasNormal)
    : BotonAlto(form, names("BotonAlto"), "Valor alto"),
      BotonBajo(form, names("BotonBajo"), "Valor bajo") {
  BotonAlto.OnClick = [this] { OnActions(&AlarmBlock::ACTHI); };
  BotonBajo.OnClick = [this] { OnActions(&AlarmBlock::ACTLO); };
  if (!hasNormal) return;
  BotonNormal.emplace(form, names("BotonNormal"), "Valor nominal");
  BotonNormal->OnClick = [this] { OnActions(&AlarmBlock::ACTNO); };
}

void ActionButtons::SetEnabled(bool enabled) {
  BotonAlto.face.SetEnabled(enabled);
  BotonBajo.face.SetEnabled(enabled);
  if (BotonNormal) BotonNormal->face.SetEnabled(enabled);
}

}  // namespace ostrel
