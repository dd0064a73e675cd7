#pragma once

#include <functional>
#include <string_view>

#include "blocks/expansion/ExpansionInputs.h"
#include "controls/Form.h"

namespace ostrel {

/// The controls that an expansion input has in every mode: the mode, which chooses the tab, and the
/// address on its module.
class InputFrame {
 public:
  explicit InputFrame(Form& form);

  /// Shows an input. What no row stands for selects none, and is kept until one is chosen.
  void Load(const ConfModulo& input);
  void Save(ConfModulo& input) const;
  void SetTitle(std::string_view title) { Titulo.face.SetCaption(title); }
  /// The place that is chosen now; the first where there is none.
  ModuleInput Place() const;
  void SetPlace(ModuleInput place);
  /// Tells that another input is wired to the same place; an empty text for none.
  void SetShared(std::string_view words);
  /// The mode chosen; -1 for none.
  int Mode() const { return ModeCombo.Position(); }

  /// Runs when another mode or place is chosen.
  std::function<void()> OnChosen;
  /// Runs when a free place is to be found.
  std::function<void()> OnFindFree;

 private:
  Label Titulo, LabelMode;
  ComboBox ModeCombo;
  Label LabelAddress;
  ComboBox AddressCombo;
  Label LabelInput;
  ComboBox InputCombo;
  Button FindFree;
  Label Shared;
  Label LabelGroup;
  ComboBox GroupCombo;
  TabStrip SSTab1;
  Label LabelNoHabil;
};

}  // namespace ostrel
