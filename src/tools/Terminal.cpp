#include "tools/Terminal.h"

#include <algorithm>
#include <utility>

#include "base/CodePage.h"
#include "platform/Files.h"
#include "tools/RichText.h"

namespace ostrel {

Terminal::Terminal(ToolContext& context)
    : context_(context),
      EnviarFrame(form_, "EnviarFrame", "Enviar"),
      TextComando(form_, "TextComando"),
      EnviarBut(form_, "EnviarBut", "Enviar comando"),
      TextTrama(form_, "TextTrama"),
      TramaBut(form_, "TramaBut", "Enviar trama"),
      TraceEnable(form_, "TraceEnable", "Habilitar Trazas"),
      TraceDisable(form_, "TraceDisable", "Inhibir Trazas"),
      StampCheck(form_, "StampCheck", "Marcas de tiempo"),
      PauseCheck(form_, "PauseCheck", "Pausa"),
      LogCheck(form_, "LogCheck", "Registrar en un fichero"),
      SaveBut(form_, "SaveBut", "Salvar"),
      BorrarBut(form_, "BorrarBut", "Borrar"),
      TextWin(form_, "TextWin"),
      LabelLines(form_, "LabelLines"),
      Timer1(form_, "Timer1", context.platform.loop, std::chrono::milliseconds(100)) {
  EnviarBut.OnClick = [this] { Send("#01", TextComando, commands_); };
  TramaBut.OnClick = [this] { Send("", TextTrama, frames_); };
  TextComando.OnArrow = [this](int way) {
    TextComando.SetText(commands_.Step(way, TextComando.Text()));
  };
  TextTrama.OnArrow = [this](int way) { TextTrama.SetText(frames_.Step(way, TextTrama.Text())); };
  TraceEnable.OnClick = [this] { Post("#041"); };
  TraceDisable.OnClick = [this] { Post("#040"); };
  PauseCheck.OnClick = [this] {
    if (!PauseCheck.Checked()) TextWin.Append(std::exchange(heldBack_, {}));
  };
  LogCheck.face.SetVisible(static_cast<bool>(context.OpenLog));
  LogCheck.OnClick = [this] { SwitchLog(); };
  SaveBut.OnClick = [this] { Save(); };
  BorrarBut.OnClick = [this] { TextWin.Clear(); };  // what is held back was not seen yet
  Timer1.OnTimer = [this] { Take(); };
}

void Terminal::LoadText() {
  form_.TranslateCaptions(context_.Translate);
  ShowLines();
}

void Terminal::Form_Activate() {
  isActive_ = true;
  Timer1.SetEnabled(true);
}

void Terminal::Form_Deactivate() {
  isActive_ = false;
  Timer1.SetEnabled(false);
}

/// What a dialogue waits for is not for the console.
void Terminal::Take() {
  if (!isActive_ || !context_.Connected || context_.comms.LinkBusy) return;
  const std::string octets = context_.comms.TakeInput();
  if (octets.empty()) return;
  lines_ += static_cast<int>(std::ranges::count(octets, '\n'));
  const std::string stamp = StampCheck.Checked() ? StampOf(context_.platform.clock) : "";
  Show(FromCodePage(stamper_.Take(octets, stamp)));
  ShowLines();
}

void Terminal::Show(std::string_view text) {
  if (log_ && !(*log_ << text << std::flush)) EndLog();
  if (PauseCheck.Checked())
    heldBack_ += text;
  else
    TextWin.Append(text);
}

void Terminal::ShowLines() {
  LabelLines.face.SetCaption(context_.Translate("Lineas recibidas:") + " " +
                             std::to_string(lines_));
}

void Terminal::Send(std::string_view head, TextBox& box, TypedHistory& history) {
  if (box.Text().empty()) return;
  Post(std::string(head) + box.Text(), [&history, text = box.Text()] { history.Add(text); });
}

/// Why nothing can be sent now; empty where it can. A box that tells of it would hold a dialogue up
/// that has the line, so the line below the text tells.
std::string_view Terminal::Hindrance() const {
  if (context_.comms.LinkBusy) return "La linea esta ocupada: no se ha enviado nada";
  if (!context_.comms.PortOpen()) return "No hay ninguna sesion: no se ha enviado nada";
  return {};
}

/// No reply is awaited: what the logger says is shown as it comes.
void Terminal::Post(std::string message, const std::function<void()>& sent) {
  context_.comms.Reading().WhenFree([this, message = std::move(message), sent]() mutable {
    if (const std::string_view why = Hindrance(); !why.empty())
      return LabelLines.face.SetCaption(context_.Translate(why));
    context_.comms.TxSer(message, 0);
    if (sent) sent();
    ShowLines();
  });
}

/// The path becomes that of the configuration file, which the two have in common.
void Terminal::Save() {
  const auto path = context_.dialogs.ChooseFile(
      {.mode = FileQuestion::Mode::Save,
       .filter = context_.Translate("Rich text file (*.rtf)|*.rtf|Todos los ficheros (*.*)|*.*"),
       .overwritePrompt = true});
  if (path &&
      SaveWhole(context_.platform.files, *path, RichTextOf(TextWin.Text() + heldBack_)).Ok())
    context_.ConfFilePath = *path;
}

void Terminal::SwitchLog() {
  log_.reset();
  if (!LogCheck.Checked()) return;
  const auto path = context_.dialogs.ChooseFile(
      {.mode = FileQuestion::Mode::Save,
       .filter =
           context_.Translate("Fichero de texto (*.txt)|*.txt|Todos los ficheros (*.*)|*.*")});
  std::string why;
  if (path) log_ = context_.OpenLog(*path, why);
  if (!log_) LogCheck.SetChecked(false);
  if (path && !log_)
    context_.dialogs.ShowMessage(
        {.text = context_.Translate("No se puede escribir el fichero") + ": " + why,
         .title = context_.profile.TargetName,
         .icon = BoxIcon::Exclamation});
}

/// The box that is not checked any more says so: no box stands up in the middle of a stream.
void Terminal::EndLog() {
  log_.reset();
  LogCheck.SetChecked(false);
}

}  // namespace ostrel
