#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "sim/Configuration.h"

namespace ostrel::sim {

/// What the logger says to a statement.
enum class Verdict { Taken, Refused, Ignored };

/// Reads three decimal digits at the head of a text; -1 when there are none.
int ThreeDigits(std::string_view text);

/// The statements of one upload, kept aside in a copy of the configuration until they are closed.
/// Statement "000" starts over; a refused one ends the attempt, and what follows is ignored.
class Upload {
 public:
  explicit Upload(const Identity& self) : self_(self) {}

  /// Starts over from the configuration in force, as an attempt without statements so far.
  void Begin(const Configuration& held);
  /// Takes a statement with its number in front. `held` is the configuration in force.
  Verdict Take(std::string_view numbered, const Configuration& held);
  /// Ends the attempt. The new configuration, if the attempt is sound and the count is right.
  std::optional<Configuration> Close(std::string_view count);
  /// Makes the present attempt a refused one.
  void Refuse(std::string why);
  /// Why the attempt was refused; empty while it is sound.
  const std::string& Why() const { return why_; }

 private:
  Identity self_;
  Configuration draft_;
  int expected_ = -1;  ///< number of the next statement; -1 outside a sound attempt
  std::string why_;
};

}  // namespace ostrel::sim
