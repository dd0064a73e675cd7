#include "desktop/window/MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/dialogs/CompareWindow.h"
#include "desktop/forms/Icons.h"
#include "desktop/forms/Words.h"
#include "desktop/session/FaultText.h"
#include "platform/Settings.h"
#include "shell/Configurator.h"
#include "shell/files/ForeignKeys.h"
#include "shell/navigation/NodeMarks.h"

namespace ostrel {
namespace {

constexpr int kTreeWidth = 230;
constexpr QSize kFirstSize{1280, 720};
constexpr std::string_view kWindowPart = "Window";
constexpr std::string_view kPlace = "Place";
constexpr std::string_view kTimersNode = "Timer";

}  // namespace

MainWindow::MainWindow(const WindowParts& parts)
    : parts_(parts),
      configurator_(parts.configurator),
      navigation_(parts.navigation),
      recent_(parts.platform.settings),
      copies_(parts.platform.files, parts.platform.clock, parts.dataFolder),
      unsaved_(configurator_, navigation_),
      ports_(configurator_.general.Session().Puerto, parts.platform.port, parts.platform.loop,
             parts.guard),
      tree_(new TreePane(this)),
      pages_(new PageArea([this] { return Context(); }, this)),
      notes_(new QLabel(this)),
      group_(new GroupTable(this)),
      timers_(new ScheduleView(this)),
      session_(new SessionBar(this)),
      fault_(new FaultNote("FaultStrip", this)),
      traceLog_(parts.platform.loop, parts.platform.clock),
      trace_(new TraceView(traceLog_, this)),
      findings_(new FindingsPanel(this)),
      live_({.window = *this,
             .configurator = configurator_,
             .platform = parts.platform,
             .guard = parts.guard,
             .dataFolder = parts.dataFolder,
             .save = [this](const QString& kind, const QString& ending,
                            const std::string& octets) { SaveBeside(kind, ending, octets); },
             .goTo = [this](const std::string& node) { GoTo(node); }}),
      overview_({configurator_, unsaved_, *tree_, *pages_, *group_, *findings_}) {
  auto* splitter = new QSplitter(this);
  auto* sheet = new QWidget(this);
  auto* sheets = new QVBoxLayout(sheet);
  sheets->setContentsMargins(0, 0, 0, 0);
  sheets->addWidget(pages_, 3);
  sheets->addWidget(notes_);
  notes_->setObjectName("Notes");
  notes_->setWordWrap(true);
  notes_->setContentsMargins(16, 0, 16, 6);
  notes_->hide();
  sheets->addWidget(group_, 2);
  group_->hide();
  sheets->addWidget(timers_, 3);
  timers_->setObjectName("Timers");
  timers_->hide();
  splitter->addWidget(tree_);
  splitter->addWidget(sheet);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({kTreeWidth, kFirstSize.width() - kTreeWidth});
  splitter->setChildrenCollapsible(false);
  auto* centre = new QWidget(this);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(fault_);
  column->addWidget(splitter, 1);
  fault_->setContentsMargins(8, 0, 8, 0);
  setCentralWidget(centre);
  addDockWidget(Qt::BottomDockWidgetArea, trace_);
  trace_->hide();
  addDockWidget(Qt::BottomDockWidgetArea, findings_);
  findings_->hide();
  statusBar()->show();
  MakeToolBar();
  MakeSessionBar();
  resize(kFirstSize);
  RestorePlace();
  FitToScreen();
  setWindowIcon(ProgramIcon());
  tree_->OnNode = [this](const std::string& key) { parts_.guard([&] { GoTo(key); }); };
  group_->OnChannel = [this](const std::string& key) { parts_.guard([&] { GoTo(key); }); };
  timers_->OnTimer = [this](const SectionMeta& section, int timer) {
    parts_.guard([&] { GoToTimer(section, timer); });
  };
  findings_->OnFinding = [this](PageId page, const FieldId& field) {
    parts_.guard([&] { GoToField(page, field); });
  };
  pages_->OnChanged = [this] {
    const FormView* front = pages_->Front();
    if (front && front->GetForm().MousePointer() == Pointer::Hourglass)
      setCursor(Qt::BusyCursor);
    else
      unsetCursor();
  };
  pages_->OnControlChanged = [this] { unsaved_.Touch(); };
  pages_->OnNotesChanged = [this] { ShowNotes(); };
  configurator_.comms.Trace = [this](const std::string& line) { traceLog_.Add(line); };
  navigation_.OnTargetChanged = [this] {
    BuildTree();
    shownFile_.clear();  // it is of the former model
    ForgetSuccess();
    unsaved_.Touch();
    StartHistory();
  };
  configurator_.OnForeignKeys = [this](const std::string& path,
                                       const std::vector<std::string>& lost) {
    return MayLose(path, lost);
  };
  configurator_.OnProtected = [this](const std::string& path, const std::string& why) {
    return MayReplace(path, why);
  };
  configurator_.OnOtherModel = [this](const std::string& model) { return MayChangeModel(model); };
  configurator_.context.mayWriteVoiceList = [this](const ConfAutVoz& list) {
    return MayWriteList(list);
  };
  configurator_.session.ServeRead = [this] { parts_.guard([this] { Read(); }); };
  configurator_.session.ServeWrite = [this] { parts_.guard([this] { Write(); }); };
  configurator_.session.OnModelDoubt = [this](const Phrase& doubt) { Tell(SentenceOf(doubt)); };
  configurator_.ledger.OnFault = [this](const std::string& why) { TellLedgerFault(why); };
  configurator_.context.repaintTree = Following(&MainWindow::PaintTree);
  navigation_.OnFrontChanged = Following(&MainWindow::ShowFront);
  configurator_.session.OnStateChanged = Following(&MainWindow::ShowSession);
  configurator_.session.OnTick = Following(&MainWindow::Look);
  configurator_.session.Watch().OnStep = Following(&MainWindow::ShowTransfer);
  configurator_.session.OnTransferEnded = [this](const TransferEnd& end) {
    if (following_) parts_.guard([&] { TransferEnded(end); });
  };
  Retranslate();
}

MainWindow::~MainWindow() {
  Record(false);
  LetGo();
}

std::function<void()> MainWindow::Following(void (MainWindow::*react)()) {
  return [this, react] {
    if (following_) parts_.guard([&] { (this->*react)(); });
  };
}

void MainWindow::LetGo() {
  SessionDriver& session = configurator_.session;
  session.OnStateChanged = session.OnTick = session.Watch().OnStep = nullptr;
  session.OnTransferEnded = nullptr;
  session.ServeRead = session.ServeWrite = nullptr;
  session.OnModelDoubt = nullptr;
  configurator_.comms.Trace = nullptr;
  configurator_.ledger.OnFault = nullptr;
  configurator_.OnForeignKeys = nullptr;
  configurator_.OnProtected = nullptr;
  configurator_.OnOtherModel = nullptr;
  configurator_.context.repaintTree = nullptr;
  configurator_.context.mayWriteVoiceList = nullptr;
  navigation_.OnTargetChanged = navigation_.OnFrontChanged = nullptr;
}

LayoutContext MainWindow::Context() {
  return {
      .guard =
          [this](const std::function<void()>& run) {
            parts_.guard(run);
            unsaved_.Touch();
          },
      .portText = [this](const ListRow& row) { return ports_.RowText(row); },
      .wordText =
          [this](const ListRow& row) { return ToQt(configurator_.context.Translate(row.text)); }};
}

void MainWindow::Follow() {
  following_ = true;
  ports_.Start();
  BuildTree();  // the model was chosen ahead of the language
  Retranslate();
  pages_->Redraw();
  ShowFront();
  shownNode_ = configurator_.general.GetForm().Visible() ? "General" : "Tavro";
  tree_->Select(shownNode_);
  tree_->Tree().setFocus();
  unsaved_.Keep(unsaved_.WithFront());
  TakeFile();
  StartHistory();
  Look();
  overview_.ShowNode(shownNode_);
  TellInterrupted();
}

std::function<std::string(std::string_view)> MainWindow::Translate() const {
  return [this](std::string_view text) { return configurator_.context.Translate(text); };
}

void MainWindow::BuildTree() {
  auto nodes = BuildNavigationTree(configurator_.profile, Translate());
  for (TreeNode& node : nodes)
    if (node.key == "Grupos") node.text = FromQt(Words::tr("Groups"));
  if (configurator_.HasFactoryNode())
    if (auto node = FactoryNode(configurator_.profile)) nodes.push_back(std::move(*node));
  tree_->SetNodes(nodes);
  tree_->Select(shownNode_);
  PaintTree();
  overview_.Forget();
}

void MainWindow::PaintTree() { tree_->Paint(RedNodes(configurator_.conf), Words::tr("In use")); }

bool MainWindow::GoTo(const std::string& key) {
  if (navigation_.NodeClick(key) == NodeResult::Rests) return false;
  NoteEdits();  // of the page that was left
  shownNode_ = key;
  tree_->Select(key);
  ShowGroup(key);
  return true;
}

void MainWindow::ShowGroup(const std::string& key) {
  const bool isGroup = PageOfGroup(key).has_value();
  const bool hasPage = FindNodeTarget(key, configurator_.profile, false).has_value();
  // Some groups have a page of their own, which stands above the table.
  const bool isTimers = key == kTimersNode;
  const bool isPage = isReading_ || hasPage || !(isGroup || isTimers);
  pages_->setVisible(isPage);
  if (!isPage) notes_->hide();
  group_->setVisible(isGroup && !isReading_);
  timers_->setVisible(isTimers && !isReading_);
  ShowTimers();
  overview_.ShowNode(key);
}

void MainWindow::ShowTimers() {
  if (timers_->isHidden() || configurator_.session.OwnsModel()) return;
  timersSeen_ = unsaved_.Touches();
  timers_->StandAsPage(tree_->TextOf(kTimersNode));
  timers_->ShowSchedule(PresentSchedule(), configurator_.profile, Translate());
}

void MainWindow::GoToTimer(const SectionMeta& section, int timer) {
  for (const ConstField& field : FieldsOf(std::as_const(configurator_.conf), configurator_.profile))
    if (field.id.section == &section) return static_cast<void>(GoTo(NodeOf(field.page, timer)));
}

void MainWindow::GoToField(PageId page, const FieldId& field) {
  const std::string node = NodeOf(page, field.channel);
  if (node.empty() || !GoTo(node)) return;
  FormView* front = pages_->Front();
  if (!front) return;
  const Form& form = front->GetForm();
  const std::string config = "Config" + std::to_string(field.slot.config);
  if (form.Contains(config)) form.Get<OptionButton>(config).SetSelected(true);
  if (QWidget* control = front->WidgetOf(ControlOf(form, field))) control->setFocus();
  overview_.ShowNode(node);
}

void MainWindow::ShowFront() {
  unsaved_.Touch();
  if (Form* front = navigation_.Front())
    pages_->ShowForm(*front);
  else
    pages_->ShowEmpty();
  ShowSession();
  ShowNotes();
}

void MainWindow::ShowNotes() {
  constexpr qsizetype kShown = 2;
  const FormView* front = pages_->Front();
  QStringList notes = front ? front->Notes() : QStringList();
  const qsizetype more = notes.size() - kShown;
  if (more > 0) {
    notes = notes.first(kShown);
    notes << Words::tr("%n more", nullptr, static_cast<int>(more));
  }
  notes_->setText(notes.isEmpty() ? QString() : QString(u'\u26A0') + u' ' + notes.join(u'\n'));
  notes_->setVisible(!notes.isEmpty());
}

void MainWindow::Look() {
  ShowSession();
  ShowTitle();
  overview_.Look();
  if (timersSeen_ != unsaved_.Touches()) ShowTimers();
  if (comparing_ && comparingSeen_ != unsaved_.Touches() && !configurator_.session.OwnsModel()) {
    comparingSeen_ = unsaved_.Touches();
    comparing_->Look();
  }
  live_.Look(shownFile_);
  OfferWayOut();
}

void MainWindow::ShowTitle() {
  QString title = ToQt(configurator_.MainCaption()) + "[*]";
  if (!shownFile_.empty())
    title = ToQt(shownFile_).section(u'/', -1) + "[*] - " + ToQt(configurator_.MainCaption());
  // Either tells the display, and wakes it, even where nothing has changed.
  if (windowTitle() != title) setWindowTitle(title);
  if (isWindowModified() != unsaved_.Changed()) setWindowModified(unsaved_.Changed());
  if (isWindowModified()) ForgetSuccess();
  if (undoSeen_ != unsaved_.Touches()) ShowUndo();
}

std::optional<ModelConfiguration> MainWindow::ReadFile(const std::string& path) const {
  return ReadConfiguration(parts_.platform.files, path, configurator_.profile, Translate());
}

std::optional<Comparison> MainWindow::FileDifferences() const {
  const auto file = ReadFile(configurator_.ConfFilePath);
  if (!file || file->profile.TargetName != configurator_.profile.TargetName) return {};
  return ostrel::Compare({configurator_.profile, configurator_.conf}, *file);
}

bool MainWindow::MayLose(const std::string& path, const std::vector<std::string>& lost) {
  const BoxAnswer answer = parts_.platform.dialogs.ShowMessage(
      {.text = FromQt(Words::tr("%1 holds what this program does not write and would lose: %2. "
                                "Replace it?")
                          .arg(ToQt(path), ToQt(ForeignKeysText(lost)))),
       .title = configurator_.profile.TargetName,
       .icon = BoxIcon::Question,
       .buttons = BoxButtons::YesNo,
       .prefersNo = true});
  return answer == BoxAnswer::Yes;
}

bool MainWindow::MayReplace(const std::string& path, const std::string& why) {
  const BoxAnswer answer = parts_.platform.dialogs.ShowMessage(
      {.text = FromQt(Words::tr("%1 is protected: %2. Replace it all the same?")
                          .arg(ToQt(path), Words::tr(why.c_str()))),
       .title = configurator_.profile.TargetName,
       .icon = BoxIcon::Question,
       .buttons = BoxButtons::YesNo,
       .prefersNo = true});
  return answer == BoxAnswer::Yes;
}

bool MainWindow::MayLeave() {
  unsaved_.Touch();
  if (!unsaved_.Changed()) return true;
  QMessageBox box(QMessageBox::NoIcon, ToQt(configurator_.profile.TargetName),
                  Words::tr("The configuration has changes that are neither saved nor sent."),
                  QMessageBox::NoButton, this);
  box.setIconPixmap(BoxPicture(BoxIcon::Question));
  QPushButton* save = box.addButton(Words::tr("&Save"), QMessageBox::AcceptRole);
  QPushButton* discard =
      box.addButton(Words::tr("&Go on without saving"), QMessageBox::DestructiveRole);
  QPushButton* stay = box.addButton(Words::tr("&Cancel"), QMessageBox::RejectRole);
  box.setDefaultButton(save);
  box.setEscapeButton(stay);
  box.exec();
  if (box.clickedButton() == discard) return true;
  if (box.clickedButton() != save) return false;
  return !IsTransfer(configurator_.session.State().phase) && Save();
}

void MainWindow::AskToBreakOff(QString whatIsLost) {
  if (leaveBox_) return leaveBox_->raise();
  if (unsaved_.Changed())
    whatIsLost += ' ' + Words::tr("Changes that are neither saved nor sent are lost.");
  auto* box = new QMessageBox(QMessageBox::NoIcon, ToQt(configurator_.profile.TargetName),
                              whatIsLost, QMessageBox::NoButton, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setIconPixmap(BoxPicture(BoxIcon::Question));
  QPushButton* leave = box->addButton(Words::tr("&Leave"), QMessageBox::DestructiveRole);
  QPushButton* stay = box->addButton(Words::tr("&Cancel"), QMessageBox::RejectRole);
  box->setDefaultButton(stay);
  box->setEscapeButton(stay);
  connect(leave, &QPushButton::clicked, this, [this] { parts_.guard([this] { Leave(); }); });
  leaveBox_ = box;
  box->open();
}

void MainWindow::Leave() {
  KeepPlace();
  configurator_.ShutDown();
  isLeaving_ = true;
  close();
}

std::string MainWindow::AskCode() {
  std::string code;
  configurator_.pwForm.ShowModal(code);
  return code;
}

void MainWindow::RestorePlace() {
  const std::string place = parts_.platform.settings.Get(kMaker, kWindowPart, kPlace);
  restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(place)));
}

