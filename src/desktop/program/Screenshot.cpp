#include "desktop/program/Screenshot.h"

#include <QAction>
#include <QCoreApplication>
#include <QCursor>
#include <QPainter>
#include <QPixmap>
#include <QTextDocument>
#include <algorithm>
#include <optional>

#include "desktop/dialogs/DoctorDialog.h"
#include "desktop/dialogs/HistoryDialog.h"
#include "desktop/dialogs/ScheduleView.h"
#include "desktop/forms/Words.h"
#include "desktop/program/Desktop.h"
#include "desktop/program/Language.h"
#include "host/GrowingFiles.h"
#include "host/SimulatedLoggers.h"
#include "host/System.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualFiles.h"
#include "platform/virtual/VirtualLedger.h"
#include "platform/virtual/VirtualLoop.h"
#include "platform/virtual/VirtualProcesses.h"
#include "platform/virtual/VirtualSettings.h"
#include "shell/navigation/NavigationTree.h"
#include "shell/report/Commissioning.h"
#include "shell/writing/GuardedWrite.h"

namespace ostrel {
namespace {

constexpr const char* kConfiguration = "/picture.ocf";
constexpr const char* kTable = "/Lang.txt";
constexpr std::string_view kSchedule = "Schedule";
constexpr std::string_view kDoctor = "Doctor";
constexpr std::string_view kReport = "Report";
constexpr std::string_view kHistoryPage = "History";
// Pages on which work is to be seen, and a page that no node leads to.
constexpr std::string_view kTestPassed = "TestPassed";
constexpr std::string_view kTestFailed = "TestFailed";
constexpr std::string_view kPlot = "Plot";
constexpr std::string_view kCathodic = "T_Real_Katodex";

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

/// A device that never answers, for a picture of the link doctor.
struct DeadDevice final : LineDevice {
  void Receive(std::string_view) override {}
  void SetTerminalReady(bool) override {}
};

/// The machine's view of that device.
struct PicturedInspector final : PortInspector {
  PortFacts Inspect(int) override {
    return {.device = "/dev/ttyUSB0", .exists = true, .isPermitted = true, .group = "dialout"};
  }
};

/// The link doctor before a silent line, if the key names it.
QPixmap DoctorPicture(EventLoop& loop, const Platform& platform, const CommandLine& line) {
  if (line.page != kDoctor) return {};
  constexpr int kNumber = 33;
  DeadDevice device;
  LinePort port(loop);
  port.AddDevice(kNumber, "/dev/ttyUSB0", "", device);
  port.SetLines(kNumber, {.clearToSend = true, .dataSetReady = true});
  PicturedInspector inspector;
  DoctorDialog dialog("COM33 - /dev/ttyUSB0", nullptr);
  DoctorQuestion question{.port = kNumber};
  question.onSymptom = [&dialog](const Symptom& symptom) { dialog.Add(symptom); };
  dialog.Finish(LinkDoctor(platform.With(port), inspector, std::move(question)).Run());
  dialog.show();
  QCoreApplication::processEvents();
  return dialog.grab();
}

/// The history of a session with the simulated logger of the model, if the key names it.
QPixmap HistoryPicture(Desktop& desktop, VirtualLedger& ledger, SimulatedLoggers* loggers,
                       const CommandLine& line) {
  if (line.page != kHistoryPage || !loggers) return {};
  Configurator& core = desktop.Core();
  if (core.session.Open(loggers->NumberOf(core.profile.TargetName), {})) {
    core.session.Download();
    core.SaveConf();
    core.comms.SetTotalCNT(0, 1500);
    core.conf.General.DNAME += " 2";
    WriteGuarded(core, {.read = [&core] { return core.session.Download(); },
                        .write = [&core] { return core.session.Upload(); },
                        .keep = [](const DeviceConf&) { return true; }});
    core.session.Close(false);
  }
  HistoryDialog dialog(ledger, nullptr);
  dialog.show();
  QCoreApplication::processEvents();
  return dialog.grab();
}

/// The start of the commissioning report, if the key names it.
QPixmap ReportPicture(Desktop& desktop, const Platform& platform, const CommandLine& line) {
  if (line.page != kReport) return {};
  Configurator& core = desktop.Core();
  const Report report = CommissioningReport(
      {.configuration = {core.profile, core.conf}, .madeAt = platform.clock.LocalNow()},
      {.code = FromQt(LanguageCode(core.lang)),
       .say = [](std::string_view text) { return FromQt(Words::tr(std::string(text).c_str())); },
       .translate = [&core](std::string_view text) { return core.context.Translate(text); }},
      platform.files);
  QTextDocument text;
  text.setHtml(ToQt(ReportHtml(report)));
  text.setTextWidth(line.size.width());
  QPixmap picture(line.size);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  text.drawContents(&painter, QRectF(picture.rect()));
  return picture;
}

/// Whether a picture is of a board at the end of its factory test.
bool IsTestPicture(const std::string& key) { return key == kTestPassed || key == kTestFailed; }

/// The node whose page a picture is of.
std::string NodeOfPicture(const std::string& key) {
  if (IsTestPicture(key)) return "TEST";
  return key == kPlot ? "T_Real" : key;
}

/// Whether a key leads to a page for a model: by a node of its tree, or to one of the pages that no
/// model's tree has.
bool LeadsToPage(const TargetProfile& model, const std::string& key) {
  const auto nodes =
      BuildNavigationTree(model, [](std::string_view text) { return std::string(text); });
  const std::string node = NodeOfPicture(key);
  if (node == kCathodic || std::ranges::find(nodes, node, &TreeNode::key) != nodes.end())
    return true;
  const auto target = FindNodeTarget(node, model, true);
  return target && (node == "TEST" || target->form == FormId(PageId::E_Aux) ||
                    target->form == FormId(PageId::Katodex));
}

/// A logger for a picture; where its factory test is shown it is a new board, a bad one for a test
/// that fails.
sim::LoggerOptions PicturedLogger(sim::Model model, const std::string& key) {
  sim::LoggerOptions options = sim::MakeDefaultOptions(model);
  if (IsTestPicture(key)) options.serial = model == sim::Model::KA2 ? "-1" : "0";
  if (key != kTestFailed) return options;
  sim::FixtureScript& fixture = options.fixture;
  fixture.driven[5].analogs[1] = 2900;
  fixture.inputsOn = 84;
  fixture.gsm = {{Duration{}, 6}};
  return options;
}

/// The time that passes on the page in front, with a session, until the picture is taken.
Duration TimeOfPicture(const std::string& key) {
  if (key == kPlot) return std::chrono::minutes(12);
  if (IsTestPicture(key)) return std::chrono::seconds(2);
  if (key == "T_Real" || key == kCathodic) return std::chrono::milliseconds(1200);
  return {};
}

/// Lets the work be done that a picture shows, with the simulated logger of the model.
void WorkForPicture(Desktop& desktop, const SimulatedLoggers& loggers, VirtualLoop& loop,
                    const std::string& key) {
  Configurator& core = desktop.Core();
  const Duration time = TimeOfPicture(key);
  if (time == Duration{} || !core.session.Open(loggers.NumberOf(core.profile.TargetName), ""))
    return;
  if (IsTestPicture(key)) {
    loop.RunFor(time);  // the page learns of the session
    core.ToolOf(std::get<ToolId>(FindNodeTarget("TEST", core.profile, true)->form))
        ->GetForm()
        .Get<Button>("Command1")
        .Click();
  }
  if (key == kPlot)
    for (QAction* action : desktop.Window().actions())
      if (action->shortcut() == QKeySequence("Ctrl+L")) action->trigger();
  loop.RunFor(time);
}

QPixmap PagePicture(Desktop& desktop, const CommandLine& line, const std::function<void()>& work) {
  MainWindow& window = desktop.Window();
  if (line.page == kCathodic)
    desktop.Navigator().ShowForm(ToolId::T_Real_Katodex);
  else if (!line.page.empty())
    window.GoTo(NodeOfPicture(line.page));
  window.resize(line.size);
  window.show();
  window.setFocus();
  QCursor::setPos(window.mapToGlobal(window.rect().center()));
  window.Look();
  work();
  for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
  return window.grab();
}

}  // namespace

std::string TakeScreenshot(const CommandLine& line, const std::string& langFile) {
  VirtualLoop loop;
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
  VirtualClock clock({2011, 3, 14, 9, 26, 53}, loop);
  VirtualLedger ledger;
  VirtualDialogs dialogs;
  VirtualProcesses processes;
  LinePort noPort(loop);
  std::optional<SimulatedLoggers> simulated;
  if (line.demo)
    simulated.emplace(loop, clock,
                      [&](sim::Model model) { return PicturedLogger(model, line.page); });
  BlindInspector inspector;
  const Platform platform{.loop = loop,
                          .port = simulated ? simulated->Port() : noPort,
                          .settings = settings,
                          .dialogs = dialogs,
                          .files = files,
                          .processes = processes,
                          .clock = clock,
                          .ledger = &ledger};
  Desktop desktop(platform,
                  {.programFolder = {},
                   .langFile = kTable,
                   .openLog = OpenLog,
                   .openRecording = OpenRecording,
                   .station = {"Ana", "Puesto 1", "/factory"},
                   .factory = line.factory || IsTestPicture(line.page),
                   .ticking = true},
                  {}, inspector);
  desktop.Start(line.file.empty() ? "" : kConfiguration);
  const Configurator& core = desktop.Core();
  if (!line.file.empty() &&
      !ReadConfiguration(files, kConfiguration, core.profile,
                         [](std::string_view text) { return std::string(text); }))
    return line.file + " is no configuration file";
  QPixmap picture = DialogPicture(desktop, dialogs, line.page);
  if (picture.isNull()) picture = SchedulePicture(desktop, clock, line);
  if (picture.isNull()) picture = DoctorPicture(loop, platform, line);
  if (picture.isNull()) picture = ReportPicture(desktop, platform, line);
  if (picture.isNull())
    picture = HistoryPicture(desktop, ledger, simulated ? &*simulated : nullptr, line);
  if (picture.isNull()) {
    if (!line.page.empty() && !LeadsToPage(core.profile, line.page))
      return "there is no page " + line.page + " for the " + core.profile.TargetName;
    picture = PagePicture(desktop, line, [&] {
      if (simulated) WorkForPicture(desktop, *simulated, loop, line.page);
    });
  }
  return picture.save(ToQt(line.screenshot), "PNG") ? "" : "cannot write " + line.screenshot;
}

}  // namespace ostrel
