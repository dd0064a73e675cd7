#pragma once

#include "pages/parts/WeekDays.h"
#include "pages/timers/TimerPage.h"

namespace ostrel {

/// The controls of a weekly timer.
class WeeklyTimerControls {
 public:
  using Record = ConfWTimer;
  static constexpr TimerTraits kTraits{.page = PageId::WTimer,
                                       .form = "WTimer",
                                       .title = "Configuracion temporizadores semanales ",
                                       .help = "WT"};
  static auto& Records(DeviceConf& conf) { return conf.WTimer; }

  WeeklyTimerControls(Form& form, const ControlNames& names);

  void Fill() {}
  void Load(const Record& record);
  void Save(Record& record) const;
  void SetEnabled(bool enabled);
  void CheckNumbers() const {}

 private:
  Frame FrameHorario;
  Label Label5;
  TimePicker HoraInicio;
  WeekDays days_;
};

using WTimer = TimerPage<WeeklyTimerControls>;

}  // namespace ostrel
