#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "link/Comms.h"
#include "model/DeviceConf.h"
#include "pages/General.h"
#include "pages/PageContext.h"
#include "shell/SessionState.h"
#include "shell/TransferWatch.h"

namespace ostrel {

/// What a transfer came to.
struct TransferEnd {
  SessionPhase kind = SessionPhase::Reading;  ///< Reading or Writing
  bool done = false;
  DeviceConf held{};  ///< what the logger holds, when done: what was read, or what was sent
};

/// The main loop: serves the requests of the session controls, once a second, and keeps the device
/// information fresh. The steps can also be run directly, by a command that does not wait for
/// ticks.
class SessionDriver {
 public:
  SessionDriver(PageContext& context, Comms& comms, General& general, bool& Connected);

  /// One tick of `TimerComms`. A tick that arrives inside another one does nothing: the dialogue
  /// that the outer tick runs must not be disturbed.
  void Tick();
  /// Opens a session on a port, through a modem when there is a phone number. True when it stands.
  /// `Comms::Abort` breaks it off at any point.
  bool Open(std::int16_t port, const std::string& phone);
  /// Ends what is under way by closing the port at once; the session is closed by that.
  void BreakOff();
  /// Asks for the information again where a damaged line has cut it short: what a firmware can do
  /// decides how a configuration is read and written. A logger that is silent is not asked again:
  /// the dialogue that follows finds that out by itself. False when it stays unknown.
  bool CompleteInfo();
  /// Closes the session, hanging up when `modem` is set.
  void Close(bool modem);
  /// Downloads the configuration, showing how it goes. The result is that of the dialogue.
  bool Download();
  /// Uploads the configuration, likewise.
  bool Upload();

  const SessionState& State() const { return state_; }
  /// Number of the port that a session was last asked on; 0 before.
  std::int16_t Port() const { return port_; }
  /// True from the moment on from which a transfer owns the model: nothing may be edited, opened,
  /// saved or compared any more. A request that cannot be served yet, because no session stands or
  /// the general page is not in front, leaves the model free.
  bool OwnsModel() const;
  /// Whether a transfer has been asked for that cannot begin yet, for one of these reasons.
  bool RequestWaits() const;
  /// What the last dialogue failed of, in the words of a session in a phase.
  SessionFault FaultDuring(SessionPhase phase) const;
  /// The transfer that runs.
  TransferWatch& Watch() { return watch_; }

  // What the link tells.
  /// An attempt of an upload has taken its state from the model.
  void KeepSent() { sent_ = context_.conf; }
  /// The operator was asked for an access code.
  void CodeAsked(bool given);

  // Set by the face.
  /// Runs after the state, or what a transfer waits for, has changed.
  std::function<void()> OnStateChanged;
  /// Runs at each tick of `TimerComms`, also of those that arrive inside another.
  std::function<void()> OnTick;
  /// Runs after each transfer.
  std::function<void(const TransferEnd&)> OnTransferEnded;

 private:
  /// Holds a phase to the end of a scope, then sets what the work in it has come to.
  class Working;

  void OpenOrClose();
  void ReadAfterConnect();
  void CompareClocks();
  void ShowState();
  /// Runs a transfer with the page disabled, between its two status texts.
  bool Transfer(SessionPhase kind, std::string_view status, std::string_view success);
  void BeginWatch(SessionPhase kind);
  void SetStatus(std::string_view key);
  void SetState(SessionState state);
  bool HasRequest() const { return session_.ReadRequest || session_.WriteRequest; }

  PageContext& context_;
  Comms& comms_;
  General& general_;
  SessionFrame& session_;
  bool& Connected_;
  TransferWatch watch_;
  ProgressFeed::Subscription progress_;  ///< of the watch
  SessionState state_;
  std::int16_t port_ = 0;
  bool ticking_ = false;
  bool brokenOff_ = false;
  CodeAnswer code_ = CodeAnswer::NotAsked;
  DeviceConf sent_;  ///< what the last attempt of an upload sends
};

}  // namespace ostrel
