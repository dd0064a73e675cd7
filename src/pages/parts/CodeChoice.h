#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "blocks/inputs/InterfaceCodes.h"
#include "controls/Form.h"
#include "pages/parts/ControlNames.h"
#include "pages/parts/Edits.h"

namespace ostrel {

/// An option that stands for a code.
struct CodeOption {
  std::string_view name;
  std::string_view caption;
  std::int16_t code;
};

/// The options of an input that can be on or off and nothing else.
inline constexpr std::array<CodeOption, 2> kOffOrOn{{
    {"Int_NoHabil", "No habil.", kInterfaceOff},
    {"Int_Habil", "Habil.", kInterfaceOn},
}};

/// Options that stand for the codes of a field. A code that none stands for selects none, and is
/// kept until one is chosen.
class CodeChoice {
 public:
  CodeChoice(Form& form, const ControlNames& names, std::span<const CodeOption> options);

  void Load(std::int16_t code);
  std::int16_t Code() const { return code_; }
  void SetEnabled(bool enabled);
  /// Notes the field that the options edit: the first of them stands for all.
  template <class Record>
  void NoteField(std::int16_t Record::*member) {
    Edits(buttons_.front()->face, member);
  }
  /// The option of a code; a broken invariant when there is none.
  OptionButton& Option(std::int16_t code) const;

  /// Runs when another option is selected.
  std::function<void(std::int16_t code)> OnChosen;

 private:
  OptionGroup group_;
  std::vector<std::unique_ptr<OptionButton>> buttons_;
  std::vector<std::int16_t> codes_;  ///< of the buttons
  std::int16_t code_ = 0;
};

}  // namespace ostrel
