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

void ActionButtons::ShowCounts(const AlarmBlock& alarm) {
  BotonAlto.SetCount(CountActions(alarm.ACTHI));
  BotonBajo.SetCount(CountActions(alarm.ACTLO));
  if (BotonNormal) BotonNormal->SetCount(CountActions(alarm.ACTNO));
}

const std::string& ActionButtons::CaptionOf(ActionList AlarmBlock::*list) const {
  if (list == &AlarmBlock::ACTHI) return BotonAlto.face.Caption();
  return list == &AlarmBlock::ACTLO ? BotonBajo.face.Caption() : BotonNormal->face.Caption();
}

void ActionButtons::SetEnabled(bool enabled) {
  BotonAlto.face.SetEnabled(enabled);
  BotonBajo.face.SetEnabled(enabled);
  if (BotonNormal) BotonNormal->face.SetEnabled(enabled);
}

}  // namespace ostrel
