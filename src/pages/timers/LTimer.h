#pragma once

#include "pages/parts/BoundFields.h"
#include "pages/timers/TimerPage.h"

namespace ostrel {

/// The controls of a long timer.
class LongTimerControls {
 public:
  using Record = ConfLTimer;
  static constexpr TimerTraits kTraits{.page = PageId::LTimer,
                                       .form = "LTimer",
                                       .title = "Configuracion temporizadores largos ",
                                       .help = "LT"};
  static auto& Records(DeviceConf& conf) { return conf.LTimer; }

  LongTimerControls(Form& form, const ControlNames& names);

  void Fill() {}
  void Load(const Record& record) { fields_.Load(record); }
  void Save(Record& record) const { fields_.Save(record); }
  void SetEnabled(bool enabled) { Period.face.SetEnabled(enabled); }
  void CheckNumbers() const { fields_.CheckNumbers(); }

 private:
  Frame FrameHorario;
  Label LabelCada;
  TextBox Period;
  Label LabelDias;
  BoundFields<Record> fields_;
};

using LTimer = TimerPage<LongTimerControls>;

}  // namespace ostrel
