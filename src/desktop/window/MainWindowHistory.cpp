#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <utility>

#include "base/Scope.h"
#include "desktop/dialogs/CompareWindow.h"
#include "desktop/dialogs/HistoryDialog.h"
#include "desktop/forms/Words.h"
#include "desktop/session/FaultText.h"
#include "desktop/window/MainWindow.h"
#include "platform/Dialogs.h"
#include "shell/Configurator.h"
#include "shell/ledger/History.h"

// What the window does with the ledger: the history, and work that was interrupted.

namespace ostrel {
namespace {

QString TextOf(const Interrupted& interrupted) {
  const InterruptedWords words = WordsOf(interrupted);
  return SentenceOf(words.what) + u' ' + SentenceOf(words.holding) + u' ' + SentenceOf(words.why);
}

}  // namespace

void MainWindow::ShowHistory() {
  Ledger* const books = parts_.platform.ledger;
  if (!books) return;
  HistoryDialog dialog(*books, this);
  const auto guarded = [this](void (MainWindow::*act)(const LedgerEntry&)) {
    return [this, act](const LedgerEntry& entry) { parts_.guard([&] { (this->*act)(entry); }); };
  };
  dialog.OnOpen = guarded(&MainWindow::OpenEntry);
  dialog.OnCompare = guarded(&MainWindow::CompareEntry);
  dialog.OnSave = guarded(&MainWindow::SaveEntry);
  dialog.exec();
}

std::optional<std::string> MainWindow::FileOf(const LedgerEntry& entry) {
  Files& files = parts_.platform.files;
  const std::string folder = parts_.dataFolder + "/history";
  std::string path = folder + "/entry-" + std::to_string(entry.id) + ".ocf";
  FileResult made = files.MakeFolder(folder);
  if (made.Ok()) made = KeepExported(*parts_.platform.ledger, entry, files, path);
  if (made.Ok()) return path;
  Tell(Words::tr("%1 could not be written: %2").arg(ToQt(path), ToQt(made.error)));
  return {};
}

void MainWindow::OpenEntry(const LedgerEntry& entry) {
  if (const auto path = FileOf(entry)) OpenPath(*path);
}

void MainWindow::CompareEntry(const LedgerEntry& entry) {
  const auto path = FileOf(entry);
  if (!path) return;
  Compare();
  comparing_->ShowFile(*path);
}

void MainWindow::SaveEntry(const LedgerEntry& entry) {
  const std::string filter =
      FromQt(Words::tr("Configuration files") + "|*.ocf|" + Words::tr("All files") + "|*.*");
  const auto path = parts_.platform.dialogs.ChooseFile(
      {.mode = FileQuestion::Mode::Save, .filter = filter, .overwritePrompt = true});
  if (!path) return;
  const FileResult saved =
      ExportEntry(*parts_.platform.ledger, entry, parts_.platform.files, *path);
  if (!saved.Ok())
    Tell(Words::tr("%1 could not be written: %2").arg(ToQt(*path), ToQt(saved.error)));
}

void MainWindow::TellLedgerFault(const std::string& why) {
  if (!ledgerFault_) {
    ledgerFault_ = new QLabel(this);
    ledgerFault_->setObjectName("LedgerFault");
    statusBar()->addPermanentWidget(ledgerFault_);
  }
  ledgerFault_->setText(Words::tr("Nothing is kept in the ledger: %1").arg(ToQt(why)));
}

void MainWindow::TellInterrupted() {
  Ledger* const books = parts_.platform.ledger;
  if (!books) return;
  QStringList texts;
  for (const Interrupted& one : FindInterrupted(*books)) texts << TextOf(one);
  if (!books->Fault().empty()) TellLedgerFault(books->Fault());
  if (texts.isEmpty()) return;
  texts << Words::tr("As soon as that logger is connected, ways out are offered.");
  Tell(texts.join("\n\n"));
}

void MainWindow::OfferWayOut() {
  Ledger* const books = parts_.platform.ledger;
  const SessionDriver& session = configurator_.session;
  const std::string& serial = configurator_.info.SerialNumber;
  if (session.State().phase == SessionPhase::Closed) offeredTo_.clear();
  if (!books || session.State().phase != SessionPhase::Open || IsLineInUse() ||
      session.OwnsModel() || serial.empty() || offeredTo_ == serial || isOffering_)
    return;
  offeredTo_ = serial;
  const Lent<bool> offering(isOffering_, true);
  for (const Interrupted& one : FindInterrupted(*books)) {
    if (one.entry.serial == serial) AskWayOut(one);
    if (session.OwnsModel())
      return offeredTo_.clear();  // what is open behind this way out comes then
  }
}

void MainWindow::AskWayOut(const Interrupted& interrupted) {
  Ledger& books = *parts_.platform.ledger;
  QString text = TextOf(interrupted);
  if (found_.first == interrupted.entry.id) text = found_.second + u' ' + text;
  QMessageBox box(QMessageBox::NoIcon, ToQt(configurator_.profile.TargetName), text,
                  QMessageBox::NoButton, this);
  box.setIconPixmap(BoxPicture(BoxIcon::Exclamation));
  const bool isWriting = interrupted.entry.kind == LedgerKind::Writing;
  QPushButton* later = box.addButton(Words::tr("&Later"), QMessageBox::RejectRole);
  QPushButton* look =
      isWriting ? box.addButton(Words::tr("Read and &compare"), QMessageBox::AcceptRole) : nullptr;
  QPushButton* finish = interrupted.CanFinish() ? box.addButton(Words::tr("&Write the new one"),
                                                                QMessageBox::AcceptRole)
                                                : nullptr;
  QPushButton* putBack =
      interrupted.CanPutBack()
          ? box.addButton(Words::tr("&Put the former one back"), QMessageBox::AcceptRole)
          : nullptr;
  QPushButton* forget =
      box.addButton(Words::tr("Do &not tell again"), QMessageBox::DestructiveRole);
  box.setDefaultButton(look ? look : later);
  box.setEscapeButton(later);
  box.exec();
  const QAbstractButton* chosen = box.clickedButton();
  if (chosen == forget) return Settle(books, interrupted.entry);
  if (look && chosen == look) {
    looksFor_ = interrupted.entry;
    return AskFor(SessionPhase::Reading);
  }
  if (finish && chosen == finish) return WriteEntry(interrupted.entry, interrupted.entry.file);
  if (!putBack || chosen != putBack) return;
  if (const auto former = FormerEntry(books, interrupted.entry)) return WriteEntry(*former, {});
  Tell(Words::tr("Nothing was written: what the logger held before is not kept."));
}

/// The question ahead of each writing comes by itself.
void MainWindow::WriteEntry(const LedgerEntry& entry, const std::string& inNameOf) {
  OpenEntry(entry);
  const auto wanted = ContentOfHistory(configurator_, entry.content);
  if (!wanted || !ostrel::Compare({configurator_.profile, configurator_.conf}, *wanted).isSame)
    return Tell(Words::tr("Nothing was written: the pages show another configuration."));
  if (!inNameOf.empty()) configurator_.ledger.TakeFile(inNameOf);
  AskFor(SessionPhase::Writing);
}

void MainWindow::TellWhatWasFound(const DeviceConf& read) {
  if (!looksFor_) return;
  const LedgerEntry sought = *std::exchange(looksFor_, {});
  if (configurator_.info.SerialNumber != sought.serial) return;
  const Holding found = WhatWasFound(configurator_, sought, read);
  found_ = {sought.id, SentenceOf(FoundWords(found))};
  if (found != Holding::New) return;  // the ways out come again, with that
  Settle(*parts_.platform.ledger, sought);
  Tell(found_.second);
}

}  // namespace ostrel
