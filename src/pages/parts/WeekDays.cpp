#include "pages/parts/WeekDays.h"

namespace ostrel {

WeekDays::WeekDays(Form& form, const ControlNames& names)
    : days_{CheckBox(form, names("CheckLun"), "Lun"), CheckBox(form, names("CheckMar"), "Mar"),
            CheckBox(form, names("CheckMie"), "Mie"), CheckBox(form, names("CheckJue"), "Jue"),
            CheckBox(form, names("CheckVie"), "Vie"), CheckBox(form, names("CheckSab"), "Sab"),
            CheckBox(form, names("CheckDom"), "Dom")} {}

void WeekDays::ShowDays(std::uint8_t days) {
  for (std::size_t day = 0; day < days_.size(); ++day)
    days_[day].SetChecked((days >> day & 1) != 0);
}

std::uint8_t WeekDays::ReadDays() const {
  std::uint8_t days = 0;
  for (std::size_t day = 0; day < days_.size(); ++day)
    if (days_[day].Checked()) days = static_cast<std::uint8_t>(days | 1U << day);
  return days;
}

void WeekDays::SetEnabled(bool enabled) {
  for (CheckBox& day : days_) day.face.SetEnabled(enabled);
}

}  // namespace ostrel
