#pragma once

#include <span>
#include <string_view>

#include "controls/Form.h"
#include "model/AlarmBlock.h"
#include "pages/parts/ControlNames.h"
#include "pages/parts/Edits.h"
#include "pages/parts/ThresholdBoxes.h"

namespace ostrel {

/// The control of an alarm that edits a field which all alarms have; empty for a threshold. An
/// action list has the button that opens its editor, the days of a week their first box.
std::string_view ControlOfAlarmField(std::string_view word);

/// Notes at the controls of an alarm which fields they edit.
template <class Thresholds>
void NoteAlarmFields(Form& form, const ControlNames& names, AlarmShape shape,
                     std::span<const ThresholdBox> thresholds) {
  const Alarm<Thresholds> alarm;
  std::size_t next = 0;
  DescribeAlarm(alarm, 0, shape, [&](const FieldMeta& meta, const auto&, FieldSlot) {
    std::string_view control = ControlOfAlarmField(meta.word);
    if (control.empty()) control = thresholds[next++].name;
    Edits(FaceOf(form[names(control)]), meta);
  });
}

}  // namespace ostrel
