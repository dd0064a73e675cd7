#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QString>
#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "desktop/dialogs/ScheduleView.h"
#include "desktop/dialogs/TraceView.h"
#include "desktop/forms/Icons.h"
#include "desktop/program/PortWatch.h"
#include "desktop/session/FaultNote.h"
#include "desktop/session/SessionBar.h"
#include "desktop/window/LivePanels.h"
#include "desktop/window/Overview.h"
#include "desktop/window/PageArea.h"
#include "desktop/window/TreePane.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/PortFacts.h"
#include "platform/TappedPort.h"
#include "recording/Recorder.h"
#include "shell/compare/ChannelPiece.h"
#include "shell/compare/Comparison.h"
#include "shell/files/ConfigurationFile.h"
#include "shell/files/EditHistory.h"
#include "shell/files/RecentFiles.h"
#include "shell/files/UnsavedMark.h"
#include "shell/ledger/Interrupted.h"
#include "shell/navigation/Navigation.h"
#include "shell/session/SessionDriver.h"
#include "shell/session/TraceLog.h"
#include "shell/writing/SafetyCopies.h"

class QAction;
class QLabel;
class QMenu;
class QMessageBox;
class QToolBar;

namespace ostrel {

class CompareWindow;
struct CompareSources;
struct WriteQuestion;
struct WriteResult;

/// What the window stands on.
struct WindowParts {
  Configurator& configurator;
  Navigation& navigation;
  const Platform& platform;
  Guard guard;
  std::string dataFolder;  ///< the user's own
  TappedPort& port;        ///< that of the platform
  PortInspector& inspector;
};

/// The window: tool bar, tree, the page in front, and the state of the link. It draws and asks; all
/// rules are the configurator's. It follows what the session, the transfer, the pages and the ports
/// tell, and what changes with time at the session's own tick: it has no timer. No question waits
/// in an event while a transfer runs, since the transfer would wait with it.
class MainWindow final : public QMainWindow {
 public:
  explicit MainWindow(const WindowParts& parts);
  ~MainWindow() override;

  /// Puts the window's own words in the language that is in use.
  void Retranslate();
  /// Called when the configurator has started: shows what is in front, and follows it from here on.
  void Follow();
  /// Goes to a node, as a click on it does; false while the tree rests.
  bool GoTo(const std::string& key);
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
  void MakeRarerTools();
  /// Adds a tool to the bar, or to a menu of it.
  QAction* AddAction(QWidget& place, Sign sign, QKeySequence keys, std::function<void()> run);
  /// What asks the operator something, guarded, at once or behind a reading that nobody waits for:
  /// the question would hold that up.
  std::function<void()> Asking(std::function<void()> run);
  /// Adds a tool that shows and hides a panel.
  QAction* AddSwitch(QWidget& place, Sign sign, QKeySequence keys, QDockWidget& panel,
                     std::function<void(bool on)> show);
  /// Gives a tool a menu that is filled as it opens.
  void AddMenu(QAction* action, std::function<void(QMenu&)> fill);
  void SetMenu(QAction* action, QMenu* menu);

  // What the tool bar does.
  void Open();
  void OpenPath(const std::string& path);
  void Opened();
  /// Whether a path is that of a safety copy or of a state from the ledger, which stay as they are.
  bool IsFormerState(const std::string& path) const;
  /// Works on the file that was opened, unless it was not whole, which is told, or is to stay as it
  /// is.
  void TakeFile();
  /// False when it was left, or when writing failed.
  bool Save();
  bool SaveAs();
  /// What saving came to, in words where it failed; false for that.
  bool Saved(const FileResult& result);
  void AskLanguage();
  void FillRecent(QMenu& menu);
  void FillCopies(QMenu& menu);
  void ShowSchedule();
  Schedule PresentSchedule() const;
  void ShowHistory();
  void ShowTrace(bool on);
  /// Begins a recording of the line in a file that the operator names, or ends it.
  void Record(bool on);
  void ShowDoctor();
  /// Saves a commissioning report of what stands on the pages.
  void SaveReport();
  /// What was edited since it was opened goes or comes back, a page at a time.
  void Undo();
  void Redo();
  void GoBackTo(const EditHistory::Step& step);
  /// Takes in what the page in front, or the one before it, has committed.
  void NoteEdits();
  /// Shows what undoing and redoing would do.
  void ShowUndo();
  void StartHistory();
  /// Saves octets to a file that the operator chooses. `kind` is in words.
  void SaveBeside(const QString& kind, const QString& ending, const std::string& octets,
                  Readers readers = Readers::AsBefore);
  /// Says in a box what went wrong.
  void Tell(const QString& words);

  // Comparing.
  void Compare();
  CompareSources ComparedSources();
  /// Asks for a reading that leaves the pages alone; false when none can begin.
  bool AskForReadingBeside();
  void ReadBesidePages();
  void TakeOver(const DeviceConf& from, const std::vector<FieldId>& fields);
  /// Puts a configuration onto all pages, as an edit of the operator.
  void ShowOnPages(const DeviceConf& present);
  std::function<std::string(std::string_view)> Translate() const;

