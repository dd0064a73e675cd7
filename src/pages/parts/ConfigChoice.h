#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "controls/Form.h"
#include "pages/parts/ControlNames.h"

namespace ostrel {

/// The options that choose which alarm configuration of a channel is shown.
class ConfigChoice {
 public:
  /// `configs` is how many the kind has; the options of further ones are not shown, and an option
  /// that is selected all the same gives way to the one in force.
  ConfigChoice(Form& form, const ControlNames& names, int configs);

  std::int16_t CurrentConfig() const { return CurrentConfig_; }
  /// What the configuration in force is called.
  const std::string& Caption() const {
    return options_[static_cast<std::size_t>(CurrentConfig_)].face.Caption();
  }
  /// Goes to the first configuration, as loading a page does.
  void SelectFirst() { options_[0].SetSelected(true); }

  /// Runs ahead of a change, and behind it.
  std::function<void()> OnLeave, OnShow;

 private:
  void Select(std::int16_t config);

  OptionGroup group_;
  std::array<OptionButton, 4> options_;
  int configs_;
  std::int16_t CurrentConfig_ = 0;
};

}  // namespace ostrel
