#include "shell/SessionDriver.h"

#include <cstdlib>

#include "base/Scope.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"

namespace ostrel {
namespace {

constexpr std::int64_t kToleratedClockSeconds = 10 * 60;

}  // namespace

SessionDriver::SessionDriver(PageContext& context, Comms& comms, General& general, bool& Connected)
    : context_(context),
      comms_(comms),
      general_(general),
      session_(general.Session()),
      Connected_(Connected) {
  session_.TimerComms.OnTimer = [this] { Tick(); };
}

void SessionDriver::Tick() {
  if (ticking_) return;
  const Lent ticking(ticking_, true);
  if (session_.IniRequest && !Connected_) comms_.LinkBusy = false;
  if (!comms_.LinkBusy && session_.IniRequest) OpenOrClose();
  if (!Connected_ || !general_.PageActive) return;
  if (session_.WriteRequest) {
    const AtEnd served([this] { session_.WriteRequest = false; });
    Upload();
  }
  if (session_.ReadRequest) {
    const AtEnd served([this] { session_.ReadRequest = false; });
    Download();
  }
  comms_.ReadInfo();
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

bool SessionDriver::Open(std::int16_t port, const std::string& phone) {
  port_ = port;
  session_.ComStat.face.SetCaption(
      "", context_.Translate("Detectando ") + context_.profile.TargetName + "...");
  Connected_ = comms_.StartComs(port, phone);
  if (Connected_) ReadAfterConnect();
  // Whoever breaks the opening off closes the port.
  Connected_ = comms_.PortOpen();
  ShowState();
  return Connected_;
}

bool SessionDriver::CompleteInfo() {
  constexpr int kTries = 2;
  for (int i = 0; i < kTries && comms_.InfoFault().IsDamage(); ++i) comms_.ReadInfo();
  return comms_.InfoFault().kind == LinkFault::Kind::None;
}

void SessionDriver::Close(bool modem) {
  comms_.CloseComs(modem);
  Connected_ = false;
  ShowState();
}

void SessionDriver::ReadAfterConnect() {
  comms_.ReadInfo();
  comms_.ReadTotalCount();
  comms_.ReadIOParameter();
  comms_.ReadDeviceRTC();
  if (comms_.PortOpen()) CompareClocks();
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
  SetStatus(Connected_ ? "Comunicacion iniciada" : "Comunicacion no iniciada");
  session_.IniCom.face.SetCaption(caption, context_.Translate(caption));
  session_.EnableTransfers(Connected_);
}

bool SessionDriver::Upload() {
  return Transfer(TransferKind::Writing, "Escribiendo configuracion...",
                  "Configuracion escrita con exito");
}

bool SessionDriver::Download() {
  return Transfer(TransferKind::Reading, "Descargando configuracion...",
                  "Configuracion descargada con exito");
}

bool SessionDriver::Transfer(TransferKind kind, std::string_view status, std::string_view success) {
  TransferEnd end{kind, false, {}};
  {
    const Lent running(running_, kind);
    Form& form = general_.GetForm();
    form.SetMousePointer(Pointer::Hourglass);
    form.SetEnabled(false);
    session_.EnableTransfers(false);
    const AtEnd ended([&] {
      session_.EnableTransfers(true);
      form.SetEnabled(true);
      form.SetMousePointer(Pointer::Default);
    });
    SetStatus(status);
    // Goes on without, too: a logger that never ends its information may still give the rest.
    CompleteInfo();
    const bool reads = kind == TransferKind::Reading;
    end.done = reads ? comms_.ReadConf() : comms_.WriteConf();
    end.held = reads ? context_.conf : std::move(sent_);
    SetStatus(end.done ? success : "Error!");
  }
  if (OnTransferEnded) OnTransferEnded(end);
  return end.done;
}

void SessionDriver::SetStatus(std::string_view key) {
  session_.ComStat.face.SetCaption(key, context_.Translate(key));
}

}  // namespace ostrel
