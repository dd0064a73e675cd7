#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>
#include <string_view>
#include <vector>

#include "desktop/forms/FormView.h"
#include "pages/parts/ControlNames.h"

namespace ostrel {

/// A threshold box with the window's words for it, for pages whose form has no label.
struct ThresholdWords {
  std::string_view control;
  QString words;                 ///< empty where the form has a label of its own
  std::string_view beside = {};  ///< a control that stands at its right, if any
  std::string_view label = {};   ///< the form's label; if empty "Label" and the control's name
};

/// The boxes of an alarm on a level. `beside` is the control at the right of the persistence, if
/// any.
std::vector<ThresholdWords> LevelThresholdWords(std::string_view beside = {});

/// Shows a notice of the form in as many lines as it takes.
QLabel* LayOutNotice(FormView& view, std::string_view control);

/// Draws the alarm block that all alarmed pages share: the choice of the configuration, and under
/// it what raises the alarm, who is told, when it is valid and what it runs.
QWidget* LayOutAlarmPanel(FormView& view, const std::vector<ThresholdWords>& thresholds,
                          const ControlNames& names = {});

}  // namespace ostrel
