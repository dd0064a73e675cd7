#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "link/Comms.h"
#include "model/DeviceConf.h"
#include "pages/General.h"
#include "pages/PageContext.h"
#include "shell/session/FaultWords.h"
#include "shell/session/LinkLife.h"
#include "shell/session/SessionState.h"
#include "shell/session/TransferWatch.h"
#include "shell/writing/ModelEvidence.h"

namespace ostrel {

/// What a transfer came to.
struct TransferEnd {
  SessionPhase kind = SessionPhase::Reading;  ///< Reading or Writing
  bool done = false;
  DeviceConf held{};  ///< what the logger holds, when done: what was read, or what was sent
};

/// What a session is opened to.
enum class OpenTo {
  Working,       ///< a logger that is asked all about itself
  AnyThatGreets  ///< also one without firmware, which is asked no further when it tells nothing
};

/// The main loop: serves the requests of the session controls, once a second, and keeps the device
/// information fresh. The steps can also be run directly, by a command that does not wait for
/// ticks.
class SessionDriver {
 public:
  /// `showPages` shows the model on all pages.
  SessionDriver(PageContext& context, Comms& comms, General& general, bool& Connected,
                DeviceConf* const& received, std::function<void()> showPages);

  /// One tick of `TimerComms`. A tick that arrives inside another one does nothing: the dialogue
  /// that the outer tick runs must not be disturbed.
  void Tick();
  /// Opens a session on a port, through a modem when there is a phone number. True when it stands.
  /// `Comms::Abort` breaks it off at any point.
  bool Open(std::int16_t port, const std::string& phone, OpenTo wanted = OpenTo::Working);
  /// Ends what is under way by closing the port at once; the session is closed by that.
  void BreakOff();
  /// Asks for the information again where a damaged line has cut it short: what a firmware can do
  /// decides how a configuration is read and written. A logger that is silent is not asked again:
  /// the dialogue that follows finds that out by itself. False when it stays unknown.
  bool CompleteInfo();
  /// Closes the session, hanging up when `modem` is set.
  void Close(bool modem);
  /// Downloads the configuration, showing how it goes. The result is that of the dialogue. A
  /// download that fails leaves model and pages as they were before it.
  bool Download();
  /// Uploads the configuration, likewise.
  bool Upload();
  /// Writes the voice-call list, whose count and check sum are up to date.
  LinkResult WriteVoiceList(const ConfAutVoz& list);
  LinkResult ReadVoiceList(ConfAutVoz& list);
  /// What is under way with the voice-call list. A writing that is broken off leaves a logger
  /// without a whole one.
  ListWork VoiceList() const { return listWork_; }
  /// Replaces the logger's firmware, and tells each stage as it begins. A success leaves the
  /// session to be closed, since the logger has left the dialogue.
  LinkResult SendFirmware(const FirmwareFiles& files, const FirmwareDialogue::OnStage& onStage);
  /// What an update has left of a logger's firmware, as long as none has come to its end since.
  FlashState Flash() const { return flash_; }
  /// Asks for a transfer from wherever the operator is: a click on its button, which the next tick
  /// serves even when the general page is not in front.
  void AskFor(SessionPhase kind);

  /// Lends the session to a test run, or takes it back: meanwhile no request is served and nothing
  /// is asked of the logger by itself. A request to close it that comes meanwhile is served behind.
  void Lend(bool lent);
  /// Whether a test run has the session.
  bool IsLent() const { return lent_; }
  /// Closes the session that is lent with the next tick: the run has had its last word with the
  /// logger.
  void CloseLent() {
    mayClose_ = true;
    if (Connected_) session_.IniRequest = true;
  }
  /// Whether it stands, and nobody has it: a test run may begin. A request that waits for the
  /// general page waits on.
  bool MayLend() const {
    return state_.phase == SessionPhase::Open && !lent_ && !OwnsModel() &&
           listWork_ == ListWork::None;
  }

