#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "link/Comms.h"
#include "model/DeviceConf.h"
#include "pages/General.h"
#include "pages/PageContext.h"

namespace ostrel {

/// What carries a whole configuration over the line.
enum class TransferKind { None, Reading, Writing };

/// What a transfer came to.
struct TransferEnd {
  TransferKind kind;
  bool done;
  DeviceConf held;  ///< what the logger holds, when done: what was read, or what was sent
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
  /// Number of the port that a session was last asked on; 0 before.
  std::int16_t Port() const { return port_; }
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
  /// An attempt of an upload has taken its state from the model.
  void KeepSent() { sent_ = context_.conf; }
  /// The transfer under way.
  TransferKind Running() const { return running_; }
  /// Runs after each transfer. Set by the face.
  std::function<void(const TransferEnd&)> OnTransferEnded;

 private:
  void OpenOrClose();
  void ReadAfterConnect();
  void CompareClocks();
  void ShowState();
  /// Runs a transfer with the page disabled, between its two status texts.
  bool Transfer(TransferKind kind, std::string_view status, std::string_view success);
  void SetStatus(std::string_view key);

  PageContext& context_;
  Comms& comms_;
  General& general_;
  SessionFrame& session_;
  bool& Connected_;
  std::int16_t port_ = 0;
  bool ticking_ = false;
  TransferKind running_ = TransferKind::None;
  DeviceConf sent_;  ///< what the last attempt of an upload sends
};

}  // namespace ostrel
