#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "model/AlarmBlock.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/ControlNames.h"

namespace ostrel {

/// One threshold of a kind of alarm, on its page.
struct ThresholdBox {
  std::string_view name;
  /// Spanish caption of the label "Label" and the name; empty where the form has no such label.
  std::string_view label = {};
  std::string_view kind = kFloat;
  /// Shown in other units than the model keeps it in: multiplied by the factor of its channel.
  bool isScaled = false;
};

/// The boxes of the thresholds of an alarm, in the order in which its record has them.
class ThresholdBoxes {
 public:
  ThresholdBoxes(Form& form, const ControlNames& names, NumberForm numberForm,
                 std::span<const ThresholdBox> boxes);

  /// Shows thresholds; `factor` is what scaled ones are multiplied by.
  template <class Thresholds>
  void Load(const Thresholds& thresholds, float factor) {
    std::size_t i = 0;
    Describe(thresholds, [&](const FieldMeta&, float value) {
      const Entry& entry = entries_[i++];
      *entry.former = entry.shape.isScaled ? Former{value * factor, factor} : Former{value, 1};
      entry.box->SetText(NumberText(entry.shape.isScaled ? value * factor : value, numberForm_));
    });
  }
  /// Commits the boxes. A factor of 0 leaves scaled thresholds as they were.
  template <class Thresholds>
  void Save(Thresholds& thresholds, float factor) const {
    std::size_t i = 0;
    Describe(thresholds, [&](const FieldMeta&, float& value) {
      const Entry& entry = entries_[i++];
      const double typed = NumberIn(*entry.box);
      Assign(value, entry.shape.isScaled ? typed / static_cast<double>(factor) : typed);
    });
  }
  void CheckNumbers() const;
  void SetEnabled(bool enabled);

 private:
  /// What was shown last, and by which factor: one of 0 lets nothing be typed.
  struct Former {
    float shown = 0;
    float factor = 1;
  };
  struct Entry {
    ThresholdBox shape;
    std::unique_ptr<Label> label;  ///< null for none
    std::unique_ptr<TextBox> box;
    std::unique_ptr<Former> former = std::make_unique<Former>();
  };

  NumberForm numberForm_;
  std::vector<Entry> entries_;
};

}  // namespace ostrel
