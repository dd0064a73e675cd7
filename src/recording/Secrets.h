#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// Takes access codes and passwords out of the lines of a recording.
class Secrets {
 public:
  /// A line that the program sent, with or without its end, in which "****" stands for each secret.
  /// A frame stays good or bad as it was: its two digits are those of what stands there now, so
  /// that they tell nothing either. Codes and passwords that were sent are known from then on.
  std::string Sent(std::string_view line);
  /// The same for a line that came. The passwords of a good line are known from then on. In a line
  /// without a good frame no field can be told from the others: all behind its head is
  /// masked, and so is the whole of what follows it outside any frame, which a torn line leaves.
  std::string Received(std::string_view line);

 private:
  /// Where a known secret is masked outside good frames, which say where theirs stand: while a
  /// session is opened an echo may come damaged in any way.
  enum class Known { Anywhere, AsTokens };

  void Learn(std::string_view secret);
  std::string Masked(std::string_view body, Known known) const;
  static std::string MaskedDamage(std::string line, bool isTorn);

  std::vector<std::string> known_;  ///< as they travel, from 3 characters on
  bool isOpening_ = false;          ///< a code was sent, and nothing but its echo has come since
  bool isTorn_ = false;             ///< the last line that came was damaged
};

/// Whether what has come of a line may be its end or the start of a secret, so that it must not be
/// shown before the whole line is there.
bool MayHoldSecret(std::string_view part);

}  // namespace ostrel
