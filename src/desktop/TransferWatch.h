#pragma once

#include <optional>
#include <string>

#include "desktop/LinkState.h"
#include "platform/Settings.h"
#include "shell/RecordCounts.h"
#include "shell/RemainingTime.h"

namespace ostrel {

class Configurator;

/// Follows a download or an upload: how many steps it will have, how far it is, what is left.
/// Looked at several times a second.
class TransferWatch {
 public:
  TransferWatch(Configurator& configurator, Settings& settings)
      : configurator_(configurator), records_(settings) {}

  /// Looks at the link. Returns the kind of a transfer that has just ended, if one has.
  std::optional<LinkState::Kind> Look(TimePoint now);
  bool Running() const { return running_.has_value(); }
  const RemainingTime& Time() const { return time_; }

 private:
  void Begin(TimePoint now, LinkState::Kind kind);

  Configurator& configurator_;
  RecordCounts records_;
  std::optional<LinkState::Kind> running_;
  RemainingTime time_;
};

}  // namespace ostrel
