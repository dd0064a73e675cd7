#pragma once

#include <array>

#include "controls/Form.h"
#include "model/ConfExpansion.h"

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
  /// The mode chosen; -1 for none.
  int Mode() const { return ModeCombo.Position(); }

 private:
  Label Titulo, LabelMode;
  ComboBox ModeCombo;
  Label LabelAddress;
  ComboBox AddressCombo;
  Label LabelInput;
  ComboBox InputCombo;
  Label LabelGroup;
  ComboBox GroupCombo;
  TabStrip SSTab1;
  Label LabelNoHabil;
};

}  // namespace ostrel
