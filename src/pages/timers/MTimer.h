#pragma once

#include <deque>

#include "pages/timers/TimerPage.h"

namespace ostrel {

/// The controls of a monthly timer.
class MonthlyTimerControls {
 public:
  using Record = ConfMTimer;
  static constexpr TimerTraits kTraits{.page = PageId::MTimer,
                                       .form = "MTimer",
                                       .title = "Configuracion temporizadores mensuales ",
                                       .help = "MT"};
  static auto& Records(DeviceConf& conf) { return conf.MTimer; }

  MonthlyTimerControls(Form& form, const ControlNames& names);

  void Fill() {}
  void Load(const Record& record);
  void Save(Record& record) const;
  void SetEnabled(bool enabled);
  void CheckNumbers() const {}

 private:
  Frame FrameHorario;
  Label Label5;
  TimePicker HoraInicio;
  std::deque<CheckBox> days_;  ///< `Check1` to `Check31`, and `Check32` for the last of the month
};

using MTimer = TimerPage<MonthlyTimerControls>;

}  // namespace ostrel
