#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace ostrel {

/// Back colours that the logic gives a control.
enum class BackColour { Window, Red };

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
};

}  // namespace ostrel
