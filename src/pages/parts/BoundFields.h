#pragma once

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Values.h"
#include "controls/Controls.h"
#include "controls/NumberBox.h"
#include "model/Assign.h"
#include "model/Field.h"
#include "pages/parts/Edits.h"

namespace ostrel {

/// How a box shows a number: with a place for the sign, or in plain digits.
enum class NumberForm { Num, Dec };

/// What a box takes for a number, by the names under which `CheckNumberBox` knows them.
inline constexpr std::string_view kInt = "int";
inline constexpr std::string_view kFloat = "float";

template <class Number>
std::string NumberText(Number number, NumberForm form) {
  if constexpr (std::integral<Number>)
    return form == NumberForm::Dec ? std::to_string(number) : NumText(number);
  else
    return form == NumberForm::Dec ? DecText(number) : NumText(number);
}

/// What a field that holds `former` keeps of the number in a box.
template <class Number>
TextBox::KeptNumber KeptOf(const TextBox& box, Number former, NumberForm form) {
  const double typed = NumberIn(box);
  Number kept = former;
  Assign(kept, typed);
  const bool isSame = std::integral<Number> ? static_cast<double>(kept) == typed
                                            : std::abs(typed) <= std::numeric_limits<Number>::max();
  return {NumberText(kept, form), !isSame};
}

/// The controls of a form that show plain fields of a record, each bound to its member. A text box
/// takes as many characters as its field may have.
template <class Record>
class BoundFields {
 public:
  /// A box for a text.
  void Bind(TextBox& box, std::string Record::*member) {
    box.SetMaxLength(MetaOf(member).longest);
    Edits(box.face, member);
    bound_.push_back({[&box, member](const Record& record) { box.SetText(record.*member); },
                      [&box, member](Record& record) { record.*member = box.Text(); }});
  }
  /// A box for a number, which `CheckNumbers` paints by its content.
  template <class Number>
  void Bind(TextBox& box, Number Record::*member, NumberForm form, std::string_view kind) {
    box.SetMaxLength(MetaOf(member).longest);
    box.SetNumberKind(kind);
    Edits(box.face, member);
    const auto former = std::make_shared<Number>();
    box.Kept = [&box, former, form] { return KeptOf(box, *former, form); };
    bound_.push_back({[&box, member, form, former](const Record& record) {
                        *former = record.*member;
                        box.SetText(NumberText(record.*member, form));
                      },
                      [&box, member](Record& record) { Assign(record.*member, NumberIn(box)); },
                      [member, former](const Record& record) { *former = record.*member; }});
    numbers_.push_back(&box);
  }
  /// A check box for a yes or no.
  void Bind(CheckBox& box, Bool16 Record::*member) {
    Edits(box.face, member);
    bound_.push_back(
        {[&box, member](const Record& record) { box.SetChecked(bool(record.*member)); },
         [&box, member](Record& record) { record.*member = Bool16(box.Checked()); }});
  }
  /// A list whose position is the value.
  void Bind(ComboBox& box, std::int16_t Record::*member) {
    Edits(box.face, member);
    bound_.push_back({[&box, member](const Record& record) { box.SetPosition(record.*member); },
                      [&box, member](Record& record) { Assign(record.*member, box.Position()); }});
  }

  void Load(const Record& record) {
    loaded_ = &record;
    for (const Binding& binding : bound_) binding.load(record);
  }
  void Save(Record& record) const {
    const bool isCommitted = &record == loaded_;  // and not a copy, made to look at it
    for (const Binding& binding : bound_) {
      binding.save(record);
      if (isCommitted && binding.note) binding.note(record);
    }
  }
  void CheckNumbers() const {
    for (TextBox* box : numbers_) CheckNumberBox(*box, box->NumberKind());
  }

 private:
  struct Binding {
    std::function<void(const Record&)> load;
    std::function<void(Record&)> save;
    std::function<void(const Record&)> note{};  ///< takes what the record holds from now on
  };
  const Record* loaded_ = nullptr;
  std::vector<Binding> bound_;
  std::vector<TextBox*> numbers_;
};

}  // namespace ostrel
