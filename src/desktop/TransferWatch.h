#pragma once

#include "platform/Settings.h"
#include "shell/Configurator.h"
#include "shell/RecordCounts.h"
#include "shell/RemainingTime.h"

namespace ostrel {

/// Follows a download or an upload: how many steps it will have, how far it is, what is left.
class TransferWatch {
 public:
  TransferWatch(Configurator& configurator, Settings& settings);

  /// A transfer has ended: remembers how long it was.
  void Ended(const TransferEnd& end);
  bool Running() const { return running_ != TransferKind::None; }
  const RemainingTime& Time() const { return time_; }

 private:
  void Follow(const Progress& progress);
  int Expected(TransferKind kind) const;

  Configurator& configurator_;
  RecordCounts records_;
  TransferKind running_ = TransferKind::None;
  RemainingTime time_;
  ProgressFeed::Subscription subscription_;
};

}  // namespace ostrel
