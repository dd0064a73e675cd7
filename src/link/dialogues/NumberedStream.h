#pragma once

#include <functional>
#include <string_view>

#include "link/Line.h"

namespace ostrel {

/// One line of a numbered stream.
struct StreamRecord {
  int number = 0;
  std::string_view key;
  std::string_view line;  ///< the whole message
};

/// The key of a line of such a stream.
std::string_view KeyOf(std::string_view line);

/// A stream of lines that a logger sends for one request: each has the head, a number of three
/// digits that rises from 0, a key and its fields; the bare head ends it.
class NumberedStream {
 public:
  /// Gives the fault that a record ends the attempt with, or none.
  using Take = std::function<LinkFault(const StreamRecord&)>;

  NumberedStream(Line& line, std::string_view request, std::string_view head)
      : line_(line), request_(request), head_(head) {}

  /// Nothing has come yet.
  void Restart() { expected_ = 0; }
  /// One attempt to read it all.
  LinkFault Read(const Take& take);
  /// Number of the record that is due, which is how many of this attempt have come.
  int Expected() const { return expected_; }

 private:
  LinkFault TakeRecord(const Take& take);

  Line& line_;
  std::string_view request_, head_;
  int expected_ = 0;
};

}  // namespace ostrel
