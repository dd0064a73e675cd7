#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Values.h"
#include "controls/Face.h"
#include "platform/EventLoop.h"

namespace ostrel {

class Form;

// Plain control objects. Each registers itself with its form when it is made and lives as long as
// the form. Setting a value from code runs the click logic exactly as a user's click does, when it
// changes something.

/// A text that the operator only reads.
class Label {
 public:
  Label(Form& form, std::string_view name, std::string_view key = "");
  Face face;
};

/// A titled box around other controls; disabling it disables what the window puts inside.
class Frame {
 public:
  Frame(Form& form, std::string_view name, std::string_view key = "");
  Face face;
};

class Button {
 public:
  Button(Form& form, std::string_view name, std::string_view key);
  /// Runs the click logic, unless the button is disabled.
  void Click();
  /// How many things stand behind the button, for one that opens a list; -1 for none to tell.
  int Count() const { return count_; }
  void SetCount(int count);

  Face face;
  std::function<void()> OnClick;

 private:
  int count_ = -1;
};

class CheckBox {
 public:
  CheckBox(Form& form, std::string_view name, std::string_view key);
  bool Checked() const { return checked_; }
  void SetChecked(bool checked);

  Face face;
  std::function<void()> OnClick;

 private:
  bool checked_ = false;
};

class OptionButton;

/// Option buttons of which one at the most is selected.
class OptionGroup {
 public:
  void Add(OptionButton& option) { options_.push_back(&option); }
  const std::vector<OptionButton*>& Options() const { return options_; }

 private:
  std::vector<OptionButton*> options_;
};

class OptionButton {
 public:
  OptionButton(Form& form, OptionGroup& group, std::string_view name, std::string_view key);
  bool Selected() const { return selected_; }
  /// Selecting clears the other options of the group and runs the click logic; clearing leaves the
  /// group with none selected.
  void SetSelected(bool selected);

  Face face;
  std::function<void()> OnClick;

 private:
  OptionGroup& group_;
  bool selected_ = false;
};

class TextBox {
 public:
  /// `maxLength` is in characters, 0 for none; it limits typing, not texts set by code.
  TextBox(Form& form, std::string_view name, int maxLength = 0);
  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  /// What a user's edit does: the text is cut at its first control character, which a pasted line
  /// end is, and at the length limit.
  void Type(std::string_view text);
  int MaxLength() const { return maxLength_; }
  void SetMaxLength(int maxLength) { maxLength_ = maxLength; }
  /// The kind of number that belongs into the box, as `CheckNumberBox` knows it; empty for a text.
  std::string_view NumberKind() const { return numberKind_; }
  void SetNumberKind(std::string_view kind) { numberKind_ = kind; }
  /// What a field keeps of a number that is typed.
  struct KeptNumber {
    std::string text{};    ///< the value, as it would be shown
    bool isOther = false;  ///< than the number in the box
  };
  /// Tells what the field of the box would keep of the text; null where the box has no number.
  std::function<KeptNumber()> Kept;
  /// Whether dots stand for the text, which is a password.
  bool Hidden() const { return hidden_; }
  void SetHidden(bool hidden);

  Face face;
  /// Arrow up (-1) or down (1) was pressed in the box.
  std::function<void(int way)> OnArrow;

 private:
  std::string text_;
  int maxLength_;
  std::string_view numberKind_;
  bool hidden_ = false;
};

/// A text of any length that grows at its end and is only read.
class TextView {
 public:
  TextView(Form& form, std::string_view name);
  const std::string& Text() const { return text_; }
  void Append(std::string_view text);
  void Clear();
  /// How often it was cleared: whoever has shown a part of the text knows by that whether it
  /// stands.
  int Clearings() const { return clearings_; }

  Face face;

