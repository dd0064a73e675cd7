#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "controls/Form.h"
#include "model/LoggerIdentity.h"
#include "tools/ToolContext.h"
#include "tools/live/LivePoll.h"
#include "tools/live/LiveRecording.h"

namespace ostrel {

/// Records the rounds of the session into a file that the operator chooses. It keeps the rounds
/// going, whichever page is in front, until the operator ends it, the file takes no more, or they
/// come from another logger. Rounds of a later session whose logger has not told its serial number
/// are left out.
class LiveRecorder {
 public:
  LiveRecorder(ToolContext& context, LivePoll& poll) : context_(context), poll_(poll) {}

  bool IsOn() const { return recording_.has_value(); }
  /// Begins, after asking for the file, or ends.
  void Toggle();
  /// "Filas grabadas: 12", or why it goes on no more; empty while there is nothing to tell.
  std::string StateText() const;

 private:
  void Begin(const std::string& path);
  /// Ends it; `why` is told, where it is not the operator who ends it.
  void End(std::string_view why = {});
  void Take(const LiveRound& round);

  ToolContext& context_;
  LivePoll& poll_;
  std::optional<LiveRecording> recording_;
  LivePoll::RoundFeed::Subscription rounds_;
  std::shared_ptr<const void> going_;
  LoggerFollower logger_;
  bool isDoubtful_ = false;   ///< the logger has not told which one it is
  std::string_view ended_{};  ///< why it has ended by itself
};

/// The button that begins and ends the recording, and how far it is.
class RecorderPart {
 public:
  RecorderPart(Form& form, ToolContext& context, LiveRecorder& recorder);
  /// Shows how far the recording is.
  void Follow();

 private:
  ToolContext& context_;
  LiveRecorder& recorder_;
  Button BotonGrabar;
  Label LabelGrabar;
};

}  // namespace ostrel
