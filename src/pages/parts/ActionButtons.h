#pragma once

#include <functional>
#include <optional>

#include "controls/Form.h"
#include "model/AlarmBlock.h"
#include "pages/parts/ControlNames.h"

namespace ostrel {

/// The buttons that open the editor of an alarm's action lists.
class ActionButtons {
 public:
  ActionButtons(Form& form, const ControlNames& names, bool hasNormal);

  void SetEnabled(bool enabled);
  /// Shows how many actions each list of an alarm has.
  void ShowCounts(const AlarmBlock& alarm);
  /// What the button of a list is called.
  const std::string& CaptionOf(ActionList AlarmBlock::*list) const;

  /// Called by a button with the list that it stands for.
  std::function<void(ActionList AlarmBlock::*list)> OnActions;

 private:
  Button BotonAlto, BotonBajo;
  std::optional<Button> BotonNormal;
};

}  // namespace ostrel
