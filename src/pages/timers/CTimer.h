#pragma once

#include "pages/parts/BoundFields.h"
#include "pages/parts/FlagChoice.h"
#include "pages/parts/ValidityControls.h"
#include "pages/timers/TimerPage.h"

namespace ostrel {

/// The controls of a cyclic timer.
class CyclicTimerControls {
 public:
  using Record = ConfCTimer;
  static constexpr TimerTraits kTraits{.page = PageId::CTimer,
                                       .form = "CTimer",
                                       .title = "Configuracion temporizadores ciclicos ",
                                       .help = "CT"};
  static auto& Records(DeviceConf& conf) { return conf.CTimer; }

  CyclicTimerControls(Form& form, const ControlNames& names);

  void Fill() { flag_.Fill(); }
  void Load(const Record& record);
  void Save(Record& record) const;
  void SetEnabled(bool enabled);
  void CheckNumbers() const { fields_.CheckNumbers(); }

 private:
  Frame FramePeriodo;
  TextBox Period;
  Label LabelSeg;
  Frame FrameHorario;
  ValidityControls validity_;
  FlagChoice flag_;
  BoundFields<Record> fields_;
};

using CTimer = TimerPage<CyclicTimerControls>;

}  // namespace ostrel
