#pragma once

#include <functional>
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
    bound_.push_back({[&box, member, form](const Record& record) {
                        box.SetText(NumberText(record.*member, form));
                      },
                      [&box, member](Record& record) { Assign(record.*member, NumberIn(box)); }});
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

  void Load(const Record& record) const {
    for (const Binding& binding : bound_) binding.load(record);
  }
  void Save(Record& record) const {
    for (const Binding& binding : bound_) binding.save(record);
  }
  void CheckNumbers() const {
    for (TextBox* box : numbers_) CheckNumberBox(*box, box->NumberKind());
  }

 private:
  struct Binding {
    std::function<void(const Record&)> load;
    std::function<void(Record&)> save;
  };
  std::vector<Binding> bound_;
  std::vector<TextBox*> numbers_;
};

}  // namespace ostrel
