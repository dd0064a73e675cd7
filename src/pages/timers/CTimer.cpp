#include "pages/timers/CTimer.h"

namespace ostrel {

CyclicTimerControls::CyclicTimerControls(Form& form, const ControlNames& names)
    : FramePeriodo(form, names("FramePeriodo"), "Periodo"),
      Period(form, names("Period")),
      LabelSeg(form, names("LabelSeg"), "Seg."),
      FrameHorario(form, names("FrameHorario"), "Rango horario de habilitacion"),
      validity_(form, names, {.start = "Label5", .end = "Label6", .areDisabled = false}),
      flag_(form, names) {
  // A period is a number with a fraction, of which the page takes whole ones for good.
  fields_.Bind(Period, &ConfCTimer::PERIOD, NumberForm::Num, kInt);
}

void CyclicTimerControls::Load(const Record& record) {
  fields_.Load(record);
  validity_.Load(record.valid);
  flag_.Load(record.EQ);
}

void CyclicTimerControls::Save(Record& record) const {
  fields_.Save(record);
  validity_.Save(record.valid);
  flag_.Save(record.EQ);
}

void CyclicTimerControls::SetEnabled(bool enabled) {
  Period.face.SetEnabled(enabled);
  flag_.SetEnabled(enabled);
  validity_.SetEnabled(enabled);
}

}  // namespace ostrel
