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
  /// Shows a flag: 0 is the constant "TRUE", n is F(n-1). No row is chosen for any other.
  void Load(std::int16_t flag);
  /// Brings the flag of the chosen row; without one `flag` is kept.
  void Save(std::int16_t& flag) const;
  void SetEnabled(bool enabled);

 private:
  Label LabelFlag;
  ComboBox FlagCombo;
  Label LabelTrue;
};

}  // namespace ostrel
