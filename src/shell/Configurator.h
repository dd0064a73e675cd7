#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "factory/Station.h"
#include "factory/TestPage.h"
#include "lang/Lang.h"
#include "link/Comms.h"
#include "model/DeviceConf.h"
#include "model/DeviceInfo.h"
#include "model/RealTimeData.h"
#include "model/TargetProfile.h"
#include "pages/ActEdit.h"
#include "pages/General.h"
#include "pages/Page.h"
#include "pages/PageContext.h"
#include "shell/LangForm.h"
#include "shell/PWForm.h"
#include "shell/TargetSelect.h"
#include "shell/files/StoredSettings.h"
#include "shell/ledger/LedgerKeeper.h"
#include "shell/ledger/TestRunBook.h"
#include "shell/navigation/FormId.h"
#include "shell/session/SessionDriver.h"
#include "shell/words/Phrase.h"
#include "store/IniTool.h"
#include "tools/Ayuda.h"
#include "tools/AyudaHex.h"
#include "tools/Firm.h"
#include "tools/SetTotal.h"
#include "tools/Terminal.h"
#include "tools/ToolContext.h"
#include "tools/live/LivePoll.h"
#include "tools/live/LiveRecorder.h"
#include "tools/live/T_Real_Katodex.h"
#include "tools/live/T_Real_Tavro.h"

namespace ostrel {

/// Where a configurator finds what is installed, and how it runs.
struct ConfiguratorOptions {
  std::string programFolder;    ///< where the help pages stand
  std::string langFile{};       ///< the working copy of the translation table
  Lang* lang = nullptr;         ///< the table where it is open already, with its language chosen
  OpenLogFile openLog{};        ///< opens what the terminal adds to; none where there is none
  OpenLogFile openRecording{};  ///< opens what a monitor records into; none where there is none
  Station station{};            ///< of factory tests, where none is stored
  bool factory = false;         ///< the tree has a node for the factory test of the model
  bool ticking = false;  ///< the pages' timers run and ports are scanned, as a window needs it
  int versionMajor = OSTREL_VERSION_MAJOR;
  int versionMinor = OSTREL_VERSION_MINOR;
};

/// What opening a file came to.
enum class RestoreResult { Loaded, NotAConfiguration, Declined };

/// One whole program without a face: it owns one of everything and wires it. Two configurators in a
/// process do not know of each other.
class Configurator {
 public:
  Configurator(const Platform& platform, ConfiguratorOptions options);
  ~Configurator();
  Configurator(const Configurator&) = delete;
  Configurator& operator=(const Configurator&) = delete;

  // Life.
  /// Starts as the window does: language, first-run questions, model, empty pages, and the file of
  /// the command line, which is a path between two characters that are dropped.
  void Start(const std::string& commandLine);
  /// Starts for a command: no question, no scan. The model by any of its names, the language of
  /// an own table by its column; an unknown model name leaves no model selected.
  void StartForCommand(std::string_view target, std::int16_t language);
  /// Stores port and language. The link is not closed politely: closing the port drops it.
  void ShutDown();

  // Model.
  void TargetDeviceChange(const std::string& name);
  /// The main window's caption: maker, model and version.
  const std::string& MainCaption() const { return mainCaption_; }
  /// Runs after the model has changed, for the tree. Set by the face.
  std::function<void()> OnTargetChanged;

  // Files. Both work on `ConfFilePath`.
  /// Writes the configuration. The result is for those who show it: callers need not look.
  FileResult SaveConf(Replacing replacing = Replacing::Unprotected);
  /// Reads the configuration, after changing the model where the file is of another one.
  RestoreResult RestoreConf();
  /// Opens a file that the operator has chosen: restores it and brings the general page up to it.
  RestoreResult OpenFile(const std::string& path);
  /// The tool bar's "Abrir": asks for a path; false when the operator cancels.
  bool AskAndOpen();
  /// The tool bar's "Guardar": asks for a path. Nothing when the operator cancels, or declines to
  /// lose what only the file holds; else what writing came to, for those who show it.
  std::optional<FileResult> AskAndSave();
  /// Saves to a path that is known, with the same question about what would be lost.
  std::optional<FileResult> SaveTo(const std::string& path);
  /// Asks whether a file may be saved over that holds what this program does not write. True when
  /// nothing of it would be lost. Set by a face; without one nobody is asked.
  std::function<bool(const std::string& path, const std::vector<std::string>& lost)> OnForeignKeys;
  /// Asks whether a file may be replaced that is protected, which `why` tells: "it is read-only".
  /// Set by a face; without one it is not replaced.
  std::function<bool(const std::string& path, const std::string& why)> OnProtected;

