#include "pages/timers/LTimer.h"

namespace ostrel {

LongTimerControls::LongTimerControls(Form& form, const ControlNames& names)
    : FrameHorario(form, names("FrameHorario"), "Rango horario de habilitacion"),
      LabelCada(form, names("LabelCada"), "Ejecutar cada:"),
      Period(form, names("Period")),
      LabelDias(form, names("LabelDias"), "Dias") {
  fields_.Bind(Period, &ConfLTimer::PERIOD, NumberForm::Num, kInt);
}

}  // namespace ostrel
