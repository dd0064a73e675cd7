#pragma once

#include <array>
#include <cstdint>

#include "controls/Form.h"
#include "pages/parts/ControlNames.h"

namespace ostrel {

/// The seven check boxes of the days of a week.
class WeekDays {
 public:
  WeekDays(Form& form, const ControlNames& names);

  /// Shows a set of days, bit 0 Monday to bit 6 Sunday.
  void ShowDays(std::uint8_t days);
  /// The days that are checked.
  std::uint8_t ReadDays() const;
  void SetEnabled(bool enabled);

 private:
  std::array<CheckBox, 7> days_;
};

}  // namespace ostrel
