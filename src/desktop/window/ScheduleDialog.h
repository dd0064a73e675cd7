#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <string_view>

#include "model/TargetProfile.h"
#include "shell/schedule/Schedule.h"

namespace ostrel {

/// Shows what happens when: all enabled timers in one table, and the macros that they start.
class ScheduleDialog final : public QDialog {
 public:
  /// `translate` names the actions.
  ScheduleDialog(const Schedule& schedule, const TargetProfile& profile,
                 const std::function<std::string(std::string_view)>& translate, QWidget* parent);
};

}  // namespace ostrel
