#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/DeviceInfo.h"
#include "model/LiveRound.h"
#include "platform/DateTime.h"
#include "shell/acceptance/Acceptance.h"
#include "shell/files/ConfigurationFile.h"
#include "shell/report/Report.h"
#include "shell/words/Phrase.h"

namespace ostrel {

class Comms;
class Configurator;
class Files;
struct Platform;

/// One thing that was done to the logger.
struct RecordedWork {
  std::string when;
  std::string what;
  std::string verified;  ///< how, and what came of it
  std::string hash;      ///< of the configuration
  std::string number;    ///< in the ledger
};

/// What a commissioning report is made from. What is not known is left out of it, or said to be so.
struct Commissioned {
  ModelConfiguration configuration;
  DateTime madeAt;
  std::string file{};                  ///< that holds the configuration; empty for none
  std::string hash{};                  ///< of its content; empty for none
  std::optional<DeviceInfo> logger{};  ///< as it tells of itself
  std::optional<DateTime> clock{};     ///< of the logger
  std::optional<LiveRound> live{};
  Acceptance acceptance{};        ///< the one that counts, which may be of another configuration
  std::string acceptanceFault{};  ///< why what was noted with this configuration cannot be read
  std::vector<RecordedWork> history{};
  /// How the configuration stands to what the ledger last knew the logger to hold, and what speaks
  /// against its being that logger's at all.
  std::vector<Phrase> standing{};
};

/// What a logger was asked for a report, and has told: nothing is said of the rest.
struct AskedForReport {
  bool clock = false;
  bool live = false;
};

/// The language of a report.
struct ReportLanguage {
  std::string code = "en";
  Translation say;        ///< gives an English text of this program in it
  Translation translate;  ///< gives the Spanish names of actions in it
};

/// The report that is handed over when a logger has been set up: what it is, what it measures, whom
/// it tells, when it acts, what it showed at the end, and what was written into it. Passwords are
/// not in it.
Report CommissioningReport(const Commissioned& work, const ReportLanguage& language, Files& files);

/// Has the connected logger tell its clock, its names, and what it measures now.
AskedForReport AskForReport(Comms& comms);

/// Adds what the connected logger tells of itself and last measured, and what was accepted of it
/// with the configuration of the file, else with the configuration that was accepted last. What was
/// noted with the former and cannot be read is not stood in for.
void AddLogger(Commissioned& work, const Configurator& logger, const Platform& platform,
               const std::string& dataFolder, const AskedForReport& asked);

}  // namespace ostrel
