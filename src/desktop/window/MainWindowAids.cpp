#include <QAction>
#include <QStatusBar>

#include "desktop/dialogs/DoctorDialog.h"
#include "desktop/forms/Words.h"
#include "desktop/program/Language.h"
#include "desktop/session/FaultText.h"
#include "desktop/window/MainWindow.h"
#include "host/GrowingFiles.h"
#include "host/PdfText.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "shell/Configurator.h"
#include "shell/report/Commissioning.h"

// What helps around the work itself: undoing, recording, the doctor and the report.

namespace ostrel {
namespace {

constexpr int kDoneTime = 10'000;  // ms
constexpr std::string_view kPdfEnd = ".pdf";

}  // namespace

void MainWindow::StartHistory() {
  edits_.Start(configurator_.conf);
  ShowUndo();
}

void MainWindow::NoteEdits() {
  if (!following_ || configurator_.session.OwnsModel()) return;
  edits_.Note(configurator_.conf, configurator_.profile, shownNode_);
  ShowUndo();
}

void MainWindow::ShowUndo() {
  undoSeen_ = unsaved_.Touches();
  const bool rests = configurator_.session.OwnsModel();
  // What stands on the page in front, and is not committed yet, can be undone, too.
  const auto isFrontEdited = [this] {
    return isWindowModified() && edits_.IsEdited(unsaved_.WithFront(), configurator_.profile);
  };
  undo_->setEnabled(!rests && (edits_.CanUndo() || isFrontEdited()));
  redo_->setEnabled(!rests && edits_.CanRedo());
}

void MainWindow::Undo() {
  navigation_.CommitFront();
  NoteEdits();
  if (edits_.CanUndo()) GoBackTo(edits_.Undo());
}

void MainWindow::Redo() {
  navigation_.CommitFront();
  NoteEdits();
  if (edits_.CanRedo()) GoBackTo(edits_.Redo());
}

/// The page that was edited comes to the front, so that it is seen what changes.
void MainWindow::GoBackTo(const EditHistory::Step& step) {
  configurator_.ShowConfiguration(step.state);
  if (!step.node.empty() && step.node != shownNode_) GoTo(step.node);
  unsaved_.Touch();
  Look();
}

void MainWindow::Record(bool on) {
  if (recorder_) {
    parts_.port.Leave(*recorder_);
    recorder_.reset();
    if (!recording_->flush()) Tell(Words::tr("The recording could not be written whole."));
    recording_.reset();
  }
  trace_->SetRecording(false);
  if (!on) return;
  const auto path = parts_.platform.dialogs.ChooseFile(
      {.mode = FileQuestion::Mode::Save,
       .filter = FromQt(Words::tr("Recording") + "|*.rec|" + Words::tr("All files") + "|*.*"),
       .overwritePrompt = true});
  if (!path) return;
  std::string why;
  recording_ = OpenLineRecording(*path, why);
  if (!recording_)
    return Tell(Words::tr("%1 could not be written: %2").arg(ToQt(*path), Words::tr(why.c_str())));
  recorder_ = std::make_unique<Recorder>(
      parts_.platform.loop, [this](std::string_view text) { *recording_ << text << std::flush; },
      DateTimeText(parts_.platform.clock.LocalNow()));
  parts_.port.Join(*recorder_);
  trace_->SetRecording(true);
}

void MainWindow::ShowDoctor() {
  const SessionFrame& session = configurator_.general.Session();
  if (configurator_.comms.PortOpen())
    return Tell(
        Words::tr("A session stands. The link doctor looks at a port that no session "
                  "uses: end the session first."));
  DoctorDialog dialog(ports_.DeviceOf(session.Puerto.Text()), this);
  DoctorQuestion question{
      .port = session.SelectedPort(),
      .phone = session.ModemCheck.Checked() ? session.CallNum.Text() : std::string()};
  question.askCode = [this](std::string& code) { code = AskCode(); };
  question.onSymptom = [&dialog](const Symptom& symptom) { dialog.Add(symptom); };
  LinkDoctor doctor(parts_.platform, parts_.inspector, std::move(question));
  dialog.OnBreakOff = [&doctor] { doctor.BreakOff(); };
  dialog.show();
  const bool lent = configurator_.comms.LendPort([&] { dialog.Finish(doctor.Run()); });
  if (lent && dialog.isVisible()) dialog.exec();
}

void MainWindow::SaveReport() {
  navigation_.CommitFront();
  const auto path = parts_.platform.dialogs.ChooseFile(
      {.mode = FileQuestion::Mode::Save,
       .filter = FromQt(Words::tr("Document") + "|*.pdf|" + Words::tr("Web page") + "|*.html"),
       .overwritePrompt = true});
  if (!path) return;
  Commissioned work{.configuration = {configurator_.profile, configurator_.conf},
                    .madeAt = parts_.platform.clock.LocalNow(),
                    .file = shownFile_};
  // A logger that is busy, or has gone silent, is not asked for what it measures now.
  if (configurator_.Connected) {
    const AskedForReport asked = AskForReport(configurator_.comms);
    AddLogger(work, configurator_, parts_.platform, parts_.dataFolder, asked);
  }
  const Report report = CommissioningReport(
      work,
      {.code = FromQt(LanguageCode(configurator_.lang)),
       .say = [](std::string_view text) { return FromQt(Words::tr(std::string(text).c_str())); },
       .translate =
           [this](std::string_view text) { return configurator_.context.Translate(text); }},
      parts_.platform.files);
  std::string octets = ReportHtml(report);
  if (path->ends_with(kPdfEnd)) octets = PdfOf(octets);
  const FileResult saved = SaveWhole(parts_.platform.files, *path, octets, Replacing::Any);
  if (!saved.Ok())
    return Tell(Words::tr("%1 could not be written: %2").arg(ToQt(*path), ToQt(saved.error)));
  statusBar()->showMessage(Words::tr("Report written to %1.").arg(ToQt(*path)), kDoneTime);
}

}  // namespace ostrel
