#pragma once

#include "controls/Form.h"
#include "model/AlarmBlock.h"
#include "pages/parts/ControlNames.h"
#include "pages/parts/WeekDays.h"

namespace ostrel {

/// The controls of a range of validity: at all times, or between two times of the day on some days.
class ValidityControls {
 public:
  /// The labels of the two times. Timers call them otherwise than alarms do, and never disable
  /// them.
  struct TimeLabels {
    std::string_view start, end;
    bool areDisabled;
  };

  ValidityControls(Form& form, const ControlNames& names, const TimeLabels& labels);

  void Load(const ValidityRange& valid);
  void Save(ValidityRange& valid) const;
  /// Enables all of it, and then as far as "Siempre" leaves it; or disables all of it.
  void SetEnabled(bool enabled);

 private:
  void ApplyHorarioHabil();

  bool labelsAreDisabled_;
  CheckBox HorarioHabil;
  Label labelStart_;
  TimePicker HoraInicio;
  Label labelEnd_;
  TimePicker HoraFinal;
  WeekDays days_;
};

}  // namespace ostrel
