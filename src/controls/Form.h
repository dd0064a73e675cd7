#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "controls/Controls.h"
#include "controls/Readouts.h"
#include "platform/Dialogs.h"

namespace ostrel {

/// Any control of a form, by its kind.
using ControlRef =
    std::variant<Label*, Frame*, Button*, CheckBox*, OptionButton*, TextBox*, TextView*, ComboBox*,
                 ListBox*, MultiListBox*, TimePicker*, ProgressBar*, Picture*, TabStrip*, DigitBox*,
                 ReadoutLine*, LedMedio*, LimitBar*, TabRow*, Timer*>;

Face& FaceOf(const ControlRef& control);

enum class Pointer { Default = 0, Hourglass = 11 };

/// A form knows its controls by name. It is drawn elsewhere, and works without being drawn.
class Form final : public Modal {
 public:
  /// `titleKey` is the Spanish title, under which the language table knows it.
  Form(std::string_view name, std::string_view titleKey);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Title() const { return title_; }
  void SetTitle(std::string_view title);

  /// The controls in the order in which they were made.
  const std::vector<ControlRef>& Controls() const { return controls_; }
  /// The control of a name; a broken invariant when there is none.
  ControlRef operator[](std::string_view name) const;
  template <class Control>
  Control& Get(std::string_view name) const {
    return *std::get<Control*>((*this)[name]);
  }
  bool Contains(std::string_view name) const;

  /// Sets the captions of all controls that have a key, and the title.
  void TranslateCaptions(const std::function<std::string(std::string_view)>& translate);

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void Show();
  void Hide();
  /// Ends a modal showing.
  void Close() { Hide(); }
  Pointer MousePointer() const { return pointer_; }
  void SetMousePointer(Pointer pointer);
  /// The control that asked for the focus last; the window follows.
  const std::string& Focus() const { return focus_; }
  void SetFocus(const Face& face);

  /// Runs after title, visibility, enabled state, pointer or focus changed. Set by the window.
  std::function<void()> OnChanged;

  /// Registers a control; called by the controls themselves.
  void Register(ControlRef control);

 private:
  void Changed() const;

  std::string name_;
  std::string titleKey_;
  std::string title_;
  std::string focus_;
  bool enabled_ = true;
  bool visible_ = false;
  Pointer pointer_ = Pointer::Default;
  std::vector<ControlRef> controls_;
  std::unordered_map<std::string, std::size_t> byName_;
};

/// The form that a face is asked to show.
inline Form& AsForm(Modal& modal) { return static_cast<Form&>(modal); }

}  // namespace ostrel
