#include "base/CodePage.h"
#include "base/Scope.h"
#include "blocks/Configuration.h"
#include "blocks/Orders.h"
#include "platform/Dialogs.h"
#include "shell/Configurator.h"
#include "shell/files/ConfigurationFile.h"
#include "shell/files/ForeignKeys.h"
#include "shell/writing/WriteDoubts.h"
#include "store/IniClass.h"

// What the configurator does with its file.

namespace ostrel {
namespace {

constexpr std::string_view kFileFilter =
    "Archivo de configuracion OCF (*.ocf)|*.ocf|Todos los ficheros (*.*)|*.*";

/// Shows the wait pointer until the end of a scope.
class Hourglass {
 public:
  explicit Hourglass(Form& form) : form_(form) { form.SetMousePointer(Pointer::Hourglass); }
  ~Hourglass() { form_.SetMousePointer(Pointer::Default); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Form& form_;
};

/// A file that gets its first password is from then on its owner's alone. One that held a password
/// before is read by whom its owner let read it.
Readers ReadersOf(const IniClass& document, IniTool& former, const std::string& path) {
  bool holds = false;
  bool held = false;
  for (const char* key : {"APN_PASS", "FTP_PASS"}) {
    const std::string* password = document.Find("GPRS", key);
    holds |= password && !password->empty();
    held |= !former.ProfileRead("GPRS", key, path).empty();
  }
  return holds && !held ? Readers::OwnerAlone : Readers::AsBefore;
}

}  // namespace

FileResult Configurator::SaveConf(Replacing replacing) {
  const Hourglass hourglass(general.GetForm());
  IniClass document(platform_.files);
  document.NewINI();
  document.WriteKey(kStampSection, kStampKey, profile.TargetType);
  for (const FileTurn& turn : kFileOrder)
    if (Page* page = PageOf(turn.page); page && turn.takesPart(profile)) page->SaveConf(document);
  iniTool.Forget();
  FileResult result =
      document.SaveINI(ConfFilePath, replacing, ReadersOf(document, iniTool, ConfFilePath));
  iniTool.Forget();
  if (result.Ok()) ledger.Saved(ConfFilePath, ToCodePage(document.OutputINI()));
  return result;
}

RestoreResult Configurator::RestoreConf() {
  iniTool.Forget();
  const std::string stamp(iniTool.ProfileRead(kStampSection, kStampKey, ConfFilePath));
  if (stamp != profile.TargetType) {
    if (const std::string name(ModelOfStamp(stamp)); !name.empty()) {
      platform_.dialogs.ShowMessage(
          {.text = context.Translate("El archivo de configuracion es de un modelo distinto al "
                                     "seleccionado, se cambiara la seleccion a ") +
                   name,
           .title = context.Translate("Aviso")});
      TargetDeviceChange(name);
    }
  }
  const Hourglass hourglass(general.GetForm());
  const AtEnd forgotten([this] { iniTool.Forget(); });
  // An empty stamp fits no model, not even the absence of one.
  if (stamp.empty() || stamp != profile.TargetType) {
    platform_.dialogs.ShowMessage(
        {.text = context.Translate("No es un archivo de configuracion valido"),
         .title = profile.TargetName});
    return RestoreResult::NotAConfiguration;
  }
  for (const FileTurn& turn : kFileOrder)
    if (Page* page = PageOf(turn.page); page && turn.takesPart(profile)) page->RestoreConf();
  ledger.TakeFile(ConfFilePath);
  const auto translate = [this](std::string_view text) { return context.Translate(text); };
  origin_ = {true, WhatLacks({profile, conf}, ConfFilePath, platform_.files, translate)};
  return RestoreResult::Loaded;
}

RestoreResult Configurator::OpenFile(const std::string& path) {
  if (Connected && OnOtherModel) {
    iniTool.Forget();
    const std::string_view model =
        ModelOfStamp(iniTool.ProfileRead(kStampSection, kStampKey, path));
    if (!model.empty() && model != profile.TargetName && !OnOtherModel(std::string(model)))
      return RestoreResult::Declined;
  }
  ConfFilePath = path;
  const RestoreResult result = RestoreConf();
  general.CSMCheck();
  general.SelectFirstPhone();
  return result;
}

bool Configurator::AskAndOpen() {
  const auto path = platform_.dialogs.ChooseFile(
      {.mode = FileQuestion::Mode::Open, .filter = context.Translate(kFileFilter)});
  return path && OpenFile(*path) != RestoreResult::Declined;
}

std::optional<FileResult> Configurator::AskAndSave() {
  const auto path = platform_.dialogs.ChooseFile({.mode = FileQuestion::Mode::Save,
                                                  .filter = context.Translate(kFileFilter),
                                                  .overwritePrompt = true,
                                                  .suggested = ConfFilePath});
  if (!path) return {};
  return SaveTo(*path);
}

std::optional<FileResult> Configurator::SaveTo(const std::string& path) {
  if (OnForeignKeys) {
    const auto lost = ForeignKeys(platform_.files, path, profile);
    if (!lost.empty() && !OnForeignKeys(path, lost)) return {};
  }
  Replacing replacing = Replacing::Unprotected;
  if (const FileResult may = platform_.files.MayReplace(path); !may.Ok() && OnProtected) {
    if (!OnProtected(path, may.error)) return {};
    replacing = Replacing::Any;
  }
  ConfFilePath = path;
  return ConfFilePath.empty() ? FileResult{} : SaveConf(replacing);
}

}  // namespace ostrel
