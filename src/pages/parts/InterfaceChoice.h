#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "controls/Form.h"
#include "pages/parts/ControlNames.h"

namespace ostrel {

/// One option of an interface.
struct InterfaceOption {
  std::string_view name;
  std::string_view caption;  ///< Spanish
  std::int16_t code;         ///< as the model keeps it
};

/// The options that choose the interface of an input. A code that no option stands for selects
/// none, and is kept until an option is chosen.
class InterfaceChoice {
 public:
  InterfaceChoice(Form& form, const ControlNames& names, std::span<const InterfaceOption> options);

  void Load(std::int16_t code);
  void Save(std::int16_t& code) const { code = CurrentInterface_; }
  /// The option of a code; a broken invariant when there is none.
  OptionButton& Option(std::int16_t code) const;

  /// Runs when another option is selected.
  std::function<void(std::int16_t code)> OnChosen;

 private:
  struct Entry {
    std::int16_t code;
    std::unique_ptr<OptionButton> option;
  };

  OptionGroup group_;
  std::vector<Entry> entries_;
  std::int16_t CurrentInterface_ = 0;
};

}  // namespace ostrel
