#include "tools/Firm.h"

#include <algorithm>

#include "base/Scope.h"

namespace ostrel {
namespace {

constexpr std::string_view kNoSession = "Debe iniciar la comunicacion primero";

std::string_view StageKey(FirmwareStage stage) {
  switch (stage) {
    case FirmwareStage::Asking:
    case FirmwareStage::Erasing:
      return "Borrando flash...";
    case FirmwareStage::Image:
      return "Cargando imagen...";
    case FirmwareStage::Loader:
      return "Cargando CopyFlash en RAM...";
    case FirmwareStage::Copying:
      break;
  }
  return "Escribiendo imagen en flash, espere a que el led parpadee de nuevo...";
}

}  // namespace

Firm::Firm(ToolContext& context)
    : context_(context),
      LabelFirm(form_, "LabelFirm", "Ruta del archivo de firmware:"),
      FirmPath(form_, "FirmPath"),
      FirmBut(form_, "FirmBut", "Buscar"),
      LabelLoader(form_, "LabelLoader", "Ruta del archivo CopyFlash:"),
      LoaderPath(form_, "LoaderPath"),
      LoaderBut(form_, "LoaderBut", "Buscar"),
      StarBut(form_, "StarBut", "Iniciar"),
      LabelInfo(form_, "LabelInfo", "Sin comunicacion."),
      PBar(form_, "PBar"),
      Help(form_, "Help", ""),
      Timer1(form_, "Timer1", context.platform.loop, std::chrono::milliseconds(500)),
      progress_(context.comms.OnProgress([this](const Progress& told) {
        if (told.kind != DialogueKind::Firmware || told.stage != Progress::Stage::Step) return;
        PBar.SetValue(std::min(told.step, static_cast<int>(SentOctets(imageOctets_))));
      })) {
  FirmBut.OnClick = [this] { Choose(FirmPath); };
  LoaderBut.OnClick = [this] { Choose(LoaderPath); };
  StarBut.OnClick = [this] { context_.comms.Reading().WhenFree([this] { Start(); }); };
  Help.OnClick = [this] { context_.ShowHelp("Firmware"); };
  Timer1.OnTimer = [this] { LoadText(); };
}

void Firm::LoadText() { form_.TranslateCaptions(context_.Translate); }

void Firm::Form_Load() {
  LoadText();
  SetInfo("Preparado");
}

void Firm::Form_Activate() {
  isActive_ = true;
  Timer1.SetEnabled(true);
}

void Firm::Form_Deactivate() {
  isActive_ = false;
  Timer1.SetEnabled(false);
}

void Firm::SetInfo(std::string_view key) {
  LabelInfo.face.SetCaption(key, context_.Translate(key));
}

void Firm::Tell(std::string_view key) {
  context_.dialogs.ShowMessage(
      {.text = context_.Translate(key), .title = context_.profile.TargetName});
}

void Firm::Choose(TextBox& path) {
  const auto chosen = context_.dialogs.ChooseFile(
      {.filter = context_.Translate("Intel hex file (*.hex)|*.hex|Todos los ficheros (*.*)|*.*")});
  if (chosen) path.SetText(*chosen);
}

void Firm::Start() {
  if (!context_.Connected) return Tell(kNoSession);
  const FirmwarePaths paths{FirmPath.Text(), LoaderPath.Text()};
  if (!AreNamed(paths)) return Tell("Debe seleccionar la ruta de los dos archivos");
  FirmwareFiles files;
  std::string failed;
  if (const FileResult read = ReadFirmware(context_.platform.files, paths, files, failed);
      !read.Ok()) {
    context_.dialogs.ShowMessage({.text = context_.Translate("No se puede leer el fichero") + " " +
                                          failed + ": " + read.error,
                                  .title = context_.profile.TargetName,
                                  .icon = BoxIcon::Exclamation});
    return;
  }
  if (!MayGoOn(paths, files)) return;
  // The session may have ended behind the question.
  if (!context_.Connected) return Tell(kNoSession);
  SendFirmware(files);
}

bool Firm::MayGoOn(const FirmwarePaths& paths, const FirmwareFiles& files) {
  const auto doubts = FirmwareDoubts(paths, files, context_.Translate);
  if (doubts.empty()) return true;
  std::string text;
  for (const std::string& doubt : doubts) text += doubt + ".\n";
  text += "\n" + context_.Translate("El dispositivo puede quedar sin firmware. ¿Desea continuar?");
  return context_.dialogs.ShowMessage({.text = text,
                                       .title = context_.profile.TargetName,
                                       .icon = BoxIcon::Exclamation,
                                       .buttons = BoxButtons::YesNo}) == BoxAnswer::Yes;
}

void Firm::EnableAll(bool enabled) {
  for (Face* face : {&FirmPath.face, &FirmBut.face, &LoaderPath.face, &LoaderBut.face,
                     &StarBut.face, &Help.face})
    face->SetEnabled(enabled);
}

void Firm::ShowStage(FirmwareStage stage) {
  SetInfo(StageKey(stage));
  if (stage == FirmwareStage::Image) PBar.SetMaximum(static_cast<int>(imageOctets_));
}

void Firm::SendFirmware(const FirmwareFiles& files) {
  imageOctets_ = files.image.size();
  LinkResult sent;
  {
    form_.SetMousePointer(Pointer::Hourglass);
    EnableAll(false);
    const AtEnd ended([this] {
      EnableAll(true);
      form_.SetMousePointer(Pointer::Default);
    });
    sent = context_.SendFirmware(files, [this](FirmwareStage stage) { ShowStage(stage); });
  }
  if (!sent) {
    SetInfo("¡Error!");
    // Who has closed the port in the midst of it knows, and may be leaving.
    if (sent.Fault().kind != LinkFault::Kind::PortClosed) Tell("¡Error!");
    return;
  }
  context_.IniCom_Click();  // the logger has left the dialogue
  Tell("NO CORTE LA ALIMENTACION MIENTRAS DURE LA ACTUALIZACION");
}

}  // namespace ostrel
