#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace ostrel::cli {

/// Writes one JSON value to a stream: objects and arrays are told by functions that tell their
/// content. Texts are UTF-8; an octet that is not becomes U+FFFD.
class JsonWriter {
 public:
  enum class Layout { Indented, OneLine };

  explicit JsonWriter(std::ostream& out, Layout layout = Layout::Indented)
      : out_(out), layout_(layout) {}

  template <std::invocable Content>
  void Object(Content&& content) {
    Nest('{', '}', content);
  }
  template <std::invocable Content>
  void Array(Content&& content) {
    Nest('[', ']', content);
  }

  void Value(std::string_view text);
  void Value(const std::string& text) { Value(std::string_view(text)); }
  void Value(const char* text) { Value(std::string_view(text)); }
  void Value(bool value) { Raw(value ? "true" : "false"); }
  void Value(std::nullptr_t) { Raw("null"); }
  /// A number in the fewest digits that give it back; null for what is no finite number.
  template <class Number>
  requires std::integral<Number> || std::floating_point<Number>
  void Value(Number number) {
    if constexpr (std::floating_point<Number>)
      if (!std::isfinite(number)) return Value(nullptr);
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number);
    Raw({text.data(), end.ptr});
  }
  /// Starts a member of the object under way; its value comes next.
  void Key(std::string_view key);
  template <class T>
  void Member(std::string_view key, const T& value) {
    Key(key);
    Value(value);
  }
  template <std::invocable Content>
  void ObjectMember(std::string_view key, Content&& content) {
    Key(key);
    Object(content);
  }
  template <std::invocable Content>
  void ArrayMember(std::string_view key, Content&& content) {
    Key(key);
    Array(content);
  }
  /// Ends the line behind the outermost value.
  void End() { out_ << '\n'; }

 private:
  template <class Content>
  void Nest(char open, char close, Content& content) {
    Raw({&open, 1});
    ++depth_;
    isFirst_ = true;
    content();
    --depth_;
    if (!isFirst_) NewLine();
    isFirst_ = false;
    out_ << close;
  }
  void Raw(std::string_view text);
  void Separate();
  void NewLine();
  void Quoted(std::string_view text);

  std::ostream& out_;
  Layout layout_;
  int depth_ = 0;
  bool isFirst_ = true;  ///< nothing stands yet in the object or array under way
  bool afterKey_ = false;
};

}  // namespace ostrel::cli
