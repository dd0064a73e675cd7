#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <algorithm>

#include "desktop/forms/AccessKeys.h"
#include "desktop/forms/Icons.h"
#include "desktop/forms/Words.h"
#include "desktop/program/Language.h"
#include "desktop/session/FaultText.h"
#include "desktop/window/MainWindow.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "shell/Configurator.h"

namespace ostrel {
namespace {

constexpr qsizetype kCopiesOffered = 15;
constexpr int kTraceHeight = 170;
constexpr int kFindingsHeight = 130;

}  // namespace

void MainWindow::MakeToolBar() {
  bar_ = addToolBar(QString());
  bar_->setObjectName("Tools");
  bar_->setMovable(false);
  bar_->setContextMenuPolicy(Qt::PreventContextMenu);
  bar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar_->setIconSize({22, 22});
  open_ = AddAction(*bar_, Sign::Open, QKeySequence::Open, Asking([this] { Open(); }));
  save_ = AddAction(*bar_, Sign::Save, QKeySequence::Save, Asking([this] { Save(); }));
  saveAs_ =
      AddAction(*bar_, Sign::SaveAs, QKeySequence("Ctrl+Shift+S"), Asking([this] { SaveAs(); }));
  recentFiles_ = AddAction(*bar_, Sign::Recent, {}, {});
  AddMenu(recentFiles_, [this](QMenu& menu) { FillRecent(menu); });
  bar_->addSeparator();
  undo_ = AddAction(*bar_, Sign::Undo, QKeySequence::Undo, [this] { Undo(); });
  redo_ = AddAction(*bar_, Sign::Redo, QKeySequence::Redo, [this] { Redo(); });
  bar_->addSeparator();
  compare_ = AddAction(*bar_, Sign::Compare, {}, [this] { Compare(); });
  channels_ = AddAction(*bar_, Sign::Channels, {}, {});
  AddMenu(channels_, [this](QMenu& menu) { FillChannels(menu); });
  liveTools_ = AddAction(*bar_, Sign::Live, {}, {});
  auto* liveMenu = new QMenu(this);
  live_.AddTo(*liveMenu);
  SetMenu(liveTools_, liveMenu);
  traceSwitch_ = AddSwitch(*bar_, Sign::Trace, QKeySequence("Ctrl+T"), *trace_,
                           [this](bool on) { ShowTrace(on); });
  findingsSwitch_ =
      AddSwitch(*bar_, Sign::Findings, QKeySequence("Ctrl+E"), *findings_, [this](bool on) {
        findings_->setVisible(on);
        if (on) resizeDocks({findings_}, {kFindingsHeight}, Qt::Vertical);
      });
  bar_->addSeparator();
  MakeRarerTools();
  LetTabReachTools(*bar_);
  trace_->OnRecord = [this](bool on) { Asking([this, on] { Record(on); })(); };
  trace_->OnSave = [this] {
    parts_.guard([this] { SaveBeside(Words::tr("Trace"), "txt", trace_->Text()); });
  };
  auto* find = new QAction(this);
  find->setShortcut(QKeySequence::Find);
  connect(find, &QAction::triggered, this, [this] { tree_->FocusFilter(); });
  addAction(find);
}

/// One tool holds those that are wanted now and then: the bar is to have room for all the others in
/// a window of the usual size.
void MainWindow::MakeRarerTools() {
  more_ = AddAction(*bar_, Sign::More, QKeySequence(Qt::Key_F10), {});
  auto* menu = new QMenu(this);
  menu->setToolTipsVisible(true);
  SetMenu(more_, menu);
  schedule_ = AddAction(*menu, Sign::Schedule, {}, Asking([this] { ShowSchedule(); }));
  report_ = AddAction(*menu, Sign::Report, {}, Asking([this] { SaveReport(); }));
  history_ =
      AddAction(*menu, Sign::History, QKeySequence("Ctrl+H"), Asking([this] { ShowHistory(); }));
  safetyCopies_ = AddAction(*menu, Sign::Copies, {}, {});
  AddMenu(safetyCopies_, [this](QMenu& copies) { FillCopies(copies); });
  doctor_ = AddAction(*menu, Sign::Doctor, {}, Asking([this] { ShowDoctor(); }));
  menu->addSeparator();
  language_ = AddAction(*menu, Sign::Language, {}, Asking([this] { AskLanguage(); }));
}

QAction* MainWindow::AddAction(QWidget& place, Sign sign, QKeySequence keys,
                               std::function<void()> run) {
  QAction* action = place.addAction(MakeIcon(sign, palette()), QString());
  action->setShortcut(keys);
  if (run)
    connect(action, &QAction::triggered, this, [this, run = std::move(run)] { parts_.guard(run); });
  return action;
}

std::function<void()> MainWindow::Asking(std::function<void()> run) {
  return [this, run = std::move(run)] {
    configurator_.comms.Reading().WhenFree([this, run] { parts_.guard(run); });
  };
}

QAction* MainWindow::AddSwitch(QWidget& place, Sign sign, QKeySequence keys, QDockWidget& panel,
                               std::function<void(bool on)> show) {
  QAction* action = AddAction(place, sign, std::move(keys), {});
  action->setCheckable(true);
  connect(action, &QAction::toggled, this, std::move(show));
  connect(&panel, &QDockWidget::visibilityChanged, this, [action, &panel](bool) {
    if (panel.isHidden()) action->setChecked(false);
  });
  return action;
}

void MainWindow::AddMenu(QAction* action, std::function<void(QMenu&)> fill) {
  auto* menu = new QMenu(this);
  connect(menu, &QMenu::aboutToShow, this, [this, menu, fill = std::move(fill)] {
    menu->clear();
    parts_.guard([&] { fill(*menu); });
  });
  SetMenu(action, menu);
}

void MainWindow::SetMenu(QAction* action, QMenu* menu) {
  action->setMenu(menu);
  auto* button = qobject_cast<QToolButton*>(bar_->widgetForAction(action));
  if (!button) return;  // it stands in a menu
  button->setPopupMode(QToolButton::InstantPopup);
  connect(action, &QAction::triggered, button, [button] { button->showMenu(); });  // by its keys
}

void MainWindow::Retranslate() {
  // The texts of the table have no language as long as the question for it stands.
  const auto core = [this](std::string_view text, const char* own) {
    return following_ ? ToQt(configurator_.context.Translate(text)) : Words::tr(own);
  };
  const auto name = [](QAction* action, const QString& text, const QString& tip) {
    action->setText(text);
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty() ? tip : tip + " (" + keys + ")");
  };
  name(open_, core("Abrir", "Open"), Words::tr("Open a configuration file"));
  name(save_, core("Guardar", "Save"), Words::tr("Save the configuration to a file"));
  name(saveAs_, Words::tr("Save as"), Words::tr("Save the configuration to another file"));
  name(language_, core("Idioma", "Language"), Words::tr("Choose the language"));
  name(recentFiles_, Words::tr("Recent"), Words::tr("Files opened or saved lately"));
  name(safetyCopies_, Words::tr("Safety copies"),
       Words::tr("Configurations read from loggers or sent to them"));
  name(compare_, Words::tr("Compare"), Words::tr("Compare pages, logger, files and safety copies"));
  name(channels_, Words::tr("Channel"), Words::tr("Copy and paste channels and alarms"));
  name(schedule_, Words::tr("Schedule"), Words::tr("Show when the timers fire"));
  name(undo_, Words::tr("Undo"), Words::tr("Undo what was edited on a page"));
  name(redo_, Words::tr("Redo"), Words::tr("Do again what was undone"));
  name(report_, Words::tr("Report"), Words::tr("Save a commissioning report"));
  name(doctor_, Words::tr("Link doctor"), Words::tr("Find out why nothing answers at the port"));
  name(liveTools_, Words::tr("Live"), Words::tr("Plot live values, and accept the installation"));
  live_.Retranslate();
  name(history_, Words::tr("History"), Words::tr("Show what was done with loggers"));
  name(traceSwitch_, Words::tr("Trace"), Words::tr("Show what goes over the line"));
  name(findingsSwitch_, Words::tr("Findings"),
       Words::tr("Show what the check finds in the configuration"));
  name(more_, Words::tr("More"), Words::tr("Tools that are wanted now and then"));
  tree_->Retranslate();
  findings_->Retranslate();
  overview_.Forget();
  trace_->Retranslate();
  session_->Retranslate();
}

