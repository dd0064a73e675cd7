#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sim/Random.h"

namespace ostrel::fuzz {

/// Makes inputs of those that are kept: the same for the same seed and number, whichever were made
/// before.
class Mutator {
 public:
  /// `words` is what the parser knows by name.
  Mutator(std::vector<std::string> corpus, std::vector<std::string> words, std::uint64_t seed);

  /// The kept inputs themselves come first, then what has become of one.
  std::string Make(std::uint64_t number) const;

 private:
  void ChangeOctets(std::string& text, sim::Random& random) const;
  void ChangeRange(std::string& text, sim::Random& random) const;
  void ChangeLines(std::string& text, sim::Random& random) const;
  void ChangeNumber(std::string& text, sim::Random& random) const;
  void Splice(std::string& text, sim::Random& random) const;

  std::vector<std::string> corpus_, words_;
  std::uint64_t seed_;
};

}  // namespace ostrel::fuzz