 private:
  std::string text_;
  int clearings_ = 0;
};

/// One row of a list, with the value that stands for it.
struct ListRow {
  std::string text;
  std::int32_t value = 0;
  bool operator==(const ListRow&) const = default;
};

/// A drop-down list: one row is chosen, or none (position -1).
class ComboBox {
 public:
  ComboBox(Form& form, std::string_view name);
  const std::vector<ListRow>& Rows() const { return rows_; }
  void Add(std::string_view text, std::int32_t value = 0);
  void Clear();
  int Position() const { return position_; }
  /// Chooses a row, or none with -1; a position that does not exist changes nothing.
  void SetPosition(int position);
  /// Text of the chosen row; empty when there is none.
  std::string Text() const;
  /// Value of the chosen row; `none` when there is none.
  std::int32_t Value(std::int32_t none = 0) const;

  Face face;
  std::function<void()> OnClick;

 private:
  std::vector<ListRow> rows_;
  int position_ = -1;
};

/// An open list with one row selected, or none.
class ListBox {
 public:
  ListBox(Form& form, std::string_view name);
  const std::vector<ListRow>& Rows() const { return rows_; }
  /// Text of a row; empty beyond the end.
  std::string RowText(int row) const;
  void Add(std::string_view text, std::int32_t value = 0);
  /// Removes a row; one that does not exist changes nothing. The selection is lost when it was it.
  void Remove(int row);
  /// Puts another text in the place of a row; one that does not exist changes nothing.
  void Replace(int row, std::string_view text);
  /// Moves a row to another place and selects it; a place that does not exist changes nothing.
  void Move(int row, int place);
  void Clear();
  int Position() const { return position_; }
  void SetPosition(int position);
  /// Selects the row and runs the double-click logic.
  void DoubleClick(int row);

  Face face;
  std::function<void()> OnDoubleClick;
  bool isOrdered = false;  ///< the operator may move rows

 private:
  std::vector<ListRow> rows_;
  int position_ = -1;
};

/// An open list in which any number of rows is selected.
class MultiListBox {
 public:
  MultiListBox(Form& form, std::string_view name);
  const std::vector<ListRow>& Rows() const { return rows_; }
  void Add(std::string_view text, std::int32_t value = 0);
  void Clear();
  bool Selected(int row) const;
  void SetSelected(int row, bool selected);
  void UnselectAll();

  Face face;

 private:
  std::vector<ListRow> rows_;
  std::vector<bool> selected_;
};

/// A time of day.
class TimePicker {
 public:
  TimePicker(Form& form, std::string_view name);
  TimeOfDay Value() const { return value_; }
  void SetValue(TimeOfDay value);

  Face face;

 private:
  TimeOfDay value_;
};

/// A bar from 0 to its maximum. A value above the maximum is kept and shown as full.
class ProgressBar {
 public:
  ProgressBar(Form& form, std::string_view name);
  int Maximum() const { return maximum_; }
  int Value() const { return value_; }
  void SetMaximum(int maximum);
  void SetValue(int value);

  Face face;

 private:
  int maximum_ = 100;
  int value_ = 0;
};

/// A picture out of a list of images; 0 is the picture of the design.
class Picture {
 public:
  Picture(Form& form, std::string_view name);
  int Image() const { return image_; }
  void SetImage(int image);
  /// Path of a file that is shown instead of a picture of the program's own; empty for none.
  const std::string& File() const { return file_; }
  void SetFile(std::string path);

  Face face;

 private:
  int image_ = 0;
  std::string file_;
};

/// Tabs of which one is in front. The logic alone chooses it.
class TabStrip {
 public:
  TabStrip(Form& form, std::string_view name);
  int Tab() const { return tab_; }
  void SetTab(int tab);

  Face face;

 private:
  int tab_ = 0;
};

/// A periodic timer on the event loop, running while it is enabled.
class Timer {
 public:
  Timer(Form& form, std::string_view name, EventLoop& loop, Duration interval);
  ~Timer();
  bool Enabled() const { return running_ != 0; }
  void SetEnabled(bool enabled);

  Face face;
  std::function<void()> OnTimer;

 private:
  EventLoop& loop_;
  Duration interval_;
  TimerId running_ = 0;
};

}  // namespace ostrel
