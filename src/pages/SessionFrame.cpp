#include "pages/SessionFrame.h"

#include "model/Assign.h"

namespace ostrel {

SessionFrame::SessionFrame(Form& form, EventLoop& loop)
    : IniCom(form, "IniCom", "Iniciar comunicacion"),
      Leer(form, "Leer", ""),
      Escribir(form, "Escribir", ""),
      SearchBut(form, "SearchBut", ""),
      ModemCheck(form, "ModemCheck", ""),
      CallNum(form, "CallNum"),
      Puerto(form, "Puerto"),
      ComStat(form, "ComStat", "Comunicacion no iniciada"),
      PBar(form, "PBar"),
      TimerComms(form, "TimerComms", loop, std::chrono::seconds(1)),
      form_(form) {
  IniCom.OnClick = [this] { IniCom_Click(); };
  Leer.OnClick = [this] { Raise(ReadRequest); };
  Escribir.OnClick = [this] { Raise(WriteRequest); };
  ModemCheck.OnClick = [this] { CallNum.face.SetEnabled(ModemCheck.Checked()); };
  CallNum.face.SetEnabled(false);
  EnableTransfers(false);
}

void SessionFrame::IniCom_Click() { Raise(IniRequest); }

void SessionFrame::Raise(bool& request) {
  form_.SetMousePointer(Pointer::Hourglass);
  request = true;
  if (OnRequest) OnRequest();
}

void SessionFrame::EnableTransfers(bool enabled) {
  Leer.face.SetEnabled(enabled);
  Escribir.face.SetEnabled(enabled);
}

std::int16_t SessionFrame::SelectedPort() const {
  const std::string text = Puerto.Text();
  std::int16_t port = 0;
  if (text.size() > 3) Assign(port, NumVal(text.substr(3, 3)));
  return port;
}

}  // namespace ostrel
