#include "pages/parts/ValidityControls.h"

namespace ostrel {

ValidityControls::ValidityControls(Form& form, const ControlNames& names, const TimeLabels& labels)
    : labelsAreDisabled_(labels.areDisabled),
      HorarioHabil(form, names("HorarioHabil"), "Siempre"),
      labelStart_(form, names(labels.start), "Inicio:"),
      HoraInicio(form, names("HoraInicio")),
      labelEnd_(form, names(labels.end), "Final:"),
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
  for (Face* face : {&HorarioHabil.face, &HoraInicio.face, &HoraFinal.face})
    face->SetEnabled(enabled);
  if (labelsAreDisabled_)
    for (Label* label : {&labelStart_, &labelEnd_}) label->face.SetEnabled(enabled);
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
