#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Values.h"
#include "link/LinkFault.h"
#include "model/ActionList.h"

namespace ostrel {

/// Builds the text of one statement, token by token.
class Statement {
 public:
  explicit Statement(std::string_view key) : text_(key) {}

  /// Appends a text as it stands.
  Statement& Text(std::string_view text) {
    text_ += text;
    return *this;
  }
  /// Appends a whole number in plain digits.
  Statement& Digits(std::int64_t number) { return Text(std::to_string(number)); }
  /// Appends a token and its number in `NumText` form, which brings its own leading blank.
  template <class Number>
  Statement& Num(std::string_view token, Number number) {
    return Text(token).Text(NumText(number));
  }
  /// Appends a token when the condition holds.
  Statement& TokenIf(bool condition, std::string_view token) {
    return condition ? Text(token) : *this;
  }
  /// Appends a token and the numbers above 0 of a list, in the order of their places.
  Statement& Actions(std::string_view token, const ActionList& list) {
    Text(token);
    for (int place = 0; place < kActionPlaces; ++place)
      if (list[place] > 0) Text(NumText(list[place]));
    return *this;
  }

  const std::string& Done() const { return text_; }

 private:
  std::string text_;
};

/// The statements of an upload in the order of sending.
class StatementList {
 public:
  void Add(std::string statement) { statements_.push_back(std::move(statement)); }
  void Add(const Statement& statement) { Add(statement.Done()); }

  /// Notes that a statement cannot be made, so that none may be sent. The first reason counts.
  /// `standIn` takes its place, so that a comparison still sees what the record holds.
  void Fail(LinkFault fault, const Statement& standIn) {
    if (fault_.Ok()) fault_ = std::move(fault);
    Add(standIn);
  }

  const std::vector<std::string>& All() const { return statements_; }
  /// Why the list is not whole; no fault when it is.
  const LinkFault& Fault() const { return fault_; }

 private:
  LinkFault fault_;
  std::vector<std::string> statements_;
};

}  // namespace ostrel
