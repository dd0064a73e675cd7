#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ostrel {

/// What was sent from a box, for the arrow keys: up goes to what was sent before, down back again.
class TypedHistory {
 public:
  void Add(const std::string& text);
  /// The text one step towards the past (-1) or the present (1). `typed` stands in the box; it is
  /// kept while the operator looks back.
  std::string Step(int way, const std::string& typed);

 private:
  std::vector<std::string> texts_;  ///< the latest last
  std::size_t place_ = 0;           ///< one beyond the end while the operator does not look back
  std::string typed_;
};

}  // namespace ostrel
