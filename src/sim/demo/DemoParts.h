#pragma once

#include <initializer_list>
#include <string_view>

#include "sim/Configuration.h"

namespace ostrel::sim {

/// Sets up the demonstration, a small waterworks, mostly in the statements of an upload.
class Demonstration {
 public:
  Demonstration(const Identity& self, Configuration& conf) : self_(self), conf_(conf) {}

  const Identity& Self() const { return self_; }
  /// For what no statement sets.
  Configuration& Conf() { return conf_; }

  void Say(std::string_view statement);
  void SayAll(std::initializer_list<std::string_view> statements);
  /// Says a pattern each to the channels from 0 on, as far as there are channels; a "?" stands for
  /// the number.
  void SayEach(std::initializer_list<std::string_view> patterns, int channels);

 private:
  Identity self_;
  Configuration& conf_;
};

}  // namespace ostrel::sim
