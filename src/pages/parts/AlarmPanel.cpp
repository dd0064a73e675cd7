#include "pages/parts/AlarmPanel.h"

namespace ostrel {

AlarmPanel::AlarmPanel(Form& form, const ControlNames& names, AlarmShape shape,
                       NumberForm numberForm, std::span<const ThresholdBox> thresholds)
    : AlarmaHabil(form, names("AlarmaHabil"), "Habilitar alarma"),
      RestHabil(form, names("RestHabil"), "Mensaje restauracion"),
      ReenvHabil(form, names("ReenvHabil"), "Reenviar"),
      NotSMS(form, notification_, names("NotSMS"), "SMS"),
      NotVoz(form, notification_, names("NotVoz"), "SMS y voz"),
      NotGPRS(form, notification_, names("NotGPRS"), "GPRS"),
      NotNone(form, notification_, names("NotNone"), "No enviar aviso"),
      TextoAlarma(form, names("TextoAlarma"), kAlarmTextLength),
      validity_(form, names, {.start = "LabelInicio", .end = "LabelFinal", .areDisabled = true}),
      actions_(form, names, shape.hasNormal),
      thresholds_(form, names, numberForm, thresholds) {
  if (shape.hasFlag) flag_.emplace(form, names);
  AlarmaHabil.OnClick = [this] { ApplyAlarmaHabil(); };
}

void AlarmPanel::FillFlagCombo() {
  if (flag_) flag_->Fill();
}

void AlarmPanel::ApplyAlarmaHabil() {
  const bool enabled = AlarmaHabil.Checked();
  for (Face* face : {&RestHabil.face, &ReenvHabil.face, &NotSMS.face, &NotVoz.face, &NotGPRS.face,
                     &NotNone.face, &TextoAlarma.face})
    face->SetEnabled(enabled);
  thresholds_.SetEnabled(enabled);
  actions_.SetEnabled(enabled);
  if (flag_) flag_->SetEnabled(enabled);
  validity_.SetEnabled(enabled);
}

void AlarmPanel::LoadHead(const AlarmBlock& alarm) {
  if (flag_) flag_->Load(alarm.FLAG);
  AlarmaHabil.SetChecked(bool(alarm.HABIL));
  RestHabil.SetChecked(bool(alarm.REST));
  ReenvHabil.SetChecked(bool(alarm.RENV));
  NotNone.SetSelected(true);
  NotSMS.SetSelected(bool(alarm.SMS));
  NotVoz.SetSelected(bool(alarm.VOZ));
  NotGPRS.SetSelected(bool(alarm.GPRS));
  TextoAlarma.SetText(alarm.TEXTO);
  actions_.ShowCounts(alarm);
}

void AlarmPanel::SaveCommon(AlarmBlock& alarm) const {
  alarm.HABIL = Bool16(AlarmaHabil.Checked());
  alarm.REST = Bool16(RestHabil.Checked());
  alarm.RENV = Bool16(ReenvHabil.Checked());
  alarm.SMS = Bool16(NotSMS.Selected());
  alarm.VOZ = Bool16(NotVoz.Selected());
  alarm.GPRS = Bool16(NotGPRS.Selected());
  alarm.TEXTO = TextoAlarma.Text();
  validity_.Save(alarm.valid);
  if (flag_) flag_->Save(alarm.FLAG);
}

}  // namespace ostrel
