#include "pages/timers/WTimer.h"

namespace ostrel {

WeeklyTimerControls::WeeklyTimerControls(Form& form, const ControlNames& names)
    : FrameHorario(form, names("FrameHorario"), "Rango horario de habilitacion"),
      Label5(form, names("Label5"), "Ejecutar a las:"),
      HoraInicio(form, names("HoraInicio")),
      days_(form, names) {}

void WeeklyTimerControls::Load(const Record& record) {
  HoraInicio.SetValue(record.INICIO);
  days_.ShowDays(record.SEMANA);
}

void WeeklyTimerControls::Save(Record& record) const {
  record.INICIO = HoraInicio.Value();
  record.SEMANA = days_.ReadDays();
}

void WeeklyTimerControls::SetEnabled(bool enabled) {
  HoraInicio.face.SetEnabled(enabled);
  days_.SetEnabled(enabled);
}

}  // namespace ostrel
