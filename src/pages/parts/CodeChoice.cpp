#include "pages/parts/CodeChoice.h"

#include <stdexcept>

namespace ostrel {

CodeChoice::CodeChoice(Form& form, const ControlNames& names, std::span<const CodeOption> options) {
  for (const CodeOption& option : options) {
    auto button = std::make_unique<OptionButton>(form, group_, names(option.name), option.caption);
    button->OnClick = [this, code = option.code] {
      code_ = code;
      if (OnChosen) OnChosen(code);
    };
    buttons_.push_back(std::move(button));
    codes_.push_back(option.code);
  }
}

void CodeChoice::Load(std::int16_t code) {
  for (std::size_t i = 0; i < buttons_.size(); ++i) buttons_[i]->SetSelected(codes_[i] == code);
  code_ = code;
}

OptionButton& CodeChoice::Option(std::int16_t code) const {
  for (std::size_t i = 0; i < codes_.size(); ++i)
    if (codes_[i] == code) return *buttons_[i];
  throw std::logic_error("no option for a code");
}

void CodeChoice::SetEnabled(bool enabled) {
  for (const auto& button : buttons_) button->face.SetEnabled(enabled);
}

}  // namespace ostrel