  const SessionState& State() const { return state_; }
  /// Number of the port that a session was last asked on; 0 before.
  std::int16_t Port() const { return port_; }
  /// True from the moment on from which a transfer owns the model, that of a voice-call list
  /// included: nothing may be edited, opened, saved or compared any more. A request that cannot be
  /// served yet, because no session stands or the general page is not in front, leaves the model
  /// free.
  bool OwnsModel() const;
  /// Whether a transfer has been asked for that cannot begin yet, for one of these reasons.
  bool RequestWaits() const;
  /// What the last dialogue failed of, in the words of a session in a phase.
  SessionFault FaultDuring(SessionPhase phase) const;
  /// Another writing begins: what is said of its faults does not speak of a former one.
  void ForgetWritten() { unverified_ = false; }
  /// How the line of the session does.
  LinkLife Life() const { return LifeOf(comms_, Connected_, state_.phase); }
  /// What speaks against the model chosen: what the logger that answers has told of its own.
  std::optional<Phrase> ModelDoubt() const;
  /// Whether the last download failed.
  bool LastReadFailed() const { return lastReadFailed_; }
  /// The transfer that runs.
  TransferWatch& Watch() { return watch_; }

  /// Tells that a configuration is written, after it has been read back.
  void ShowWritten();
  /// What the logger holds is not on the pages any more: the words of the last success go.
  void ForgetSuccess();

  // What the link tells.
  /// An attempt of an upload has taken its state from the model.
  void KeepSent() { sent_ = context_.conf; }
  /// The logger tells of itself, which only one with a firmware does.
  void NoteInfo() { flash_ = FlashState::Kept; }
  /// The operator was asked for an access code.
  void CodeAsked(bool given);

  // Set by the face.
  /// Serve a request to read or to write, instead of the plain transfers.
  std::function<void()> ServeRead, ServeWrite;
  /// Runs as soon as a logger has told that it is of another model than the one chosen: by its
  /// greeting, by the names of its channels, or by its configuration.
  std::function<void(const Phrase& doubt)> OnModelDoubt;
  /// Runs after the state, or what a transfer waits for, has changed.
  std::function<void()> OnStateChanged;
  /// Runs at each tick of `TimerComms`, also of those that arrive inside another.
  std::function<void()> OnTick;
  /// Runs after each transfer.
  std::function<void(const TransferEnd&)> OnTransferEnded;

 private:
  static constexpr std::string_view kWritten = "Configuracion escrita con exito";
  static constexpr std::string_view kRead = "Configuracion descargada con exito";
  static constexpr std::string_view kStands = "Comunicacion iniciada";

  /// Holds a phase to the end of a scope, then sets what the work in it has come to.
  class Working;

  void OpenOrClose();
  void TickBehind();
  void Serve(bool& request, const std::function<void()>& byFace, bool (SessionDriver::*transfer)());
  void ReadAfterConnect(OpenTo wanted);
  void CompareClocks();
  void TellModelDoubt();
  void ShowState();
  /// Runs a transfer with the page disabled, between its two status texts.
  bool Transfer(SessionPhase kind, std::string_view status, std::string_view success);
  bool ReadOrPutBack();
  void BeginWatch(SessionPhase kind);
  LinkResult MoveVoiceList(ListWork work, const std::function<LinkResult()>& dialogue);
  void SetStatus(std::string_view key);
  void SetState(SessionState state);
  bool HasRequest() const { return session_.ReadRequest || session_.WriteRequest; }
  /// Whether requests are served: the general page is in front, or need not be.
  bool Serves() const { return Connected_ && (general_.PageActive || fromAnyPage_); }

  PageContext& context_;
  Comms& comms_;
  DeviceConf* const& received_;  ///< where a download goes: the model, or beside it
  std::function<void()> showPages_;
  General& general_;
  SessionFrame& session_;
  bool& Connected_;
  TransferWatch watch_;
  ProgressFeed::Subscription progress_;  ///< of the watch
  SessionState state_;
  std::int16_t port_ = 0;
  bool ticking_ = false;
  bool lent_ = false;
  bool mayClose_ = false;     ///< the session that is lent may be closed
  bool isLate_ = false;       ///< a tick waits for the end of a reading
  bool fromAnyPage_ = false;  ///< the request that waits needs no general page
  bool unverified_ = false;   ///< the logger has taken over what was not read back since
  bool brokenOff_ = false;
  CodeAnswer code_ = CodeAnswer::NotAsked;
  bool lastReadFailed_ = false;
  bool tellsSuccess_ = false;  ///< of the last transfer, on the general page
  ListWork listWork_ = ListWork::None;
  FlashState flash_ = FlashState::Kept;
  std::string greeting_;             ///< of the logger that answers
  ModelSet ofNames_ = kAnyModel;     ///< models that its names of channels allow ...
  ModelSet ofStream_ = kAnyModel;    ///< ... and its configuration
  std::optional<Phrase> toldDoubt_;  ///< what was told of it
  DeviceConf sent_;                  ///< what the last attempt of an upload sends
};

}  // namespace ostrel
