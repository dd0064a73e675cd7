#include "pages/parts/ValidityControls.h"

namespace ostrel {

ValidityControls::ValidityControls(Form& form, const ControlNames& names,
                                   std::string_view startLabel, std::string_view endLabel)
    : HorarioHabil(form, names("HorarioHabil"), "Siempre"),
      labelStart_(form, names(startLabel), "Inicio:"),
      HoraInicio(form, names("HoraInicio")),
      labelEnd_(form, names(endLabel), "Final:"),
      HoraFinal(form, names("HoraFinal")),
      days_(form, names) {
  HorarioHabil.OnClick = [this] { ApplyHorarioHabil(); };
}

void ValidityControls::Load(const ValidityRange& valid) {
  HorarioHabil.SetChecked(bool(valid.SIEMPRE));
  HoraInicio.SetValue(valid.INICIO);
  HoraFinal.SetValue(valid.FINAL);
  days_.ShowDays(valid.SEMANA);
}

void ValidityControls::Save(ValidityRange& valid) const {
  valid.SIEMPRE = Bool16(HorarioHabil.Checked());
  valid.INICIO = HoraInicio.Value();
  valid.FINAL = HoraFinal.Value();
  valid.SEMANA = days_.ReadDays();
}

void ValidityControls::SetEnabled(bool enabled) {
  for (Face* face :
       {&HorarioHabil.face, &labelStart_.face, &HoraInicio.face, &labelEnd_.face, &HoraFinal.face})
    face->SetEnabled(enabled);
  days_.SetEnabled(enabled);
  if (enabled) ApplyHorarioHabil();
}

void ValidityControls::ApplyHorarioHabil() {
  const bool ranged = !HorarioHabil.Checked();
  HoraInicio.face.SetEnabled(ranged);
  HoraFinal.face.SetEnabled(ranged);
  days_.SetEnabled(ranged);
}

}  // namespace ostrel
