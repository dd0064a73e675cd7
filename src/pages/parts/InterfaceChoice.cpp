#include "pages/parts/InterfaceChoice.h"

#include <algorithm>
#include <stdexcept>

namespace ostrel {

InterfaceChoice::InterfaceChoice(Form& form, const ControlNames& names,
                                 std::span<const InterfaceOption> options) {
  for (const auto& [name, caption, code] : options) {
    auto option = std::make_unique<OptionButton>(form, group_, names(name), caption);
    option->OnClick = [this, chosen = code] {
      CurrentInterface_ = chosen;
      if (OnChosen) OnChosen(chosen);
    };
    entries_.push_back({code, std::move(option)});
  }
}

void InterfaceChoice::Load(std::int16_t code) {
  const auto found = std::ranges::find(entries_, code, &Entry::code);
  if (found != entries_.end()) return found->option->SetSelected(true);
  for (const Entry& entry : entries_) entry.option->SetSelected(false);
  CurrentInterface_ = code;
}

OptionButton& InterfaceChoice::Option(std::int16_t code) const {
  const auto found = std::ranges::find(entries_, code, &Entry::code);
  if (found == entries_.end()) throw std::logic_error("no option for an interface code");
  return *found->option;
}

}  // namespace ostrel
