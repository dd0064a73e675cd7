#include <QStatusBar>
#include <utility>

#include "base/Printable.h"
#include "base/Scope.h"
#include "desktop/dialogs/CompareDialog.h"
#include "desktop/dialogs/WriteDialog.h"
#include "desktop/forms/Words.h"
#include "desktop/session/FaultText.h"
#include "desktop/window/MainWindow.h"
#include "link/UploadPlan.h"
#include "platform/Dialogs.h"
#include "shell/Configurator.h"
#include "shell/session/RecordCounts.h"
#include "shell/writing/GuardedWrite.h"
#include "shell/writing/VoiceDoubts.h"
#include "shell/writing/WriteDoubts.h"

namespace ostrel {
namespace {

constexpr int kMessageTime = 10'000;  // ms

QString VoiceQuestion(const VoiceDoubt& doubt) {
  switch (doubt.kind) {
    case VoiceDoubt::Kind::Empty:
      return Words::tr("The list is empty: the logger loses all numbers that it holds. Write it?");
    case VoiceDoubt::Kind::NoNumber:
      return Words::tr(
                 "%n of the numbers are no telephone numbers, the first of them \"%1\". A "
                 "logger may refuse them. Write the list?",
                 nullptr, doubt.count)
          .arg(ToQt(Printable(doubt.number)));
    case VoiceDoubt::Kind::TooMany:
    case VoiceDoubt::Kind::NoMacro:
      break;
  }
  return Words::tr(
      "A logger takes 250 numbers at the most, and macros 0 to 39. It may refuse the list. Write "
      "it?");
}

}  // namespace

/// A download replaces what stands on the pages.
void MainWindow::Read() {
  if (std::exchange(readsBeside_, false)) return ReadBesidePages();
  if (MayLeave() && configurator_.Connected) configurator_.session.Download();
}

void MainWindow::Write() {
  if (const auto why = WhyWritingRests(configurator_.session.Life())) return Tell(SentenceOf(*why));
  navigation_.CommitFront();
  configurator_.session.CompleteInfo();  // who answers is part of the question
  const WriteQuestion question = AskedBeforeWriting();
  WriteDialog dialog(question, this);
  if (dialog.exec() != QDialog::Accepted || !configurator_.Connected) return;
  if (!dialog.IsGuarded()) {
    configurator_.session.Upload();
    return;
  }
  const AtEnd written([this] { writeStep_ = 0; });
  const auto step = [this](bool (SessionDriver::*transfer)()) {
    ++writeStep_;
    return (configurator_.session.*transfer)();
  };
  WriteRoad road{.read = [step] { return step(&SessionDriver::Download); },
                 .write = [step] { return step(&SessionDriver::Upload); },
                 .keep = [this](const DeviceConf& held) { return KeepFormer(held); },
                 .inSpiteOf = [this](const Phrase& doubt) { return MayWriteInSpite(doubt); },
                 .isFormerState = IsFormerState(configurator_.ledger.File())};
  if (dialog.ShowsChanges())
    road.mayWrite = [this](const Comparison& changes) { return MayChange(changes); };
  const DeviceConf safe = unsaved_.Kept();
  const WriteResult result = WriteGuarded(configurator_, road);
  if (result.verified && !result.verified->isSame) unsaved_.Keep(safe);
  ShowWritten(result);
}

WriteQuestion MainWindow::AskedBeforeWriting() const {
  WriteQuestion question{.logger = NameOfLogger()};
  for (const Phrase& doubt : DoubtsOfWriting(configurator_)) question.doubts += SentenceOf(doubt);
  question.plain =
      PlanUpload(configurator_.comms.ComposeStatements(), configurator_.info.Features).duration;
  const int records =
      RecordCounts(parts_.platform.settings).Expected(configurator_.profile.TargetType);
  question.guarded = question.plain + 2 * ReadingTime(records);
  return question;
}

bool MainWindow::KeepFormer(const DeviceConf& held) {
  const SafetyCopies::Kept kept =
      copies_.Keep({held, configurator_.profile, configurator_.info.SerialNumber,
                    configurator_.comms.DownloadedLines()});
  if (kept.result.Ok())
    configurator_.ledger.NoteCopy(kept.path);
  else
    Tell(Words::tr("Nothing was sent, since no safety copy could be kept: %1")
             .arg(ToQt(kept.result.error)));
  return kept.result.Ok();
}

bool MainWindow::MayWriteInSpite(const Phrase& doubt) {
  const BoxAnswer answer = parts_.platform.dialogs.ShowMessage(
      {.text = FromQt(SentenceOf(doubt) + u' ' + Words::tr("Write all the same?")),
       .title = configurator_.profile.TargetName,
       .icon = BoxIcon::Question,
       .buttons = BoxButtons::YesNo});
  return answer == BoxAnswer::Yes && configurator_.Connected;
}

bool MainWindow::MayChange(const Comparison& changes) {
  CompareDialog dialog({.title = Words::tr("What will change"),
                        .before = Words::tr("In the logger"),
                        .after = Words::tr("To be written"),
                        .accept = Words::tr("&Write")},
                       changes.differences, configurator_.profile, Translate(), this);
  return dialog.exec() == QDialog::Accepted && configurator_.Connected;
}

/// A failed step is told as any other fault of the session.
void MainWindow::ShowWritten(const WriteResult& result) {
  if (result.IsAsSent()) {
    configurator_.session.ShowWritten();
    success_ = Words::tr("Written and verified: the logger holds what the pages show.");
    statusBar()->showMessage(success_, kMessageTime);
  }
  if (!result.verified || result.verified->isSame) return;
  configurator_.session.ForgetSuccess();
  const QString words = Words::tr("The logger holds another configuration than was sent");
  otherwise_ = words + u'.';
  ShowFault();
  CompareDialog dialog(
      {.title = words, .before = Words::tr("Sent"), .after = Words::tr("In the logger")},
      result.verified->differences, configurator_.profile, Translate(), this);
  dialog.exec();
}

void MainWindow::TransferEnded(const TransferEnd& end) {
  hasMoved_ = end.done;
  if (end.done && !isBeside_) otherwise_.clear();
  if (!end.done || isBeside_ || (writeStep_ > 0 && end.kind == SessionPhase::Reading)) return;
  unsaved_.Keep(end.held);
  if (end.kind == SessionPhase::Reading) {
    shownFile_.clear();
    StartHistory();
  }
  SafetyCopies::Held held{end.held, configurator_.profile, configurator_.info.SerialNumber};
  if (end.kind == SessionPhase::Reading) held.lines = configurator_.comms.DownloadedLines();
  const SafetyCopies::Kept kept = copies_.Keep(held);
  if (!kept.result.Ok())
    statusBar()->showMessage(
        Words::tr("No safety copy could be kept: %1").arg(ToQt(kept.result.error)), kMessageTime);
  else if (end.kind == SessionPhase::Reading)
    configurator_.ledger.NoteCopy(kept.path);
  ShowTitle();
  if (end.kind == SessionPhase::Reading) TellWhatWasFound(end.held);
}

bool MainWindow::MayWriteList(const ConfAutVoz& list) {
  const auto doubt = DoubtOfVoiceList(list);
  return !doubt || parts_.platform.dialogs.ShowMessage({.text = FromQt(VoiceQuestion(*doubt)),
                                                        .title = configurator_.profile.TargetName,
                                                        .icon = BoxIcon::Question,
                                                        .buttons = BoxButtons::YesNo,
                                                        .prefersNo = true}) == BoxAnswer::Yes;
}

bool MainWindow::MayChangeModel(const std::string& model) {
  const BoxAnswer answer = parts_.platform.dialogs.ShowMessage(
      {.text = FromQt(Words::tr("The file is for the model %1, and the session that stands is with "
                                "the model %2. Change the model?")
                          .arg(ToQt(model), ToQt(configurator_.profile.TargetName))),
       .title = configurator_.profile.TargetName,
       .icon = BoxIcon::Question,
       .buttons = BoxButtons::YesNo,
       .prefersNo = true});
  return answer == BoxAnswer::Yes;
}

}  // namespace ostrel