  // Copying channels and their alarms.
  /// The channel in front.
  struct ChannelPlace {
    PageId page;
    int channel;
    int configs;  ///< alarm configurations that it has
    int config;   ///< the one shown
  };
  std::optional<ChannelPlace> ChannelInFront() const;
  QString NameOfChannel(PageId page, int channel) const;
  void FillChannels(QMenu& menu);
  void CopyChannel(const ChannelPlace& place, std::optional<int> config);
  void PasteInto(const std::vector<int>& channels, int config);
  void ApplyToSeveral(const ChannelPlace& place);

  // What follows the configurator.
  void BuildTree();
  void PaintTree();
  void ShowFront();
  void ShowTitle();
  void ShowLink();
  void ShowFault();
  void ShowNotes();
  void Rest(bool rests);
  /// Keeps the operator on the page while a logger gets new firmware.
  void RestForUpdate(bool isUpdating);
  /// Shows the table of a group in the place of a page, or below that of the group; or the page
  /// alone.
  void ShowGroup(const std::string& key);
  /// Shows what the timers do, as long as that stands in the place of a page.
  void ShowTimers();
  void GoToTimer(const SectionMeta& section, int timer);
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
  /// Whether a voice-call list may be written that is empty, or holds what is no number.
  bool MayWriteList(const ConfAutVoz& list);
  /// Whether a file may change the model although a session stands.
  bool MayChangeModel(const std::string& model);

  // The ledger.
  /// The configuration of an entry, as a file of the program's own; told where it cannot be made.
  std::optional<std::string> FileOf(const LedgerEntry& entry);
  /// Opens the configuration of an entry from that file.
  void OpenEntry(const LedgerEntry& entry);
  void CompareEntry(const LedgerEntry& entry);
  void SaveEntry(const LedgerEntry& entry);
  /// Asks to write the configuration of an entry; in the name of a file where one is given.
  void WriteEntry(const LedgerEntry& entry, const std::string& inNameOf);
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
  /// What leaving now would break off or leave undone, as a sentence; empty for nothing.
  QString WhatLeavingBreaks();
  /// Asks whether to leave in the midst of something, which goes on meanwhile.
  void AskToBreakOff(QString whatIsLost);
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
  QLabel* notes_;  ///< what is told of the controls of the page in front
  GroupTable* group_;
  ScheduleView* timers_;
  SessionBar* session_;
  FaultNote* fault_;  ///< on the pages that have no place of their own for it
  TraceLog traceLog_;
  TraceView* trace_;
  std::unique_ptr<std::ostream> recording_;
  std::unique_ptr<Recorder> recorder_;
  EditHistory edits_;
  FindingsPanel* findings_;
  LivePanels live_;
  Overview overview_;
  QToolBar* bar_ = nullptr;
  QAction *open_ = nullptr, *save_ = nullptr, *saveAs_ = nullptr, *language_ = nullptr,
          *recentFiles_ = nullptr, *safetyCopies_ = nullptr, *compare_ = nullptr,
          *channels_ = nullptr, *schedule_ = nullptr, *history_ = nullptr, *undo_ = nullptr,
          *redo_ = nullptr, *report_ = nullptr, *doctor_ = nullptr, *liveTools_ = nullptr,
          *traceSwitch_ = nullptr, *findingsSwitch_ = nullptr, *more_ = nullptr;
  QLabel* ledgerFault_ = nullptr;
  std::string offeredTo_;    ///< serial number of the logger that ways out were offered for
  bool isOffering_ = false;  ///< a question about ways out stands
  std::optional<LedgerEntry> looksFor_;     ///< the interrupted writing whose logger is being read
  std::pair<std::int64_t, QString> found_;  ///< what reading for an interrupted writing has found
  QString otherwise_;  ///< what is told for as long as a logger holds something else than was sent
  bool following_ = false;
  QString success_;                    ///< what the status bar says of the last writing
  bool hasMoved_ = false;              ///< a transfer of this session has succeeded
  int writeStep_ = 0;                  ///< of a writing with its guards; 0 while there is none
  bool isLeaving_ = false;             ///< the operator has agreed to it
  std::optional<ChannelPiece> piece_;  ///< what was copied last
  QString pieceName_;                  ///< "alarm 1 of digital input 3"
  unsigned timersSeen_ = 0;            ///< the touch after which the timers were shown
  unsigned undoSeen_ = 0;              ///< the touch after which undoing was shown
  unsigned comparingSeen_ = 0;         ///< the touch after which the pages were compared
  bool readsBeside_ = false;           ///< the reading asked for is to leave the pages alone
  bool isBeside_ = false;              ///< such a reading runs
  bool isReading_ = false;             ///< any reading runs
  QPointer<CompareWindow> comparing_;  ///< while it stands
  QPointer<QMessageBox> leaveBox_;     ///< the question that stands while a transfer runs
  QPointer<QWidget> focus_, refuge_;   ///< where the focus was, and went, when the pages rested
  bool traceShown_ = false;
  bool isUpdating_ = false;  ///< a logger gets new firmware
};

}  // namespace ostrel
