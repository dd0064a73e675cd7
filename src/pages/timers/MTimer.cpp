#include "pages/timers/MTimer.h"

#include <cmath>

namespace ostrel {
namespace {

constexpr int kLongestMonth = 31;

}  // namespace

MonthlyTimerControls::MonthlyTimerControls(Form& form, const ControlNames& names)
    : FrameHorario(form, names("FrameHorario"), "Dias / Hora de ejecucion"),
      Label5(form, names("Label5"), "Ejecutar a las:"),
      HoraInicio(form, names("HoraInicio")) {
  for (int day = 1; day <= kLongestMonth; ++day) {
    const std::string number = std::to_string(day);
    // A number reads the same in every language.
    days_.emplace_back(form, names("Check" + number), "").face.SetCaption(number);
  }
  days_.emplace_back(form, names("Check32"), "Ultimo del mes");
}

void MonthlyTimerControls::Load(const Record& record) {
  HoraInicio.SetValue(record.INICIO);
  const std::string days = Dec2Bin(record.MES);
  for (std::size_t day = 0; day < days_.size(); ++day) days_[day].SetChecked(days[day] == '1');
}

/// The mask needs all 32 bits, and is a float so that none of them is a sign.
void MonthlyTimerControls::Save(Record& record) const {
  record.INICIO = HoraInicio.Value();
  record.MES = 0;
  for (std::size_t day = 0; day < days_.size(); ++day)
    if (days_[day].Checked()) record.MES += std::ldexp(1.0, static_cast<int>(day));
}

void MonthlyTimerControls::SetEnabled(bool enabled) {
  HoraInicio.face.SetEnabled(enabled);
  for (CheckBox& day : days_) day.face.SetEnabled(enabled);
}

}  // namespace ostrel
