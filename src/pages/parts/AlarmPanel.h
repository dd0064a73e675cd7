#pragma once

#include <functional>
#include <optional>
#include <span>

#include "controls/Form.h"
#include "model/AlarmBlock.h"
#include "pages/parts/ActionButtons.h"
#include "pages/parts/FlagChoice.h"
#include "pages/parts/ThresholdBoxes.h"
#include "pages/parts/ValidityControls.h"

namespace ostrel {

/// The controls of one alarm configuration, with their logic.
class AlarmPanel {
 public:
  AlarmPanel(Form& form, const ControlNames& names, AlarmShape shape, NumberForm numberForm,
             std::span<const ThresholdBox> thresholds);

  /// Refills the list of condition flags.
  void FillFlagCombo();
  /// Shows one alarm configuration; `factor` is that of scaled thresholds.
  template <class Thresholds>
  void Load(const Alarm<Thresholds>& cell, float factor = 1) {
    LoadHead(cell.common);
    thresholds_.Load(cell.thresholds, factor);
    validity_.Load(cell.common.valid);
    ApplyAlarmaHabil();
  }
  /// Commits the controls to one alarm configuration.
  template <class Thresholds>
  void Save(Alarm<Thresholds>& cell, float factor = 1) const {
    SaveCommon(cell.common);
    thresholds_.Save(cell.thresholds, factor);
  }
  /// Sets the enabled states that `AlarmaHabil` implies.
  void ApplyAlarmaHabil();
  /// Paints the threshold boxes by their content.
  void CheckNumbers() const { thresholds_.CheckNumbers(); }

  /// Shows how many actions the lists of an alarm have.
  void ShowActionCounts(const AlarmBlock& alarm) { actions_.ShowCounts(alarm); }
  /// What an action list of the alarm is called.
  const std::string& CaptionOf(ActionList AlarmBlock::*list) const {
    return actions_.CaptionOf(list);
  }
  /// Called by an action button with the list that it stands for.
  std::function<void(ActionList AlarmBlock::*list)>& OnActions() { return actions_.OnActions; }

 private:
  void LoadHead(const AlarmBlock& alarm);
  void SaveCommon(AlarmBlock& alarm) const;

  CheckBox AlarmaHabil, RestHabil, ReenvHabil;
  OptionGroup notification_;
  OptionButton NotSMS, NotVoz, NotGPRS, NotNone;
  TextBox TextoAlarma;
  ValidityControls validity_;
  ActionButtons actions_;
  std::optional<FlagChoice> flag_;
  ThresholdBoxes thresholds_;
};

}  // namespace ostrel
