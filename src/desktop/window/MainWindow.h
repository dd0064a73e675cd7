#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QString>
#include <functional>
#include <string>

#include "desktop/forms/Icons.h"
#include "desktop/program/PortWatch.h"
#include "desktop/window/FaultNote.h"
#include "desktop/window/Overview.h"
#include "desktop/window/PageArea.h"
#include "desktop/window/SessionBar.h"
#include "desktop/window/TraceView.h"
#include "desktop/window/TreePane.h"
#include "platform/Platform.h"
#include "shell/Comparison.h"
#include "shell/ConfigurationFile.h"
#include "shell/Navigation.h"
#include "shell/RecentFiles.h"
#include "shell/SafetyCopies.h"
#include "shell/SessionDriver.h"
#include "shell/TraceLog.h"
#include "shell/UnsavedMark.h"
#include "shell/ledger/Interrupted.h"

class QAction;
class QLabel;
class QMenu;
class QMessageBox;
class QToolBar;

namespace ostrel {

struct WriteQuestion;
struct WriteResult;

/// What the window stands on.
struct WindowParts {
  Configurator& configurator;
  Navigation& navigation;
  const Platform& platform;
  Guard guard;
  std::string dataFolder;  ///< the user's own
};

/// The window: tool bar, tree, the page in front, and the state of the link. It draws and asks; all
/// rules are the configurator's. It follows what the session, the transfer, the pages and the ports
/// tell, and what changes with time at the session's own tick: it has no timer. No question waits
/// in an event while a transfer runs, since the transfer would wait with it.
class MainWindow final : public QMainWindow {
 public:
  explicit MainWindow(const WindowParts& parts);
  ~MainWindow() override;

  /// Called when the configurator has started: shows what is in front, and follows it from here on.
  void Follow();
  /// Goes to a node, as a click on it does.
  void GoTo(const std::string& key);
  /// Goes to a field of the configuration: its page, its alarm configuration, its control.
  void GoToField(PageId page, const FieldId& field);
  LayoutContext Context();
  PageArea& Pages() { return *pages_; }
  TreePane& Tree() { return *tree_; }
  /// Brings link, transfer, faults and title up to the configurator.
  void Look();
  /// Says that a file does not exist.
  void TellMissing(const std::string& path);
  /// Asks for an access code.
  std::string AskCode();
  /// Whether a dialogue with a logger runs: whoever waits in an event now holds it up.
  bool IsLineInUse() const;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  // Making.
  void MakeToolBar();
  QAction* AddAction(Sign sign, QKeySequence keys, std::function<void()> run);
  QMenu* AddMenu(QAction* action, std::function<void(QMenu&)> fill);
  void Retranslate();

  // What the tool bar does.
  void Open();
  void OpenPath(const std::string& path);
  void Opened();
  /// Works on the file that was opened, unless it was not whole, which is told.
  void TakeFile();
  /// False when it was left, or when writing failed.
  bool Save();
  bool SaveAs();
  /// What saving came to, in words where it failed; false for that.
  bool Saved(const FileResult& result);
  void AskLanguage();
  void FillRecent(QMenu& menu);
  void FillCopies(QMenu& menu);
  void Compare();
  void ShowSchedule();
  void ShowHistory();
  void ShowTrace(bool on);
  void SaveTrace();
  /// Says in a box what went wrong.
  void Tell(const QString& words);

  // What follows the configurator.
  void BuildTree();
  void PaintTree();
  void ShowFront();
  void ShowTitle();
  void ShowLink();
  void ShowFault();
  void Rest(bool rests);
  /// Keeps the operator on the page while a logger gets new firmware.
  void RestForUpdate(bool isUpdating);
  void ShowMissing();
  /// Shows the table of a group in the place of a page, or below that of the group; or the page
  /// alone.
  void ShowGroup(const std::string& key);
  void ShowTransfer();
  void ShowSession();
  /// What an event of the configurator does, once the window follows it.
  std::function<void()> Following(void (MainWindow::*react)());
  void LetGo();

  // The session on every page.
  void MakeSessionBar();
  /// Asks for a transfer from wherever the operator is.
  void AskFor(SessionPhase transfer);
  QString NameOfLogger() const;
  /// What went wrong last, in words; empty for nothing.
  QString FaultNow();
  /// Takes back words of success that are not true any more.
  void ForgetSuccess();

