#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "blocks/Clearing.h"
#include "model/LiveRound.h"
#include "platform/DateTime.h"
#include "shell/files/ConfigurationFile.h"

namespace ostrel {

// The acceptance of an installation, point by point: each configured input is tried on site, and
// what came of it is noted.

enum class Verdict { Open, Passed, Failed };

/// The word of a verdict in files: "open", "pass" or "fail".
std::string_view VerdictWord(Verdict verdict);

/// One input, and what came of trying it.
struct AcceptancePoint {
  std::string node;  ///< key of the input's node in the tree: "E_Digital_3"
  std::string kind;  ///< in words: "digital input"
  int number = 0;
  std::string name{};
  Verdict verdict = Verdict::Open;
  std::string note{};
  std::string value{};             ///< with its unit, when the verdict was given; empty for none
  std::optional<DateTime> time{};  ///< local, when the verdict was given

  bool operator==(const AcceptancePoint&) const = default;
  bool IsTouched() const { return verdict != Verdict::Open || !note.empty(); }
};

/// The acceptance of one configuration on one logger.
struct Acceptance {
  std::string serialNumber;
  std::string configuration{};  ///< name of its file, without the folder; empty for none
  std::string model{};          ///< display name
  std::vector<AcceptancePoint> points{};

  bool operator==(const Acceptance&) const = default;
};

/// How an acceptance names the configuration of a file.
inline std::string ConfigurationName(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

/// The inputs of a configuration that have an alarm enabled, or hold anything else of their own
/// than an emptied configuration does, in the order of the tree. The names of emptied inputs hang
/// on the language.
std::vector<AcceptancePoint> ConfiguredInputs(const ModelConfiguration& configuration,
                                              const Translation& translate);

/// The inputs of a configuration with what was noted of them. A note on an input that is configured
/// no more, under another name, or to measure otherwise, is kept behind them.
std::vector<AcceptancePoint> WithNotes(std::vector<AcceptancePoint> inputs,
                                       const std::vector<AcceptancePoint>& noted);

/// The touched points of `noted` that are of one of the inputs.
std::vector<AcceptancePoint> NotesOf(const std::vector<AcceptancePoint>& inputs,
                                     const std::vector<AcceptancePoint>& noted);

/// What an input measures in a round, with its unit: "3.2 m3/h; 1042" where it counts, too. Empty
/// for what did not come in it.
std::string InputValue(const AcceptancePoint& point, const LiveRound& round);

/// How many points have a verdict.
struct AcceptanceCount {
  int passed = 0, failed = 0, open = 0;
};
AcceptanceCount CountOf(const std::vector<AcceptancePoint>& points);

}  // namespace ostrel
