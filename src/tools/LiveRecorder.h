#pragma once

#include <memory>
#include <optional>
#include <string>

#include "controls/Form.h"
#include "tools/LivePoll.h"
#include "tools/LiveRecording.h"
#include "tools/ToolContext.h"

namespace ostrel {

/// Records the rounds of the session into a file that the operator chooses. It keeps the rounds
/// going, whichever page is in front, until the operator ends it or the file takes no more.
class LiveRecorder {
 public:
  LiveRecorder(ToolContext& context, LivePoll& poll) : context_(context), poll_(poll) {}

  bool IsOn() const { return recording_.has_value(); }
  /// Begins, after asking for the file, or ends.
  void Toggle();
  /// "Grabando: 12", or what went wrong; empty while there is nothing to tell.
  std::string StateText() const;

 private:
  void Begin(const std::string& path);
  void End();
  void Take(const LiveRound& round);

  ToolContext& context_;
  LivePoll& poll_;
  std::optional<LiveRecording> recording_;
  LivePoll::RoundFeed::Subscription rounds_;
  std::shared_ptr<const void> going_;
  bool hasFailed_ = false;
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
