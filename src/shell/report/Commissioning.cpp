#include "shell/report/Commissioning.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Sha256.h"
#include "platform/Ledger.h"
#include "platform/Platform.h"
#include "shell/ConfigurationFile.h"
#include "shell/Configurator.h"
#include "shell/acceptance/AcceptanceFile.h"
#include "shell/report/ReportWriter.h"

namespace ostrel {

Report CommissioningReport(const Commissioned& work, const ReportLanguage& language, Files& files) {
  const report::Writer writer(work, language);
  const std::string& site = work.configuration.conf.General.DNAME;
  Report report{.language = language.code,
                .title = writer.Say("Commissioning report"),
                .subject = work.configuration.profile.TargetName +
                           (site.empty() ? std::string() : ", " + site),
                .foot = writer.Say("Made by the configuration tool of the logger.") + " " +
                        DateTimeText(work.madeAt)};
  for (ReportSection& section :
       std::vector{writer.Logger(), writer.Channels(), writer.Recipients(), writer.Timers(),
                   writer.OtherSettings(), writer.LiveValues(), writer.Acceptance(),
                   writer.Findings(files), writer.History(), writer.Signatures()})
    if (!section.parts.empty()) report.sections.push_back(std::move(section));
  return report;
}

namespace {

/// Digits of a hash that tell configurations of one logger apart.
constexpr std::size_t kHashShown = 12;

/// How a writing was verified, in words; empty for work of another kind.
std::string VerifiedWords(const LedgerEntry& work, const std::vector<LedgerEntry>& entries) {
  if (work.kind != LedgerKind::Writing) return {};
  for (const LedgerEntry& entry : entries)
    if (entry.kind == LedgerKind::Verification && entry.about == work.id)
      return entry.state == LedgerState::Done ? "read back: the same" : "read back: different";
  return "not read back";
}

/// What was changed in a logger, the oldest first, as far as the ledger tells.
std::vector<RecordedWork> WorkDoneTo(const std::string& serial, Ledger& books) {
  constexpr std::array kChanges{LedgerKind::Writing, LedgerKind::VoiceWriting, LedgerKind::Clock,
                                LedgerKind::Total, LedgerKind::Firmware};
  const std::vector<LedgerEntry> entries = books.Find({.serial = serial});
  std::vector<RecordedWork> done;
  for (const LedgerEntry& entry : entries)
    if (entry.state == LedgerState::Done &&
        std::ranges::find(kChanges, entry.kind) != kChanges.end())
      done.push_back({.when = entry.began,
                      .what = std::string(WordOf(entry.kind)),
                      .verified = VerifiedWords(entry, entries),
                      .hash = entry.content.substr(0, kHashShown),
                      .number = std::to_string(entry.id)});
  std::ranges::reverse(done);
  return done;
}

void AddAcceptance(Commissioned& work, const AcceptanceFiles& files, const std::string& serial) {
  if (serial.empty()) return;
  AcceptanceFiles::Kept kept = files.Read(serial, ConfigurationName(work.file));
  work.acceptanceFault = kept.result.error;
  work.acceptance = std::move(kept.acceptance);
  if (!work.acceptanceFault.empty() || !work.acceptance.points.empty()) return;
  if (auto latest = files.Latest(serial)) work.acceptance = std::move(*latest);
}

}  // namespace

void AddLogger(Commissioned& work, const Configurator& logger, const Platform& platform,
               const std::string& dataFolder) {
  work.logger = logger.info;
  if (logger.live.DeviceClock != DateTime{}) work.clock = logger.live.DeviceClock;
  work.live = TakeRound(logger.live, logger.profile, logger.info, WallTimeOf(platform.clock));
  work.hash =
      Sha256(ContentOf(platform.files, work.configuration.conf, work.configuration.profile));
  if (platform.ledger && !logger.info.SerialNumber.empty())
    work.history = WorkDoneTo(logger.info.SerialNumber, *platform.ledger);
  AddAcceptance(work, AcceptanceFiles(platform.files, dataFolder), logger.info.SerialNumber);
}

}  // namespace ostrel
