#include <array>
#include <utility>

#include "base/Scope.h"
#include "platform/Dialogs.h"
#include "shell/Configurator.h"
#include "shell/Orders.h"
#include "store/IniClass.h"

namespace ostrel {
namespace {

constexpr std::string_view kStampSection = "General";
constexpr std::string_view kStampKey = "VERSION";
constexpr std::string_view kFileFilter =
    "Archivo de configuracion OCF (*.ocf)|*.ocf|Todos los ficheros (*.*)|*.*";

/// Stamps and the models that they lead to. A stamp that is no type word changes the model and is
/// refused after that all the same.
constexpr std::array<std::pair<std::string_view, std::string_view>, 14> kStamps{{
    {"VR200", "Ostrel VR200"},
    {"PX-6000", "Ostrel VR200"},
    {"PX250", "Ostrel VR200"},
    {"TAVRO", "Tavro BP"},
    {"PX120-D", "Tavro BP"},
    {"PX-8000", "Tavro BP"},
    {"PX240", "Tavro BP"},
    {"OSTREL_KA2", "Ostrel KA2"},
    {"PX235", "Ostrel KA2"},
    {"PX PLUS", "Ostrel KA2"},
    {"OSTREL_KA1", "Ostrel KA1"},
    {"PX220", "Ostrel KA1"},
    {"TAVRO_BQ", "Tavro BQ"},
    {"OSTREL_S100", "Ostrel S100"},
}};

std::string_view ModelOfStamp(std::string_view stamp) {
  for (const auto& [known, model] : kStamps)
    if (known == stamp) return model;
  return {};
}

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

}  // namespace

FileResult Configurator::SaveConf() {
  const Hourglass hourglass(general.GetForm());
  IniClass document(platform_.files);
  document.NewINI();
  document.WriteKey(kStampSection, kStampKey, profile.TargetType);
  for (const FileTurn& turn : kFileOrder)
    if (Page* page = PageNamed(turn.page); page && turn.takesPart(profile))
      page->SaveConf(document);
  FileResult result = document.SaveINI(ConfFilePath);
  iniTool.Forget();
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
    if (Page* page = PageNamed(turn.page); page && turn.takesPart(profile)) page->RestoreConf();
  return RestoreResult::Loaded;
}

RestoreResult Configurator::OpenFile(const std::string& path) {
  ConfFilePath = path;
  const RestoreResult result = RestoreConf();
  general.CSMCheck();
  general.SelectFirstPhone();
  return result;
}

bool Configurator::AskAndOpen() {
  const auto path = platform_.dialogs.ChooseFile(
      {.mode = FileQuestion::Mode::Open, .filter = context.Translate(kFileFilter)});
  if (!path) return false;
  OpenFile(*path);
  return true;
}

std::optional<FileResult> Configurator::AskAndSave() {
  const auto path = platform_.dialogs.ChooseFile({.mode = FileQuestion::Mode::Save,
                                                  .filter = context.Translate(kFileFilter),
                                                  .overwritePrompt = true,
                                                  .suggested = ConfFilePath});
  if (!path) return {};
  ConfFilePath = *path;
  return ConfFilePath.empty() ? FileResult{} : SaveConf();
}

}  // namespace ostrel
