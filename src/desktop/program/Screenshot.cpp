#include "desktop/program/Screenshot.h"

#include <QCoreApplication>
#include <QCursor>
#include <QPixmap>
#include <algorithm>
#include <optional>

#include "desktop/forms/Words.h"
#include "desktop/program/Desktop.h"
#include "desktop/window/ScheduleDialog.h"
#include "host/SimulatedLoggers.h"
#include "host/System.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualFiles.h"
#include "platform/virtual/VirtualProcesses.h"
#include "platform/virtual/VirtualSettings.h"
#include "shell/NavigationTree.h"

namespace ostrel {
namespace {

constexpr const char* kConfiguration = "/picture.ocf";
constexpr const char* kTable = "/Lang.txt";
constexpr std::string_view kSchedule = "Schedule";

/// A dialog, drawn by itself as it comes up, if the key names one.
QPixmap DialogPicture(Desktop& desktop, VirtualDialogs& dialogs, const std::string& key) {
  Configurator& core = desktop.Core();
  QPixmap picture;
  dialogs.OnEveryModal([&](Modal& modal) {
    Form& form = AsForm(modal);
    const std::unique_ptr<FormView> view(MakeView(form, desktop.Window().Context()));
    view->show();
    picture = view->grab();
  });
  std::string code;
  if (key == core.actEdit.GetForm().Name()) core.actEdit.ShowModal();
  if (key == core.setTotal.GetForm().Name()) core.context.showTotal(0);
  if (key == core.expSetTotal.GetForm().Name()) core.context.showExpansionTotal(0);
  if (key == core.ayuda.GetForm().Name())
    core.context.showPulseCalculator(core.PageOf(PageId::Caudal)->GetForm().Get<TextBox>("Ratio"));
  if (key == core.ayudaHex.GetForm().Name()) core.context.showMaskCalculator();
  if (key == core.pwForm.GetForm().Name()) core.pwForm.ShowModal(code);
  if (key == core.langForm.GetForm().Name()) core.langForm.AskUser();
  dialogs.OnEveryModal({});
  return picture;
}

/// The schedule of the configuration, if the key names it.
QPixmap SchedulePicture(Desktop& desktop, const Clock& clock, const CommandLine& line) {
  if (line.page != kSchedule) return {};
  Configurator& core = desktop.Core();
  ScheduleDialog dialog(
      MakeSchedule(core.conf, {core.profile, kEveryFeature}, clock.LocalNow()), core.profile,
      [&core](std::string_view text) { return core.context.Translate(text); }, nullptr);
  dialog.show();
  QCoreApplication::processEvents();
  return dialog.grab();
}

/// Whether a key leads to a page for a model: by a node of its tree, or to one of the pages that no
/// model's tree has.
bool LeadsToPage(const TargetProfile& model, const std::string& key) {
  const auto nodes =
      BuildNavigationTree(model, [](std::string_view text) { return std::string(text); });
  if (std::ranges::find(nodes, key, &TreeNode::key) != nodes.end()) return true;
  const auto target = FindNodeTarget(key, model, true);
  return target &&
         (target->form == FormId(PageId::E_Aux) || target->form == FormId(PageId::Katodex));
}

QPixmap PagePicture(Desktop& desktop, const CommandLine& line) {
  MainWindow& window = desktop.Window();
  if (!line.page.empty()) window.GoTo(line.page);
  window.resize(line.size);
  window.show();
  window.setFocus();
  QCursor::setPos(window.mapToGlobal(window.rect().center()));
  window.Look();
  for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
  return window.grab();
}

}  // namespace

std::string TakeScreenshot(const CommandLine& line, const std::string& langFile) {
  QtEventLoop loop;
  VirtualSettings settings;
  settings.Set(kMaker, kProduct, "Idioma", std::to_string(line.language));
  settings.Set(kMaker, kProduct, "ComPort", "1");
  settings.Set(kMaker, kProduct, "Target",
               line.target.empty() ? TargetNamesOffered().front() : line.target);
  SystemFiles disk;
  VirtualFiles files;
  files.contents[kTable] = disk.Read(langFile).value_or("");
  if (!line.file.empty()) {
    const auto content = disk.Read(line.file);
    if (!content) return "cannot read " + line.file;
    files.contents[kConfiguration] = *content;
  }
  VirtualClock clock;
  VirtualDialogs dialogs;
  VirtualProcesses processes;
  LinePort noPort(loop);
  std::optional<SimulatedLoggers> simulated;
  if (line.demo) simulated.emplace(loop, clock);
  Desktop desktop({.loop = loop,
                   .port = simulated ? simulated->Port() : noPort,
                   .settings = settings,
                   .dialogs = dialogs,
                   .files = files,
                   .processes = processes,
                   .clock = clock},
                  {.programFolder = {}, .langFile = kTable, .ticking = true}, {});
  desktop.Start(line.file.empty() ? "" : kConfiguration);
  const Configurator& core = desktop.Core();
  if (!line.file.empty() &&
      !ReadConfiguration(files, kConfiguration, core.profile,
                         [](std::string_view text) { return std::string(text); }))
    return line.file + " is no configuration file";
  QPixmap picture = DialogPicture(desktop, dialogs, line.page);
  if (picture.isNull()) picture = SchedulePicture(desktop, clock, line);
  if (picture.isNull()) {
    if (!line.page.empty() && !LeadsToPage(core.profile, line.page))
      return "there is no page " + line.page + " for the " + core.profile.TargetName;
    picture = PagePicture(desktop, line);
  }
  return picture.save(ToQt(line.screenshot), "PNG") ? "" : "cannot write " + line.screenshot;
}

}  // namespace ostrel
