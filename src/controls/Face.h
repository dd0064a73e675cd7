#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace ostrel {

/// Back colours that the logic gives a control.
enum class BackColour { Window, Red, Green };

/// The field of a configuration that a control edits, as a file names it.
struct EditedField {
  std::string_view word{};     ///< of its key; empty for a control that edits none
  std::string_view unit{};     ///< of a number
  std::string_view section{};  ///< where the form edits several; else that of its page
  int channel = -1;            ///< where the form edits several records; else that of its page
};

/// What every control shows of itself besides its value. `name` addresses it within its form;
/// `key` is its Spanish caption, under which the language table knows it.
class Face {
 public:
  Face(std::string_view name, std::string_view key) : name_(name), key_(key), caption_(key) {}
  Face(const Face&) = delete;
  Face& operator=(const Face&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Key() const { return key_; }
  const std::string& Caption() const { return caption_; }
  bool Enabled() const { return enabled_; }
  bool Visible() const { return visible_; }
  BackColour Colour() const { return colour_; }
  const EditedField& Field() const { return field_; }
  void SetField(const EditedField& field) { field_ = field; }

  void SetCaption(std::string_view caption) { Change(caption_, std::string(caption)); }
  /// Shows another text of the table from now on: its key, and the caption in the language in use.
  void SetCaption(std::string_view key, std::string_view caption) {
    key_ = key;
    SetCaption(caption);
  }
  void SetEnabled(bool enabled) { Change(enabled_, enabled); }
  void SetVisible(bool visible) { Change(visible_, visible); }
  void SetColour(BackColour colour) { Change(colour_, colour); }

  /// Runs after anything that a face shows has changed, the value included. Set by the window.
  std::function<void()> OnChanged;
  void Changed() const {
    if (OnChanged) OnChanged();
  }

 private:
  template <class T>
  void Change(T& field, T value) {
    if (field == value) return;
    field = std::move(value);
    Changed();
  }

  std::string name_;
  std::string key_;
  std::string caption_;
  bool enabled_ = true;
  bool visible_ = true;
  BackColour colour_ = BackColour::Window;
  EditedField field_;
};

}  // namespace ostrel
