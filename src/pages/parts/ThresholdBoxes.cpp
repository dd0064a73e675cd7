#include "pages/parts/ThresholdBoxes.h"

namespace ostrel {

ThresholdBoxes::ThresholdBoxes(Form& form, const ControlNames& names, NumberForm numberForm,
                               std::span<const ThresholdBox> boxes)
    : numberForm_(numberForm) {
  for (const ThresholdBox& shape : boxes) {
    Entry entry{shape, nullptr, nullptr};
    if (!shape.label.empty())
      entry.label =
          std::make_unique<Label>(form, names("Label" + std::string(shape.name)), shape.label);
    entry.box = std::make_unique<TextBox>(form, names(shape.name));
    entry.box->SetNumberKind(shape.kind);
    entry.box->Kept = [&box = *entry.box, &former = *entry.former, numberForm] {
      const TextBox::KeptNumber kept = KeptOf(box, former.shown, numberForm);
      if (former.factor != 0) return kept;
      return TextBox::KeptNumber{NumberText(former.shown, numberForm), true};
    };
    entries_.push_back(std::move(entry));
  }
}

void ThresholdBoxes::CheckNumbers() const {
  for (const Entry& entry : entries_) CheckNumberBox(*entry.box, entry.shape.kind);
}

void ThresholdBoxes::SetEnabled(bool enabled) {
  for (const Entry& entry : entries_) entry.box->face.SetEnabled(enabled);
}

}  // namespace ostrel
