#pragma once

#include "controls/Form.h"
#include "model/AlarmBlock.h"
#include "pages/parts/ControlNames.h"
#include "pages/parts/WeekDays.h"

namespace ostrel {

/// The controls of a range of validity: at all times, or between two times of the day on some days.
class ValidityControls {
 public:
  /// Timers call the labels of the two times otherwise than alarms do.
  ValidityControls(Form& form, const ControlNames& names, std::string_view startLabel,
                   std::string_view endLabel);

  void Load(const ValidityRange& valid);
  void Save(ValidityRange& valid) const;
  /// Enables all of it, and then as far as "Siempre" leaves it; or disables all of it.
  void SetEnabled(bool enabled);

 private:
  void ApplyHorarioHabil();

  CheckBox HorarioHabil;
  Label labelStart_;
  TimePicker HoraInicio;
  Label labelEnd_;
  TimePicker HoraFinal;
  WeekDays days_;
};

}  // namespace ostrel
