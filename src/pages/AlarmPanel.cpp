#include "pages/AlarmPanel.h"

namespace ostrel {
namespace {

constexpr int kAlarmTextLength = 49;
constexpr int kFlags = 16;

}  // namespace

AlarmPanel::AlarmPanel(Form& form, const AlarmShape& shape, const ThresholdBoxes& thresholds)
    : AlarmaHabil(form, "AlarmaHabil", "Habilitar alarma"),
      RestHabil(form, "RestHabil", "Mensaje restauracion"),
      ReenvHabil(form, "ReenvHabil", "Reenviar"),
      NotSMS(form, notification_, "NotSMS", "SMS"),
      NotVoz(form, notification_, "NotVoz", "SMS y voz"),
      NotGPRS(form, notification_, "NotGPRS", "GPRS"),
      NotNone(form, notification_, "NotNone", "No enviar aviso"),
      TextoAlarma(form, "TextoAlarma", kAlarmTextLength),
      numberForm_(thresholds.form),
      HorarioHabil(form, "HorarioHabil", "Siempre"),
      LabelInicio(form, "LabelInicio", "Inicio:"),
      HoraInicio(form, "HoraInicio"),
      LabelFinal(form, "LabelFinal", "Final:"),
      HoraFinal(form, "HoraFinal"),
      days_{CheckBox(form, "CheckLun", "Lun"), CheckBox(form, "CheckMar", "Mar"),
            CheckBox(form, "CheckMie", "Mie"), CheckBox(form, "CheckJue", "Jue"),
            CheckBox(form, "CheckVie", "Vie"), CheckBox(form, "CheckSab", "Sab"),
            CheckBox(form, "CheckDom", "Dom")},
      BotonAlto(form, "BotonAlto", "Valor alto"),
      BotonBajo(form, "BotonBajo", "Valor bajo") {
  if (shape.hasFlag) {
    LabelFlag.emplace(form, "LabelFlag", "Habilitar sí");
    FlagCombo.emplace(form, "FlagCombo");
    LabelTrue.emplace(form, "LabelTrue", "= TRUE");
  }
  if (shape.hasNormal) {
    BotonNormal.emplace(form, "BotonNormal", "Valor nominal");
    BotonNormal->OnClick = [this] { OnActions(&AlarmBlock::ACTNO); };
  }
  for (const auto& [name, label] : thresholds.boxes) {
    if (!label.empty())
      thresholdLabels_.push_back(std::make_unique<Label>(form, "Label" + std::string(name), label));
    thresholds_.push_back(std::make_unique<TextBox>(form, name));
  }
  BotonAlto.OnClick = [this] { OnActions(&AlarmBlock::ACTHI); };
  BotonBajo.OnClick = [this] { OnActions(&AlarmBlock::ACTLO); };
  AlarmaHabil.OnClick = [this] { ApplyAlarmaHabil(); };
  HorarioHabil.OnClick = [this] { ApplyHorarioHabil(); };
}

void AlarmPanel::FillFlagCombo() {
  if (!FlagCombo) return;
  FlagCombo->Clear();
  FlagCombo->Add("TRUE", 0);
  for (int flag = 0; flag < kFlags; ++flag) FlagCombo->Add("F" + std::to_string(flag), flag + 1);
}

void AlarmPanel::ApplyAlarmaHabil() {
  const bool enabled = AlarmaHabil.Checked();
  for (Face* face :
       {&RestHabil.face, &ReenvHabil.face, &NotSMS.face, &NotVoz.face, &NotGPRS.face, &NotNone.face,
        &HorarioHabil.face, &HoraInicio.face, &HoraFinal.face, &TextoAlarma.face, &BotonAlto.face,
        &BotonBajo.face, &LabelInicio.face, &LabelFinal.face})
    face->SetEnabled(enabled);
  for (CheckBox& day : days_) day.face.SetEnabled(enabled);
  for (const auto& box : thresholds_) box->face.SetEnabled(enabled);
  if (BotonNormal) BotonNormal->face.SetEnabled(enabled);
  if (FlagCombo) {
    LabelFlag->face.SetEnabled(enabled);
    LabelTrue->face.SetEnabled(enabled);
    FlagCombo->face.SetEnabled(enabled);
  }
  if (enabled) ApplyHorarioHabil();
}

void AlarmPanel::ApplyHorarioHabil() {
  const bool ranged = !HorarioHabil.Checked();
  HoraInicio.face.SetEnabled(ranged);
  HoraFinal.face.SetEnabled(ranged);
  for (CheckBox& day : days_) day.face.SetEnabled(ranged);
}

void AlarmPanel::CheckThresholds() {
  for (const auto& box : thresholds_) CheckNumberBox(*box, "float");
}

void AlarmPanel::LoadHead(const AlarmBlock& alarm) {
  if (FlagCombo) FlagCombo->SetPosition(alarm.FLAG);
  AlarmaHabil.SetChecked(bool(alarm.HABIL));
  RestHabil.SetChecked(bool(alarm.REST));
  ReenvHabil.SetChecked(bool(alarm.RENV));
  NotNone.SetSelected(true);
  NotSMS.SetSelected(bool(alarm.SMS));
  NotVoz.SetSelected(bool(alarm.VOZ));
  NotGPRS.SetSelected(bool(alarm.GPRS));
  TextoAlarma.SetText(alarm.TEXTO);
}

void AlarmPanel::LoadRange(const AlarmBlock& alarm) {
  HorarioHabil.SetChecked(bool(alarm.SIEMPRE));
  HoraInicio.SetValue(alarm.INICIO);
  HoraFinal.SetValue(alarm.FINAL);
  ShowDays(alarm.SEMANA);
}

void AlarmPanel::SaveCommon(AlarmBlock& alarm) const {
  alarm.HABIL = Bool16(AlarmaHabil.Checked());
  alarm.REST = Bool16(RestHabil.Checked());
  alarm.RENV = Bool16(ReenvHabil.Checked());
  alarm.SMS = Bool16(NotSMS.Selected());
  alarm.VOZ = Bool16(NotVoz.Selected());
  alarm.GPRS = Bool16(NotGPRS.Selected());
  alarm.TEXTO = TextoAlarma.Text();
  alarm.SIEMPRE = Bool16(HorarioHabil.Checked());
  alarm.INICIO = HoraInicio.Value();
  alarm.FINAL = HoraFinal.Value();
  alarm.SEMANA = ReadDays();
  if (FlagCombo) Assign(alarm.FLAG, FlagCombo->Value(alarm.FLAG));
}

void AlarmPanel::ShowDays(std::uint8_t days) {
  for (std::size_t day = 0; day < days_.size(); ++day)
    days_[day].SetChecked((days >> day & 1) != 0);
}

std::uint8_t AlarmPanel::ReadDays() const {
  std::uint8_t days = 0;
  for (std::size_t day = 0; day < days_.size(); ++day)
    if (days_[day].Checked()) days = static_cast<std::uint8_t>(days | 1U << day);
  return days;
}

}  // namespace ostrel
