#include "shell/report/Commissioning.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Sha256.h"
#include "platform/Ledger.h"
#include "platform/Platform.h"
#include "shell/Configurator.h"
#include "shell/acceptance/AcceptanceFile.h"
#include "shell/compare/Against.h"
#include "shell/files/ConfigurationFile.h"
#include "shell/ledger/History.h"
#include "shell/ledger/IdentityGuard.h"
#include "shell/report/ReportWriter.h"

namespace ostrel {

namespace {

std::string HashOf(const ModelConfiguration& configuration, Files& files) {
  return Sha256(ContentOf(files, configuration.conf, configuration.profile));
}

}  // namespace

Report CommissioningReport(const Commissioned& known, const ReportLanguage& language,
                           Files& files) {
  Commissioned work = known;
  if (work.hash.empty()) work.hash = HashOf(work.configuration, files);
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

/// What came of work that did not end well, in words; nothing where nothing may have been changed.
std::string_view OutcomeOf(const LedgerEntry& work, const Ledger& books) {
  if (work.state == LedgerState::UnderWay && !books.IsCutOff(work)) return {};
  const bool isKept = work.kind == LedgerKind::Writing && !work.closing;
  if (isKept) return work.state == LedgerState::Failed ? "failed" : "cut off before it took effect";
  return "outcome not known";
}

/// What was changed in a logger, or may have been, the oldest first, as far as the ledger tells.
std::vector<RecordedWork> WorkDoneTo(const std::string& serial, Ledger& books) {
  constexpr std::array kChanges{LedgerKind::Writing, LedgerKind::VoiceWriting, LedgerKind::Clock,
                                LedgerKind::Total, LedgerKind::Firmware};
  const std::vector<LedgerEntry> entries = books.Find({.serial = serial});
  std::vector<RecordedWork> done;
  for (const LedgerEntry& entry : entries) {
    if (std::ranges::find(kChanges, entry.kind) == kChanges.end()) continue;
    const bool isDone = entry.state == LedgerState::Done;
    std::string verified =
        isDone ? VerifiedWords(entry, entries) : std::string(OutcomeOf(entry, books));
    if (!isDone && verified.empty()) continue;  // it is under way
    done.push_back({.when = entry.began + (entry.utcOffset.empty() ? "" : " " + entry.utcOffset),
                    .what = std::string(WordOf(entry.kind)),
                    .verified = std::move(verified),
                    .hash = entry.content.substr(0, kHashShown),
                    .number = std::to_string(entry.id)});
  }
  std::ranges::reverse(done);
  return done;
}

/// Whether the configuration of a report is that of an entry, be it in another form.
bool IsOf(const LedgerEntry& entry, const Commissioned& work, const Configurator& logger) {
  if (entry.content == work.hash) return true;
  const auto& [profile, conf] = work.configuration;
  const auto known = ContentOfHistory(logger, entry.content);
  const auto isModel = [&](const std::string& name) {
    return known->profile.TargetName == name && logger.profile.TargetName == name;
  };
  return known && isModel(profile.TargetName) &&
         Against(logger, known->conf, conf).WhatCameBack().isSame;
}

/// How the configuration stands to what the ledger last knew the logger to hold.
Phrase StandingOf(const Commissioned& work, const Configurator& logger, Ledger& books) {
  for (const LedgerEntry& entry : books.Find({.serial = logger.info.SerialNumber})) {
    const bool isWriting = entry.kind == LedgerKind::Writing;
    if (entry.content.empty() || (!isWriting && entry.kind != LedgerKind::Reading)) continue;
    const std::vector<std::string> number{std::to_string(entry.id)};
    if (entry.state == LedgerState::Done)
      return IsOf(entry, work, logger)
                 ? Phrase{"it is what was last written to or read from the logger (entry %1)",
                          number}
                 : Phrase{"it is not what was last written to or read from the logger (entry %1)",
                          number};
    if (isWriting && entry.closing && !OutcomeOf(entry, books).empty())
      return {"what the logger holds is not known since the writing of entry %1", number};
  }
  return {"the ledger does not know what the logger holds"};
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

AskedForReport AskForReport(Comms& comms) {
  const bool clock = comms.ReadDeviceRTC();
  return {.clock = clock, .live = comms.ReadIOParameter() && comms.ReadRealTime()};
}

void AddLogger(Commissioned& work, const Configurator& logger, const Platform& platform,
               const std::string& dataFolder, const AskedForReport& asked) {
  work.logger = logger.info;
  if (asked.clock) work.clock = logger.live.DeviceClock;
  if (asked.live)
    work.live = TakeRound(logger.live, logger.profile, logger.info, WallTimeOf(platform.clock));
  work.hash = HashOf(work.configuration, platform.files);
  if (platform.ledger && !logger.info.SerialNumber.empty()) {
    work.history = WorkDoneTo(logger.info.SerialNumber, *platform.ledger);
    work.standing = {StandingOf(work, logger, *platform.ledger)};
  }
  for (Phrase& doubt : DoubtsOfIdentity(logger)) work.standing.push_back(std::move(doubt));
  AddAcceptance(work, AcceptanceFiles(platform.files, dataFolder), logger.info.SerialNumber);
}

}  // namespace ostrel
