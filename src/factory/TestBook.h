#pragma once

#include "factory/TestRecord.h"

namespace ostrel {

/// Keeps book of test runs, beside their table of records.
class TestBook {
 public:
  virtual ~TestBook() = default;
  /// A run begins, ahead of its first octet. Of `record` stands what is tested, by whom and where.
  virtual void Begins(const TestRecord& record) = 0;
  /// It has come to what `record` tells.
  virtual void Ends(const TestRecord& record) = 0;
};

}  // namespace ostrel
