#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "sim/Configuration.h"

namespace ostrel::sim {

// The saved state is text of lines "key = value". Both visitors below are called with a key and
// the variable behind it; what stands at its default is not written.

class StateWriter {
 public:
  void operator()(const std::string& key, const std::string& text);
  void operator()(const std::string& key, std::int64_t number);
  void operator()(const std::string& key, int number) { (*this)(key, std::int64_t{number}); }
  void operator()(const std::string& key, float number);
  void operator()(const std::string& key, Interface code);
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

  void operator()(const std::string& key, std::string& text);
  void operator()(const std::string& key, int& number);
  void operator()(const std::string& key, std::int64_t& number);
  void operator()(const std::string& key, bool& value);
  void operator()(const std::string& key, float& number);
  void operator()(const std::string& key, Interface& code);
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

/// Visits all of a configuration but the kept statements and the macros.
template <class Conf, class Visitor>
void VisitConfiguration(Conf& conf, Visitor& visit) {
  const auto each = [&visit](const std::string& kind, auto& items, auto visitItem) {
    for (std::size_t i = 0; i < items.size(); ++i) {
      const std::string prefix = kind + "." + std::to_string(i) + ".";
      if (!visit.Skips(prefix, items[i])) visitItem(prefix, items[i]);
    }
  };
  const auto alarm = [&visit](const std::string& prefix, auto& a) {
    visit(prefix + "text", a.text);
    visit(prefix + "minimum", a.minimum);
    visit(prefix + "maximum", a.maximum);
    visit(prefix + "hysteresis", a.hysteresis);
    visit(prefix + "persistence", a.persistence);
    visit(prefix + "rearm", a.rearm);
    visit(prefix + "start", a.start);
    visit(prefix + "stop", a.stop);
    visit(prefix + "week", a.week);
    visit(prefix + "notify", a.notify);
    visit(prefix + "flag", a.flag);
    visit(prefix + "actions.high", a.high);
    visit(prefix + "actions.low", a.low);
    visit(prefix + "actions.normal", a.normal);
  };
  visit("name", conf.name);
  visit("sms-centre", conf.smsCentre);
  visit("own-number", conf.ownNumber);
  visit("restored-text", conf.restoredText);
  visit("resend-seconds", conf.resendSeconds);
  visit("resend-count", conf.resendCount);
  visit("sample-rate", conf.sampleRate);
  each("phone", conf.phones, [&](const std::string& prefix, auto& phone) {
    visit(prefix + "number", phone.number);
    visit(prefix + "priority", phone.priority);
    visit(prefix + "privilege", phone.privilege);
    visit(prefix + "mask-mode", phone.maskMode);
    visit(prefix + "channels", phone.channels);
  });
  each("digital", conf.digitals, [&](const std::string& prefix, auto& input) {
    visit(prefix + "name", input.name);
    visit(prefix + "normally-closed", input.normallyClosed);
    each(prefix + "alarm", input.alarms, alarm);
  });
  each("analog", conf.analogs, [&](const std::string& prefix, auto& input) {
    auto& scale = input.scale;
    visit(prefix + "name", scale.name);
    visit(prefix + "unit", scale.unit);
    visit(prefix + "interface", scale.interface);
    visit(prefix + "signal-start", scale.signalStart);
    visit(prefix + "signal-end", scale.signalEnd);
    visit(prefix + "value-at-start", scale.valueAtStart);
    visit(prefix + "value-at-end", scale.valueAtEnd);
    visit(prefix + "group", scale.group);
    each(prefix + "alarm", input.alarms, alarm);
  });
  each("group", conf.groups, [&](const std::string& prefix, auto& group) {
    visit(prefix + "output", group.output);
    visit(prefix + "volts", group.volts);
    visit(prefix + "period", group.period);
  });
  each("flag", conf.flagAlarms, alarm);
}

}  // namespace ostrel::sim