void MainWindow::FitToScreen() {
  const QRect room = screen()->availableGeometry();
  const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
  resize(size().boundedTo({room.width(), room.height() - title}));
}

void MainWindow::KeepPlace() {
  parts_.platform.settings.Set(kMaker, kWindowPart, kPlace,
                               saveGeometry().toBase64().toStdString());
}

QString MainWindow::WhatLeavingBreaks() {
  const SessionDriver& session = configurator_.session;
  if (session.Flash() == FlashState::Erased)
    return Words::tr("The flash of the logger is erased. Leaving now leaves it without firmware.");
  if (session.Flash() == FlashState::InDoubt)
    return Words::tr(
        "The flash of the logger may be erased. Leaving now may leave it without firmware.");
  if (session.VoiceList() == ListWork::Writing)
    return Words::tr(
        "The voice-call list is being written. Leaving breaks that off, "
        "and the logger is left without a whole list.");
  const SessionPhase phase = session.State().phase;
  if (phase == SessionPhase::Writing || (IsTransfer(phase) && unsaved_.Changed()))
    return Words::tr("A transfer is under way. Leaving breaks it off.");
  return {};
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (isLeaving_) return event->accept();
  event->ignore();
  parts_.guard([&] {
    unsaved_.Touch();
    // The first closing ends a test run, which switches its fixture off; the next one leaves.
    if (TestPage* test = configurator_.RunningTest()) return test->Stop();
    if (const QString breaks = WhatLeavingBreaks(); !breaks.isEmpty()) return AskToBreakOff(breaks);
    if (!MayLeave()) return;
    KeepPlace();
    configurator_.ShutDown();
    event->accept();
  });
}

}  // namespace ostrel
