#include <QAction>
#include <QMessageBox>
#include <QProgressBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <utility>

#include "desktop/dialogs/CompareWindow.h"
#include "desktop/forms/Words.h"
#include "desktop/session/FaultText.h"
#include "desktop/window/MainWindow.h"
#include "shell/Configurator.h"

// What the window shows of the session, on whichever page.

namespace ostrel {

void MainWindow::MakeSessionBar() {
  addToolBarBreak();
  addToolBar(session_);
  session_->OnRead = [this] { parts_.guard([this] { AskFor(SessionPhase::Reading); }); };
  session_->OnWrite = [this] { parts_.guard([this] { AskFor(SessionPhase::Writing); }); };
  session_->OnCancel = [this] { parts_.guard([this] { configurator_.session.BreakOff(); }); };
}

bool MainWindow::IsLineInUse() const { return configurator_.comms.LinkBusy; }

void MainWindow::AskFor(SessionPhase transfer) { configurator_.session.AskFor(transfer); }

void MainWindow::ShowSession() {
  const SessionState& state = configurator_.session.State();
  if (state.phase == SessionPhase::Opening) otherwise_.clear();
  hasMoved_ = hasMoved_ && state.phase != SessionPhase::Opening && !state.failed;
  ShowLink();
  ShowTransfer();
  ShowFault();
}

QString MainWindow::NameOfLogger() const {
  const QString model = ToQt(configurator_.profile.TargetName);
  const std::string& serial = configurator_.info.SerialNumber;
  if (!configurator_.Connected || serial.empty()) return model;
  return Words::tr("%1, serial number %2").arg(model, ToQt(serial));
}

void MainWindow::ShowLink() {
  const SessionDriver& session = configurator_.session;
  LinkState state = LinkStateOf(configurator_);
  state.step = IsTransfer(state.phase) ? writeStep_ : 0;
  session_->Link().ShowState(state, NameOfLogger());
  const bool isListBusy = state.list != ListWork::None;
  const bool mayAsk =
      state.phase == SessionPhase::Open && !session.OwnsModel() && !session.IsLent();
  const auto why = WhyWritingRests(state.life);
  session_->Allow(
      {.read = mayAsk && state.life.health != LinkHealth::Lost,
       .write = mayAsk && !why,
       .cancel = IsTransfer(state.phase) || isListBusy || state.phase == SessionPhase::Opening,
       .whyNot = why ? SentenceOf(*why) : QString()});
  RestForUpdate(state.phase == SessionPhase::Updating);
  Rest(session.OwnsModel());
  const bool isReading =
      state.phase == SessionPhase::Reading && configurator_.received == &configurator_.conf;
  pages_->Cover(
      isReading ? Words::tr("The configuration is being read. The page shows it when it is whole.")
                : QString());
  // A table would show what the reading has emptied: the cover stands in its place.
  if (std::exchange(isReading_, isReading) != isReading) ShowGroup(shownNode_);
}

/// A transfer owns the model: nothing may be edited, opened, saved or compared under it, and a
/// dialog or a menu that is opened in it would hold it up, as it would a voice-call list. The focus
/// is where it was when it has ended, unless the operator has taken it elsewhere.
void MainWindow::Rest(bool rests) {
  for (QAction* action : {open_, save_, saveAs_, recentFiles_, compare_, channels_, liveTools_,
                          more_, safetyCopies_, schedule_, history_, report_, doctor_, language_})
    action->setEnabled(!rests && !isUpdating_);
  ShowUndo();
  trace_->SetMaySave(!rests && !isUpdating_);
  if (comparing_) comparing_->Rest(rests || isUpdating_);
  live_.SetMaySave(!rests && !isUpdating_);
  if (pages_->isEnabled() != rests) return;
  QWidget* const present = focusWidget();
  if (rests) focus_ = pages_->isAncestorOf(present) ? present : nullptr;
  pages_->setEnabled(!rests);
  if (rests) {
    refuge_ = focusWidget();
    return;
  }
  if (leaveBox_) leaveBox_->close();  // what it asks about has ended
  if (focus_ && (!present || present == refuge_)) focus_->setFocus();
}

void MainWindow::RestForUpdate(bool isUpdating) {
  if (isUpdating == isUpdating_) return;
  isUpdating_ = isUpdating;
  tree_->setEnabled(!isUpdating);
  if (leaveBox_ && !isUpdating && configurator_.session.Flash() == FlashState::Kept)
    leaveBox_->close();
}

void MainWindow::ShowTransfer() {
  const TransferWatch& transfer = configurator_.session.Watch();
  const TransferWatch* running = transfer.Running() ? &transfer : nullptr;
  // The general page has a place of its own.
  FormView* front = pages_->Front();
  auto* place = front ? front->findChild<QStackedWidget*>("ProgressPlace") : nullptr;
  session_->Link().ShowProgress(place ? nullptr : running);
  if (!place) return;
  auto* meter = place->findChild<TransferMeter*>("TransferMeter");
  if (running) meter->Show(*running);
  place->setCurrentIndex(running ? place->indexOf(meter) : 0);
  // A full bar would tell of the last transfer that came to its end, whatever has happened since.
  if (&front->GetForm() == &configurator_.general.GetForm())
    place->widget(0)->findChild<QProgressBar*>()->setVisible(hasMoved_);
}

QString MainWindow::FaultNow() {
  const auto& failed = configurator_.session.State().failed;
  if (!failed) return otherwise_;
  return FaultText(*failed, ports_.DeviceOf("COM" + std::to_string(configurator_.session.Port())));
}

void MainWindow::ShowFault() {
  const QString words = FaultNow();
  const FormView* front = pages_->Front();
  auto* note = front ? front->findChild<FaultNote*>("FaultNote") : nullptr;
  if (note) note->SetText(words);
  fault_->SetText(note ? QString() : words);
}

void MainWindow::ForgetSuccess() {
  configurator_.session.ForgetSuccess();
  if (!success_.isEmpty() && statusBar()->currentMessage() == success_) statusBar()->clearMessage();
}

}  // namespace ostrel