  /// Puts a configuration in place of the present one and shows it on all pages.
  void ShowConfiguration(const DeviceConf& shown);
  /// Where the configuration on the pages comes from.
  struct Origin {
    bool isKnown = false;  ///< from a file or a logger
    /// What the file that it was opened from lacks; nothing when it was whole, or when a logger has
    /// been read since.
    std::optional<Phrase> lacking{};
  };
  const Origin& WhereFrom() const { return origin_; }
  /// Says anew where it comes from.
  void SetOrigin(Origin origin) { origin_ = std::move(origin); }
  /// Asks whether a file of another model may change the model while a session stands. Set by a
  /// face; without one nobody is asked.
  std::function<bool(const std::string& model)> OnOtherModel;

  // Language.
  /// The tool bar's "Idioma": asks, then shows every caption in the language chosen.
  void AskLanguage();
  /// Sets all captions of all pages and forms.
  void LoadText();

  /// The page; null when this build has none.
  Page* PageOf(PageId id) const;
  const std::vector<std::unique_ptr<Page>>& Pages() const { return pages_; }
  /// What the tree opens beside the pages; null when this build has none.
  FrontForm* ToolOf(ToolId id) const;
  /// Every form of the program: the pages' and the dialogs'.
  std::vector<Form*> Forms();
  /// What a test run has of the program.
  TestBench Bench() { return {platform_, comms, info, profile, testRuns}; }
  /// Whether the tree has a node for the factory test.
  bool HasFactoryNode() const { return options_.factory; }
  /// The page whose test runs; null when none does.
  TestPage* RunningTest();
  DeviceConf conf;
  /// Where a download goes: the model, but for a reading beside it.
  DeviceConf* received = &conf;
  TargetProfile profile;
  DeviceInfo info;
  RealTimeData live;
  TotalCounts totals;
  ActionList ActionBuffer;
  bool Connected = false;
  bool ComBusy = false;
  bool Universal = true;
  std::string ConfFilePath;
  StoredSettings settings;

 private:
  std::unique_ptr<Lang> ownLang_;  ///< none where the options bring a table

 public:
  Lang& lang;
  IniTool iniTool;
  PageContext context;
  LedgerKeeper ledger;
  TestRunBook testRuns{ledger};

 private:
  /// Runs an action on the pages of a fixed order.
  void ForEach(std::span<const PageId> order, void (Page::*action)());
  /// The dialogs and dialogues that pages ask for.
  void ConnectPages();
  LinkHooks MakeHooks();
  /// Empties what a download fills.
  void EmptyReceived();
  TestPageContext TestParts();
  void RegisterWire();
  void LoadForms();
  void ShowPages();
  void ShowCarrierLost();
  void AskCode();

  Platform platform_;
  ConfiguratorOptions options_;
  std::string mainCaption_;
  bool carrierBoxUp_ = false;
  Origin origin_;
  /// The language of this run is not the one to store: the choice of a first run waits for the
  /// next.
  bool keepsStoredLanguage_ = false;
  std::vector<std::unique_ptr<Page>> pages_;

 public:
  General& general;
  Comms comms;

 private:
  ProgressFeed::Subscription book_;      ///< of the ledger
  ProgressFeed::Subscription bar_;       ///< of the general page
  ProgressFeed::Subscription voiceBar_;  ///< of the page with the voice-call list

 public:
  SessionDriver session;
  ToolContext tools;
  ActEdit actEdit;
  LivePoll livePoll;
  LiveRecorder recorder;
  T_Real_Tavro monitor;
  T_Real_Katodex cathodicMonitor;
  SetTotal setTotal;
  SetTotal expSetTotal;
  Ayuda ayuda;
  AyudaHex ayudaHex;
  PWForm pwForm;
  LangForm langForm;
  TargetSelect targetSelect;
  Firm firm;
  Terminal terminal;
  TestPage test, testKA2, testBQ;

 private:
  std::vector<std::pair<ToolId, FrontForm*>> fronts_;
};

}  // namespace ostrel
