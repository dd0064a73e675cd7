#include "pages/parts/ThresholdBoxes.h"

namespace ostrel {

ThresholdBoxes::ThresholdBoxes(Form& form, const ControlNames& names, NumberForm numberForm,
                               std::span<const ThresholdBox> boxes)
    : numberForm_(numberForm) {
  for (const ThresholdBox& spec : boxes) {
    Entry entry{spec, nullptr, nullptr};
    if (!spec.label.empty())
      entry.label =
          std::make_unique<Label>(form, names("Label" + std::string(spec.name)), spec.label);
    entry.box = std::make_unique<TextBox>(form, names(spec.name));
    entries_.push_back(std::move(entry));
  }
}

void ThresholdBoxes::CheckNumbers() const {
  for (const Entry& entry : entries_) CheckNumberBox(*entry.box, entry.spec.kind);
}

void ThresholdBoxes::SetEnabled(bool enabled) {
  for (const Entry& entry : entries_) entry.box->face.SetEnabled(enabled);
}

}  // namespace ostrel
