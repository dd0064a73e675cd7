#include "desktop/program/Desktop.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>

#include "base/Scope.h"
#include "desktop/forms/Words.h"
#include "desktop/program/Language.h"

namespace ostrel {

Desktop::Desktop(const Platform& platform, const ConfiguratorOptions& options,
                 const std::string& dataFolder, PortInspector& inspector)
    : port_(platform.port),
      platform_(platform.With(port_)),
      configurator_(platform_, options),
      navigation_(configurator_),
      window_({.configurator = configurator_,
               .navigation = navigation_,
               .platform = platform_,
               .guard = [this](const std::function<void()>& run) { Guarded(run); },
               .dataFolder = dataFolder,
               .port = port_,
               .inspector = inspector}) {
  configurator_.context.clipboardText = [] { return FromQt(QGuiApplication::clipboard()->text()); };
}

void Desktop::Start(const std::string& file) {
  // The first questions come ahead of the choice of a language.
  UseLanguage(QLocale::system().language() == QLocale::Spanish ? "es" : "en");
  window_.Retranslate();
  const bool isMissing = !file.empty() && !platform_.files.Exists(file);
  configurator_.Start(file.empty() || isMissing ? std::string() : '"' + file + '"');
  UseLanguage(LanguageCode(configurator_.lang));
  navigation_.HideAll();
  if (configurator_.Universal) navigation_.ShowForm(ToolId::TargetSelect);
  if (!file.empty()) navigation_.ShowForm(PageId::General);
  window_.Follow();
  if (isMissing) window_.TellMissing(file);
}

void Desktop::ShowAndStart(const std::string& file) {
  window_.show();
  Start(file);
}

void Desktop::Guarded(const std::function<void()>& run) {
  try {
    run();
  } catch (...) {
    ShowFault(std::current_exception());
  }
}

void Desktop::ShowFault(std::exception_ptr fault) {
  if (faultBoxUp_) return;  // a fault that repeats must not stack boxes
  const Lent up(faultBoxUp_, true);
  std::string words;
  try {
    std::rethrow_exception(fault);
  } catch (const std::exception& exception) {
    words = exception.what();
  } catch (...) {
    words = "?";
  }
  platform_.dialogs.ShowMessage(
      {.text =
           FromQt(Words::tr("The program met an internal error and goes on: %1").arg(ToQt(words))),
       .title = configurator_.profile.TargetName,
       .icon = BoxIcon::Exclamation});
}

}  // namespace ostrel