void MainWindow::Open() {
  if (!MayLeave()) return;
  navigation_.CommitFront();
  if (configurator_.AskAndOpen()) Opened();
}

void MainWindow::OpenPath(const std::string& path) {
  if (!parts_.platform.files.Exists(path)) {
    recent_.Remove(path);
    return TellMissing(path);
  }
  if (!MayLeave()) return;
  navigation_.CommitFront();
  configurator_.OpenFile(path);
  Opened();
}

void MainWindow::TellMissing(const std::string& path) {
  Tell(Words::tr("%1 does not exist.").arg(ToQt(path)));
}

void MainWindow::TakeFile() {
  if (const auto& lacking = configurator_.WhereFrom().lacking) {
    // Saving would make a cut file look whole: it goes to a file that the operator names.
    shownFile_.clear();
    Tell(SentenceOf(*lacking));
  } else if (FileDifferences()) {
    WorkOn(configurator_.ConfFilePath);
  }
}

bool MainWindow::IsFormerState(const std::string& path) const {
  const std::string absolute = parts_.platform.files.Absolute(path);
  const auto isIn = [&](const std::string& folder) {
    return absolute.starts_with(parts_.platform.files.Absolute(folder) + "/");
  };
  return !path.empty() && (isIn(copies_.Folder()) || isIn(parts_.dataFolder + "/history"));
}

