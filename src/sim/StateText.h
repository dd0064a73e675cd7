#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ostrel::sim {

// The saved state is text of lines "key = value". Both visitors below are called with a key and
// the variable behind it. Texts and decimal numbers that stand at their standard are not written.

class StateWriter {
 public:
  void operator()(const std::string& key, std::string_view text, std::string_view standard = {});
  void operator()(const std::string& key, std::int64_t number);
  void operator()(const std::string& key, std::uint32_t bits) { (*this)(key, std::int64_t{bits}); }
  void operator()(const std::string& key, int number) { (*this)(key, std::int64_t{number}); }
  void operator()(const std::string& key, float number, float standard = 0);
  /// A code of an enumeration that runs from 0 to `last`.
  template <class Code>
  void operator()(const std::string& key, Code code, Code) {
    (*this)(key, static_cast<int>(code));
  }
  void operator()(const std::string& kind, const std::vector<std::string>& texts);
  template <std::size_t N>
  void operator()(const std::string& key, const std::array<int, N>& numbers) {
    PutNumbers(key, numbers.data(), N);
  }
  /// Whether an item of an array is to be passed over.
  template <class Item>
  bool Skips(const std::string&, const Item& item) const {
    return item == Item{};
  }
  /// The text, in UTF-8.
  std::string Take() { return std::move(text_); }

 private:
  void Put(const std::string& key, std::string_view value);
  void PutNumbers(const std::string& key, const int* numbers, std::size_t count);

  std::string text_;
};

class StateReader {
 public:
  /// Splits the text; what is wrong with it is told by `Error`.
  explicit StateReader(std::string_view text);

  void operator()(const std::string& key, std::string& text, std::string_view standard = {});
  void operator()(const std::string& key, int& number);
  void operator()(const std::string& key, std::int64_t& number);
  void operator()(const std::string& key, std::uint32_t& bits);
  void operator()(const std::string& key, bool& value);
  void operator()(const std::string& key, float& number, float standard = 0);
  template <class Code>
  void operator()(const std::string& key, Code& code, Code last) {
    int number = static_cast<int>(code);
    (*this)(key, number);
    if (number < 0 || number > static_cast<int>(last)) return Fail(key + " is no code");
    code = static_cast<Code>(number);
  }
  void operator()(const std::string& kind, std::vector<std::string>& texts);
  template <std::size_t N>
  void operator()(const std::string& key, std::array<int, N>& numbers) {
    TakeNumbers(key, numbers.data(), N);
  }
  template <class Item>
  bool Skips(const std::string& prefix, const Item&) const {
    return !Holds(prefix);
  }
  /// Whether any key with this prefix is left.
  bool Holds(const std::string& prefix) const;
  /// Takes all keys with a prefix, as what follows the prefix with its value.
  std::map<std::string, std::string> TakeAll(const std::string& prefix);

  void Fail(std::string error);
  /// Whether everything was understood: no error, and no key left over.
  bool Done();
  const std::string& Error() const { return error_; }

 private:
  void TakeLine(std::string_view line, int number);
  bool TakeValue(const std::string& key, std::string& value);
  void TakeNumbers(const std::string& key, int* numbers, std::size_t count);
  template <class Number>
  void TakeNumber(const std::string& key, Number& number);

  std::map<std::string, std::string> values_;
  std::string error_;
};

/// Visits the items of an array with `visitItem`, but those at their default.
template <class Items, class Visitor, class VisitItem>
void VisitEach(const std::string& kind, Items& items, Visitor& visit, VisitItem visitItem) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    const std::string prefix = kind + "." + std::to_string(i) + ".";
    if (!visit.Skips(prefix, items[i])) visitItem(prefix, items[i]);
  }
}

template <class AnyAlarm, class Visitor>
void VisitAlarm(const std::string& prefix, AnyAlarm& alarm, Visitor& visit) {
  visit(prefix + "text", alarm.text);
  visit(prefix + "minimum", alarm.minimum);
  visit(prefix + "maximum", alarm.maximum);
  visit(prefix + "hysteresis", alarm.hysteresis);
  visit(prefix + "persistence", alarm.persistence);
  visit(prefix + "rearm", alarm.rearm);
  visit(prefix + "start", alarm.start);
  visit(prefix + "stop", alarm.stop);
  visit(prefix + "week", alarm.week);
  visit(prefix + "notify", alarm.notify);
  visit(prefix + "flag", alarm.flag);
  visit(prefix + "actions.high", alarm.high);
  visit(prefix + "actions.low", alarm.low);
  visit(prefix + "actions.normal", alarm.normal);
}

template <class Row, class Visitor>
void VisitAlarms(const std::string& prefix, Row& row, Visitor& visit) {
  VisitEach(prefix + "alarm", row, visit,
            [&](const std::string& within, auto& alarm) { VisitAlarm(within, alarm, visit); });
}

template <class AnyScale, class Visitor>
void VisitScale(const std::string& prefix, AnyScale& scale, Visitor& visit) {
  visit(prefix + "signal-start", scale.signalStart);
  visit(prefix + "signal-end", scale.signalEnd);
  visit(prefix + "value-at-start", scale.valueAtStart);
  visit(prefix + "value-at-end", scale.valueAtEnd);
}

}  // namespace ostrel::sim
