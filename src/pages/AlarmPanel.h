#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "controls/Form.h"
#include "controls/NumberBox.h"
#include "model/AlarmBlock.h"
#include "model/Assign.h"
#include "pages/PageContext.h"

namespace ostrel {

/// How a threshold box shows its number: with a place for the sign, or plain.
enum class NumberForm { Num, Dec };

/// The threshold boxes of a kind of alarm, in the order of its thresholds.
struct ThresholdBoxes {
  NumberForm form = NumberForm::Num;
  struct Box {
    std::string_view name;
    std::string_view label;  ///< Spanish caption of the label "Label" + name; empty for no label
  };
  std::vector<Box> boxes;
};

/// The controls that all alarmed pages share, with their logic.
class AlarmPanel {
 public:
  AlarmPanel(Form& form, const AlarmShape& shape, const ThresholdBoxes& thresholds);

  /// Refills the list of condition flags.
  void FillFlagCombo();
  /// Shows one alarm configuration.
  template <class Thresholds>
  void Load(const Alarm<Thresholds>& cell);
  /// Commits the controls to one alarm configuration.
  template <class Thresholds>
  void Save(Alarm<Thresholds>& cell) const;
  /// Sets the enabled states that `AlarmaHabil` implies.
  void ApplyAlarmaHabil();
  /// Paints the threshold boxes by their content, as floats.
  void CheckThresholds();

  /// Called by an action button with the list that it stands for.
  std::function<void(ActionList AlarmBlock::*list)> OnActions;

 private:
  void ApplyHorarioHabil();
  void LoadHead(const AlarmBlock& alarm);
  void LoadRange(const AlarmBlock& alarm);
  void SaveCommon(AlarmBlock& alarm) const;
  void ShowDays(std::uint8_t days);
  std::uint8_t ReadDays() const;

  CheckBox AlarmaHabil, RestHabil, ReenvHabil;
  OptionGroup notification_;
  OptionButton NotSMS, NotVoz, NotGPRS, NotNone;
  TextBox TextoAlarma;
  NumberForm numberForm_;
  std::vector<std::unique_ptr<Label>> thresholdLabels_;
  std::vector<std::unique_ptr<TextBox>> thresholds_;
  CheckBox HorarioHabil;
  Label LabelInicio;
  TimePicker HoraInicio;
  Label LabelFinal;
  TimePicker HoraFinal;
  std::array<CheckBox, 7> days_;
  std::optional<Label> LabelFlag;
  std::optional<ComboBox> FlagCombo;
  std::optional<Label> LabelTrue;
  Button BotonAlto, BotonBajo;
  std::optional<Button> BotonNormal;
};

template <class Thresholds>
void AlarmPanel::Load(const Alarm<Thresholds>& cell) {
  LoadHead(cell.common);
  std::size_t box = 0;
  Describe(cell.thresholds, [&](std::string_view, float value) {
    thresholds_[box++]->SetText(numberForm_ == NumberForm::Dec ? DecText(value) : NumText(value));
  });
  LoadRange(cell.common);
  ApplyAlarmaHabil();
}

template <class Thresholds>
void AlarmPanel::Save(Alarm<Thresholds>& cell) const {
  SaveCommon(cell.common);
  std::size_t box = 0;
  Describe(cell.thresholds, [&](std::string_view, float& value) {
    Assign(value, NumVal(thresholds_[box++]->Text()));
  });
}

}  // namespace ostrel
