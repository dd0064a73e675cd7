#pragma once

#include <cstdint>

#include "controls/Form.h"
#include "pages/parts/ControlNames.h"

namespace ostrel {

/// The choice of the flag on which something depends: "TRUE", or one of the flags.
class FlagChoice {
 public:
  FlagChoice(Form& form, const ControlNames& names);

  /// Refills the list.
  void Fill();
  /// Shows 0 for the constant "TRUE", n for flag F(n-1).
  void Load(std::int16_t flag) { FlagCombo.SetPosition(flag); }
  /// A flag that no row stands for is kept.
  void Save(std::int16_t& flag) const;
  void SetEnabled(bool enabled);

 private:
  Label LabelFlag;
  ComboBox FlagCombo;
  Label LabelTrue;
};

}  // namespace ostrel