void MainWindow::Opened() {
  ForgetSuccess();
  TakeFile();
  StartHistory();
  // The file may be of a model that has not the channel in front.
  if (!tree_->Has(shownNode_)) GoTo("General");
}

bool MainWindow::Save() {
  if (shownFile_.empty()) return SaveAs();
  navigation_.CommitFront();
  const auto saved = configurator_.SaveTo(shownFile_);
  return saved && Saved(*saved);
}

bool MainWindow::SaveAs() {
  navigation_.CommitFront();
  const auto saved = configurator_.AskAndSave();
  return saved && Saved(*saved);
}

bool MainWindow::Saved(const FileResult& result) {
  const std::string path = configurator_.ConfFilePath;
  if (!result.Ok()) {
    Tell(Words::tr("%1 could not be written: %2").arg(ToQt(path), ToQt(result.error)));
    return false;
  }
  WorkOn(path);
  // Blanks around a text, and letters that the file has no code for, do not come back.
  const auto differences = FileDifferences();
  if (differences && !differences->isSame) {
    const Difference& first = differences->differences.front();
    Tell(
        Words::tr("The file cannot keep %n text(s) as they are, the first of them %1 in %2: \"%3\" "
                  "reads back as \"%4\".",
                  nullptr, static_cast<int>(differences->differences.size()))
            .arg(ToQt(first.Key()), ToQt(first.Section()), ToQt(first.before), ToQt(first.after)));
  }
  return true;
}

void MainWindow::Tell(const QString& words) {
  parts_.platform.dialogs.ShowMessage({.text = FromQt(words),
                                       .title = configurator_.profile.TargetName,
                                       .icon = BoxIcon::Exclamation});
}

void MainWindow::WorkOn(const std::string& path) {
  unsaved_.Keep(configurator_.conf);
  const bool isFormer = IsFormerState(path);
  if (!isFormer) recent_.Add(path);
  shownFile_ = isFormer ? std::string() : path;
  ShowTitle();
}

void MainWindow::AskLanguage() {
  const auto before = configurator_.lang.SelectedLang();
  configurator_.AskLanguage();
  if (configurator_.lang.SelectedLang() == before) return;
  UseLanguage(LanguageCode(configurator_.lang));
  BuildTree();  // it is translated when it is built
  Retranslate();
  pages_->Redraw();
  Look();
}

void MainWindow::FillRecent(QMenu& menu) {
  for (const std::string& path : recent_.Paths()) {
    QString text = QDir::toNativeSeparators(ToQt(path));
    menu.addAction(text.replace(u'&', "&&"), this, Asking([this, path] { OpenPath(path); }));
  }
  if (menu.isEmpty()) menu.addAction(Words::tr("No files yet"))->setEnabled(false);
}

void MainWindow::FillCopies(QMenu& menu) {
  const QFileInfoList copies =
      QDir(ToQt(copies_.Folder())).entryInfoList({"*.ocf"}, QDir::Files, QDir::Time);
  for (const QFileInfo& copy : copies.first(std::min(copies.size(), kCopiesOffered)))
    menu.addAction(copy.completeBaseName(), this,
                   Asking([this, path = FromQt(copy.absoluteFilePath())] { OpenPath(path); }));
  if (menu.isEmpty()) menu.addAction(Words::tr("No copies yet"))->setEnabled(false);
  menu.addSeparator();
  menu.addAction(Words::tr("Show the folder"), this, [this] {
    parts_.guard([this] {
      parts_.platform.files.MakeFolder(copies_.Folder());
      QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(copies_.Folder())));
    });
  });
}

Schedule MainWindow::PresentSchedule() const {
  // What no logger has told counts as a firmware that can do everything.
  const std::int32_t features =
      configurator_.Connected ? configurator_.info.Features : kEveryFeature;
  return MakeSchedule(unsaved_.WithFront(), {configurator_.profile, features},
                      parts_.platform.clock.LocalNow());
}

void MainWindow::ShowSchedule() {
  ScheduleDialog dialog(PresentSchedule(), configurator_.profile, Translate(), this);
  dialog.exec();
}

void MainWindow::ShowTrace(bool on) {
  trace_->setVisible(on);
  if (on && !traceShown_) {
    traceShown_ = true;
    resizeDocks({trace_}, {kTraceHeight}, Qt::Vertical);
  }
  if (on) trace_->Follow();
}

void MainWindow::SaveBeside(const QString& kind, const QString& ending, const std::string& octets) {
  Asking([this, kind, ending, octets] {
    const auto path = parts_.platform.dialogs.ChooseFile(
        {.mode = FileQuestion::Mode::Save,
         .filter = FromQt(kind + "|*." + ending + "|" + Words::tr("All files") + "|*.*"),
         .overwritePrompt = true});
    if (!path) return;
    const FileResult saved = SaveWhole(parts_.platform.files, *path, octets);
    if (!saved.Ok())
      Tell(Words::tr("%1 could not be written: %2").arg(ToQt(*path), ToQt(saved.error)));
  })();
}

}  // namespace ostrel
