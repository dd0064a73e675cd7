#pragma once

#include <functional>
#include <optional>

#include "shell/compare/Comparison.h"
#include "shell/words/Phrase.h"

namespace ostrel {

class Configurator;

/// How a configuration is written with its guards. Each step says whether it succeeded; a face runs
/// the transfers in its own way.
struct WriteRoad {
  std::function<bool()> read;   ///< downloads into `Configurator::received`
  std::function<bool()> write;  ///< uploads the model
  /// Keeps what the logger held before; null keeps nothing.
  std::function<bool(const DeviceConf& held)> keep{};
  /// Asked where what the logger holds, which is read ahead, speaks against replacing it: it is of
  /// another model, or the ledger knows that others have changed it. Null when nobody asks.
  std::function<bool(const Phrase& doubt)> inSpiteOf{};
  bool isFormerState = false;  ///< what is sent is to replace what the ledger does not know
  /// Asked with what will change, from the logger to the model; null when nobody asks.
  std::function<bool(const Comparison& changes)> mayWrite{};
  bool verify = true;                       ///< reads everything back and compares
  Passwords passwords = Passwords::Hidden;  ///< in what is compared
};

/// The step at which writing ended.
enum class WriteEnd {
  NotRead,      ///< what the logger holds could not be read ahead
  NotKept,      ///< no safety copy could be kept
  Declined,     ///< the operator has seen the changes, and does not want them
  NotWritten,   ///< the upload failed
  NotReadBack,  ///< it is written; what the logger holds now could not be read
  Written
};

struct WriteResult {
  WriteEnd end = WriteEnd::Written;
  DeviceConf sent{};  ///< the configuration that was to be written
  /// What was sent against what the logger holds; nothing when it was not verified.
  std::optional<Comparison> verified{};

  bool IsAsSent() const { return end == WriteEnd::Written && (!verified || verified->isSame); }
};

/// What a logger holds, read beside the model: it stays as it is all the while, and so does what is
/// known of where it comes from. Nothing when reading failed.
std::optional<DeviceConf> ReadBeside(Configurator& configurator, const std::function<bool()>& read);

/// Writes the configuration of a configurator: first reads and keeps what the logger holds, then
/// sends, then reads everything back and compares. The model stays as it is.
WriteResult WriteGuarded(Configurator& configurator, const WriteRoad& road);

}  // namespace ostrel
