#include "shell/session/SessionDriver.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/Scope.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"

namespace ostrel {
namespace {

constexpr std::int64_t kToleratedClockSeconds = 10 * 60;

}  // namespace

class SessionDriver::Working {
 public:
  Working(SessionDriver& driver, SessionPhase phase) : driver_(driver), phase_(phase) {
    driver_.brokenOff_ = false;
    driver_.SetState({phase});
  }
  ~Working() {
    SessionState after{driver_.Connected_ ? SessionPhase::Open : SessionPhase::Closed};
    if (!done_) after.failed = driver_.FaultDuring(phase_);
    driver_.SetState(std::move(after));
  }
  Working(const Working&) = delete;
  Working& operator=(const Working&) = delete;

  /// The work has succeeded, or not.
  void Ended(bool done) { done_ = done; }

 private:
  SessionDriver& driver_;
  SessionPhase phase_;
  bool done_ = false;
};

SessionDriver::SessionDriver(PageContext& context, Comms& comms, General& general, bool& Connected,
                             DeviceConf* const& received, std::function<void()> showPages)
    : context_(context),
      comms_(comms),
      received_(received),
      showPages_(std::move(showPages)),
      general_(general),
      session_(general.Session()),
      Connected_(Connected),
      watch_(context.platform.loop, context.platform.settings),
      progress_(comms.OnProgress([this](const Progress& progress) {
        if (watch_.Running()) watch_.Follow(progress);
      })) {
  session_.TimerComms.OnTimer = [this] {
    Tick();
    if (OnTick) OnTick();
  };
  session_.OnRequest = [this] { SetState(state_); };
}

void SessionDriver::Tick() {
  if (ticking_ || (lent_ && !mayClose_)) return;
  const Lent ticking(ticking_, true);
  if (session_.IniRequest && !Connected_) comms_.LinkBusy = false;
  if (comms_.LinkBusy) return TickBehind();
  if (session_.IniRequest) OpenOrClose();
  if (lent_ || !Serves()) return;
  Serve(session_.WriteRequest, ServeWrite, &SessionDriver::Upload);
  Serve(session_.ReadRequest, ServeRead, &SessionDriver::Download);
  if (!Connected_ || !general_.PageActive) return;
  comms_.Reading().Run(Background::Cut::Never, [this] { comms_.ReadInfo(); });
}

/// Live rounds may follow so closely that each tick falls into one.
void SessionDriver::TickBehind() {
  if (!isLate_)
    isLate_ = comms_.Reading().Behind([this] {
      isLate_ = false;
      Tick();
    });
}

void SessionDriver::AskFor(SessionPhase kind) {
  if (!Connected_ || lent_) return;
  fromAnyPage_ = true;
  (kind == SessionPhase::Writing ? session_.Escribir : session_.Leer).Click();
  fromAnyPage_ = HasRequest();  // a button that rests takes no click
}

void SessionDriver::Lend(bool lent) {
  lent_ = lent;
  mayClose_ = false;
  session_.EnableTransfers(Connected_ && !lent);
  SetState(state_);
}

void SessionDriver::Serve(bool& request, const std::function<void()>& byFace,
                          bool (SessionDriver::*transfer)()) {
  if (!request || !Connected_) return;
  const AtEnd served([&] {
    request = false;
    fromAnyPage_ = fromAnyPage_ && HasRequest();
    general_.GetForm().SetMousePointer(Pointer::Default);
    SetState(state_);
  });
  if (byFace)
    byFace();
  else
    (this->*transfer)();
}

void SessionDriver::OpenOrClose() {
  Form& form = general_.GetForm();
  form.SetMousePointer(Pointer::Hourglass);
  const AtEnd served([&] {
    form.SetMousePointer(Pointer::Default);
    session_.IniRequest = false;
  });
  if (Connected_) {
    Close(session_.ModemCheck.Checked());
  } else {
    Open(session_.SelectedPort(),
         session_.ModemCheck.Checked() ? session_.CallNum.Text() : std::string());
  }
}

bool SessionDriver::Open(std::int16_t port, const std::string& phone, OpenTo wanted) {
  port_ = port;
  code_ = CodeAnswer::NotAsked;
  Working opening(*this, SessionPhase::Opening);
  context_.info.SerialNumber.clear();  // of a former logger; the page keeps its texts
  session_.ComStat.face.SetCaption(
      "", context_.Translate("Detectando ") + context_.profile.TargetName + "...");
  {
    const AtEnd shown([this] {
      Connected_ = comms_.PortOpen();  // whoever breaks the opening off closes the port
      ShowState();
    });
    unverified_ = false;
    greeting_.clear();
    ofNames_ = ofStream_ = kAnyModel;
    toldDoubt_.reset();
    Connected_ = comms_.StartComs(port, phone);
    if (Connected_) {
      greeting_ = comms_.RxLine;
      TellModelDoubt();
      ReadAfterConnect(wanted);
      TellModelDoubt();
    }
  }
  opening.Ended(Connected_);
  return Connected_;
}

void SessionDriver::BreakOff() {
  brokenOff_ = true;
  session_.ReadRequest = session_.WriteRequest = fromAnyPage_ = false;
  general_.GetForm().SetMousePointer(Pointer::Default);
  comms_.Abort();
  if (state_.phase != SessionPhase::Open) return;  // what is under way ends by itself now
  Connected_ = false;
  ShowState();
  SetState({SessionPhase::Closed});
}

bool SessionDriver::CompleteInfo() {
  constexpr int kTries = 2;
  for (int i = 0; i < kTries && comms_.InfoFault().IsDamage(); ++i) comms_.ReadInfo();
  return comms_.InfoFault().kind == LinkFault::Kind::None;
}

void SessionDriver::Close(bool modem) {
  Working closing(*this, SessionPhase::Closing);
  comms_.CloseComs(modem);
  Connected_ = false;
  ShowState();
  closing.Ended(true);
}

void SessionDriver::ReadAfterConnect(OpenTo wanted) {
  comms_.ReadInfo();
  const LinkFault& told = comms_.InfoFault();
  const bool isMute = told.kind == LinkFault::Kind::Silence && !told.IsDamage();
  if (isMute && wanted == OpenTo::AnyThatGreets) return;
  comms_.ReadTotalCount();
  comms_.ReadIOParameter();
  ofNames_ = ModelsOfNames(comms_.NamesTold());
  // A clock that did not come, or came damaged, is no reason to set one.
  const bool isClockRead = comms_.ReadDeviceRTC();
  if (isClockRead && comms_.PortOpen()) CompareClocks();
}

void SessionDriver::CompareClocks() {
  const std::int64_t difference =
      ToSeconds(context_.platform.clock.LocalNow()) - ToSeconds(context_.live.DeviceClock);
  if (std::abs(difference) <= kToleratedClockSeconds) return;
  const BoxAnswer answer = context_.platform.dialogs.ShowMessage(
      {.text = context_.Translate("Parece que la hora del dispositivo no esta sincronizada, desea "
                                  "sincronizarlo con la hora del PC?"),
       .title = context_.profile.TargetName,
       .icon = BoxIcon::Question,
       .buttons = BoxButtons::YesNo});
  if (answer == BoxAnswer::Yes) comms_.WriteDeviceRTC();
}

void SessionDriver::ShowState() {
  const std::string_view caption = Connected_ ? "Cerrar comunicacion" : "Iniciar comunicacion";
  SetStatus(Connected_ ? kStands : "Comunicacion no iniciada");
  session_.IniCom.face.SetCaption(caption, context_.Translate(caption));
  session_.EnableTransfers(Connected_);
  fromAnyPage_ = fromAnyPage_ && Connected_;
}

void SessionDriver::ForgetSuccess() {
  if (state_.phase == SessionPhase::Open && tellsSuccess_) SetStatus(kStands);
}

bool SessionDriver::Upload() {
  return Transfer(SessionPhase::Writing, "Escribiendo configuracion...", kWritten);
}

bool SessionDriver::Download() {
  return Transfer(SessionPhase::Reading, "Descargando configuracion...", kRead);
}

bool SessionDriver::Transfer(SessionPhase kind, std::string_view status, std::string_view success) {
  TransferEnd end{.kind = kind};
  {
    Working working(*this, kind);
    Form& form = general_.GetForm();
    form.SetMousePointer(Pointer::Hourglass);
    form.SetEnabled(false);
    session_.EnableTransfers(false);
    const AtEnd ended([&] {
      SetStatus(end.done ? success : "Error!");
      tellsSuccess_ = end.done;
      if (brokenOff_) {
        Connected_ = false;
        ShowState();
      }
      session_.EnableTransfers(Connected_);
      form.SetEnabled(true);
      form.SetMousePointer(Pointer::Default);
      watch_.End();
    });
    SetStatus(status);
    // Goes on without, too: a logger that never ends its information may still give the rest.
    CompleteInfo();
    BeginWatch(kind);
    const bool reads = kind == SessionPhase::Reading;
    end.done = reads ? ReadOrPutBack() : comms_.WriteConf();
    end.held = reads ? *received_ : std::move(sent_);
    if (end.done || !reads) unverified_ = end.done && !reads;
    working.Ended(end.done);
  }
  if (OnTransferEnded) OnTransferEnded(end);
  TellModelDoubt();
  return end.done;
}

LinkResult SessionDriver::WriteVoiceList(const ConfAutVoz& list) {
  return MoveVoiceList(ListWork::Writing, [&] { return comms_.WriteAutVoz(list); });
}

LinkResult SessionDriver::ReadVoiceList(ConfAutVoz& list) {
  return MoveVoiceList(ListWork::Reading, [&] { return comms_.ReadAutVozList(list); });
}

LinkResult SessionDriver::MoveVoiceList(ListWork work,
                                        const std::function<LinkResult()>& dialogue) {
  if (listWork_ != ListWork::None) return dialogue();  // which is turned away
  brokenOff_ = false;
  LinkResult result = [&] {
    const Lent moving(listWork_, work);
    SetState({SessionPhase::Open});
    return dialogue();
  }();
  SessionState after{Connected_ ? SessionPhase::Open : SessionPhase::Closed};
  if (!result) {
    after.failed = FaultDuring(SessionPhase::Open);
    after.failed->link = result.Fault();
    after.failed->writingVoiceList = work == ListWork::Writing;
  }
  SetState(std::move(after));
  return result;
}

LinkResult SessionDriver::SendFirmware(const FirmwareFiles& files,
                                       const FirmwareDialogue::OnStage& onStage) {
  if (comms_.LinkBusy) return LinkFault{LinkFault::Kind::Busy};
  Working working(*this, SessionPhase::Updating);
  const AtEnd ended([this] {
    watch_.End();
    if (!brokenOff_) return;
    Connected_ = false;
    ShowState();
  });
  watch_.BeginWriting(
      static_cast<int>(SentOctets(files.image.size()) + SentOctets(files.loader.size())));
  const FlashState before = flash_;
  bool hasBegun = false;
  const LinkResult result = comms_.SendFirmware(files, [&](FirmwareStage stage) {
    // The order may be heard though its answer is lost.
    if (stage == FirmwareStage::Asking) flash_ = std::max(flash_, FlashState::InDoubt);
    hasBegun = stage != FirmwareStage::Asking;
    if (hasBegun) flash_ = FlashState::Erased;
    onStage(stage);
  });
  if (!hasBegun && IsRefused(result.Fault())) flash_ = before;
  if (result) flash_ = FlashState::Kept;
  working.Ended(result);
  return result;
}

bool SessionDriver::ReadOrPutBack() {
  const DeviceConf before = *received_;
  const bool isOfPages = received_ == &context_.conf;
  const auto putBack = [&] {
    *received_ = before;
    if (isOfPages) showPages_();
  };
  lastReadFailed_ = true;
  try {
    lastReadFailed_ = !comms_.ReadConf();
  } catch (...) {
    putBack();
    throw;
  }
  if (lastReadFailed_) {
    putBack();
    return false;
  }
  ofStream_ = ModelsOfStream(comms_.DownloadedLines());
  return true;
}

std::optional<Phrase> SessionDriver::ModelDoubt() const {
  const std::string& chosen = context_.profile.TargetName;
  if (!Connected_) return {};
  if (const auto named = ModelInGreeting(greeting_); !named.empty()) {
    if (named == chosen) return {};
    return Phrase{"the logger says that it is the model %1, and the model chosen is %2",
                  {std::string(named), chosen}};
  }
  std::string_view fitting;
  for (std::size_t i = 0; i < kAnyModel.size(); ++i) {
    if (!ofNames_[i] || !ofStream_[i]) continue;
    const std::string_view name = TargetModels()[i].name;
    if (name == chosen) return {};
    if (fitting.empty()) fitting = name;
  }
  if (fitting.empty())
    return Phrase{"what was read from the logger fits no model, and the model chosen is %1",
                  {chosen}};
  return Phrase{"what was read from the logger fits the model %1, and the model chosen is %2",
                {std::string(fitting), chosen}};
}

/// Once, as long as it stays the same.
void SessionDriver::TellModelDoubt() {
  auto doubt = ModelDoubt();
  if (!doubt || !OnModelDoubt || doubt == toldDoubt_) return;
  toldDoubt_ = std::move(doubt);
  OnModelDoubt(*toldDoubt_);
}

void SessionDriver::BeginWatch(SessionPhase kind) {
  if (kind == SessionPhase::Reading)
    watch_.BeginReading(context_.profile.TargetType);
  else
    watch_.BeginWriting(static_cast<int>(comms_.ComposeStatements().size()));
}

bool SessionDriver::OwnsModel() const {
  return IsTransfer(state_.phase) || listWork_ != ListWork::None || (HasRequest() && Serves());
}

bool SessionDriver::RequestWaits() const { return HasRequest() && !OwnsModel(); }

SessionFault SessionDriver::FaultDuring(SessionPhase phase) const {
  return {.during = phase,
          .link = comms_.Fault(),
          .brokenOff = brokenOff_,
          .allSent = phase == SessionPhase::Writing && watch_.ReachedEnd(),
          .unverified =
              unverified_ && phase != SessionPhase::Writing && phase != SessionPhase::Updating,
          .flash = phase == SessionPhase::Updating ? flash_ : FlashState::Kept,
          .code = phase == SessionPhase::Opening ? code_ : CodeAnswer::NotAsked};
}

void SessionDriver::CodeAsked(bool given) {
  if (given) code_ = CodeAnswer::Given;
  if (code_ == CodeAnswer::NotAsked) code_ = CodeAnswer::NotGiven;
}

void SessionDriver::ShowWritten() {
  SetStatus(kWritten);
  tellsSuccess_ = true;
}

void SessionDriver::SetStatus(std::string_view key) {
  tellsSuccess_ = false;
  session_.ComStat.face.SetCaption(key, context_.Translate(key));
}

void SessionDriver::SetState(SessionState state) {
  state_ = std::move(state);
  if (OnStateChanged) OnStateChanged();
}

}  // namespace ostrel