  // Transfers.
  void Read();
  void Write();
  WriteQuestion AskedBeforeWriting() const;
  bool KeepFormer(const DeviceConf& held);
  /// Shows what writing will change; true when the operator agrees.
  bool MayChange(const Comparison& changes);
  void ShowWritten(const WriteResult& result);
  void TransferEnded(const TransferEnd& end);
  /// Whether a file may change the model although a session stands.
  bool MayChangeModel(const std::string& model);

  // The ledger.
  /// Opens the configuration of an entry, from a file of its own in the user's data folder.
  void OpenEntry(const LedgerEntry& entry);
  void CompareEntry(const LedgerEntry& entry);
  void SaveEntry(const LedgerEntry& entry);
  void WriteEntry(const LedgerEntry& entry);
  /// Says in the status bar that nothing is kept; no box, since a transfer may run.
  void TellLedgerFault(const std::string& why);
  /// Tells at the start what was interrupted when the program ran last.
  void TellInterrupted();
  /// Offers the ways out as soon as the logger of an interruption is connected, once a session.
  void OfferWayOut();
  void AskWayOut(const Interrupted& interrupted);
  void TellWhatWasFound(const DeviceConf& read);
  /// Asks whether to write in spite of what the ledger says.
  bool MayWriteInSpite(const Phrase& doubt);

  /// What the file at `ConfFilePath` holds otherwise than the program; nothing when it is refused.
  std::optional<Comparison> FileDifferences() const;
  /// Reads a configuration file beside the present configuration.
  std::optional<ModelConfiguration> ReadFile(const std::string& path) const;
  /// Notes a file as the one worked on.
  void WorkOn(const std::string& path);
  void RestorePlace();
  /// Makes the window small enough to stand on its screen whole, its frame included.
  void FitToScreen();
  void KeepPlace();
  /// Whether a file may be replaced that holds what this program does not write.
  bool MayLose(const std::string& path, const std::vector<std::string>& lost);
  /// Whether a file may be replaced that is protected, for a reason in English.
  bool MayReplace(const std::string& path, const std::string& why);
  /// True when the present configuration may go: nothing is unsaved, or the operator says so.
  bool MayLeave();
  /// Asks whether to leave in the midst of a transfer, which goes on meanwhile.
  void AskToBreakOff(const QString& whatIsLost);
  void Leave();

  WindowParts parts_;
  Configurator& configurator_;
  Navigation& navigation_;
  RecentFiles recent_;
  SafetyCopies copies_;
  UnsavedMark unsaved_;
  PortWatch ports_;
  TreePane* tree_;
  std::string shownNode_;  ///< key of the node in front
  std::string shownFile_;  ///< file whose configuration is worked on; empty for none
  PageArea* pages_;
  GroupTable* group_;
  SessionBar* session_;
  FaultNote* fault_;  ///< on the pages that have no place of their own for it
  TraceLog traceLog_;
  TraceView* trace_;
  FindingsPanel* findings_;
  Overview overview_;
  QToolBar* bar_ = nullptr;
  QAction *open_ = nullptr, *save_ = nullptr, *saveAs_ = nullptr, *language_ = nullptr,
          *recentFiles_ = nullptr, *safetyCopies_ = nullptr, *compare_ = nullptr,
          *schedule_ = nullptr, *history_ = nullptr, *traceSwitch_ = nullptr,
          *findingsSwitch_ = nullptr;
  QLabel* ledgerFault_ = nullptr;
  std::string offeredTo_;  ///< serial number of the logger that ways out were offered for
  std::optional<LedgerEntry> looksFor_;  ///< the interrupted writing whose logger is being read
  bool following_ = false;
  QString success_;                   ///< what the status bar says of the last writing
  int writeStep_ = 0;                 ///< of a writing with its guards; 0 while there is none
  bool isLeaving_ = false;            ///< the operator has agreed to it
  QPointer<QMessageBox> leaveBox_;    ///< the question that stands while a transfer runs
  QPointer<QWidget> focus_, refuge_;  ///< where the focus was, and went, when the pages rested
  bool traceShown_ = false;
  bool isUpdating_ = false;  ///< a logger gets new firmware
  bool isMissing_ = false;   ///< the node in front has no page in this build
};

}  // namespace ostrel
