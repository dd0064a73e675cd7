#include "shell/ledger/LedgerKeeper.h"

#include <utility>

#include "base/Sha256.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "shell/Comparison.h"
#include "shell/ConfigurationFile.h"
#include "shell/FaultWords.h"

namespace ostrel {
namespace {

/// The phase of a session that a deed belongs to, as far as the words for its faults go.
SessionPhase PhaseOf(LedgerKind kind) {
  switch (kind) {
    case LedgerKind::Session:
      return SessionPhase::Opening;
    case LedgerKind::Reading:
      return SessionPhase::Reading;
    case LedgerKind::Writing:
      return SessionPhase::Writing;
    case LedgerKind::Firmware:
      return SessionPhase::Updating;
    default:
      return SessionPhase::Open;
  }
}

}  // namespace

LedgerEntry LedgerKeeper::Made(LedgerKind kind) const {
  LedgerEntry entry = session_;
  entry.id = 0;
  entry.session = session_.id;
  entry.kind = kind;
  entry.state = LedgerState::UnderWay;
  entry.began = DateTimeText(subject_.platform.clock.LocalNow());
  entry.model = subject_.profile.TargetName;
  return entry;
}

void LedgerKeeper::Keep(LedgerEntry& entry) {
  Ledger* const books = Books();
  if (!books) return;
  if (entry.id != 0 && books->Change(entry)) return;
  if (entry.id == 0) entry.id = books->Add(entry);
  const std::string why = books->Fault();
  if (why.empty() || std::exchange(told_, true)) return;
  if (OnFault) OnFault(why);
}

std::string LedgerKeeper::KeepContent(const std::string& octets) {
  std::string hash = Sha256(octets);
  if (!Books()->KeepContent(hash, octets)) return {};
  return hash;
}

std::string LedgerKeeper::KeepConfiguration() {
  if (!Books()) return {};
  return KeepContent(ContentOf(subject_.platform.files, subject_.conf, subject_.profile));
}

void LedgerKeeper::Close(LedgerEntry& entry, bool done, TimePoint began) {
  entry.state = done ? LedgerState::Done : LedgerState::Failed;
  entry.milliseconds =
      std::chrono::duration_cast<std::chrono::milliseconds>(subject_.platform.loop.Now() - began)
          .count();
}

void LedgerKeeper::DeedBegins(const LinkDeed& deed) {
  deedBegan_ = subject_.platform.loop.Now();
  if (deed.kind == LedgerKind::Session) {
    session_ = {.port = deed.port, .phone = deed.phone};
    sessionBegan_ = deedBegan_;
    held_.clear();
    copy_.clear();
    written_ = 0;
  }
  deed_ = Made(deed.kind);
  deed_.detail = deed.detail;
  if (deed.kind == LedgerKind::Writing) {
    written_ = 0;
    deed_.file = file_;
    deed_.former = held_;
    deed_.copy = copy_;
    return;  // it is kept as soon as it is known what is sent
  }
  if (deed.kind == LedgerKind::Reading && guarded_ && written_ != 0) {
    deed_.about = written_;
    deed_.file = file_;
  }
  Keep(deed_);
  if (deed.kind == LedgerKind::Session) session_ = deed_;
}

void LedgerKeeper::Composed() {
  if (deed_.kind != LedgerKind::Writing) return;
  const std::string content = KeepConfiguration();
  if (deed_.id != 0 && content == deed_.content) return;
  deed_.content = content;
  Keep(deed_);
}

void LedgerKeeper::Follow(const Progress& progress) {
  if (progress.stage == Progress::Stage::Closing) {
    deed_.closing = true;
    Keep(deed_);
  }
  if (progress.stage != Progress::Stage::Step) return;
  if (deed_.attempts == 0 || progress.step < deed_.steps) ++deed_.attempts;
  deed_.steps = progress.step;
}

void LedgerKeeper::DeedEnds(const LinkDeed& deed, const LinkFault& fault) {
  if (!fault.Ok())
    deed_.fault = Filled(WordsOf({.during = PhaseOf(deed.kind), .link = fault}, deed_.port).what);
  if (deed.kind == LedgerKind::Session) {
    if (fault.Ok()) return;
    session_.fault = deed_.fault;
    Close(session_, false, sessionBegan_);
    return Keep(session_);
  }
  Close(deed_, fault.Ok(), deedBegan_);
  if (deed.kind == LedgerKind::Reading) return EndReading(fault.Ok());
  if (deed.kind == LedgerKind::Writing) return EndWriting(fault.Ok());
  Keep(deed_);
}

void LedgerKeeper::EndReading(bool done) {
  if (done) {
    deed_.content = held_ = KeepConfiguration();
    copy_.clear();
    if (!guarded_) {
      file_.clear();
      origin_ = deed_.serial;
    }
  }
  Keep(deed_);
  if (done) reading_ = deed_;
}

void LedgerKeeper::EndWriting(bool done) {
  Keep(deed_);
  if (done) {
    held_ = deed_.content;
    origin_ = deed_.serial;
    written_ = deed_.id;
  } else if (deed_.closing) {
    held_.clear();
  }
}

void LedgerKeeper::SessionEnds() {
  Close(session_, true, sessionBegan_);
  Keep(session_);
  session_ = {};
}

void LedgerKeeper::InfoChanged(std::string_view key) {
  LedgerEntry told = session_;
  if (key == "SERIAL") told.serial = subject_.info.SerialNumber;
  if (key == "VERSION") told.firmware = VersionText(subject_.info.FirmwareVersion);
  if (key == "FEATURES") told.features = static_cast<std::uint32_t>(subject_.info.Features);
  if (told == session_) return;
  session_ = std::move(told);
  if (session_.id != 0) Keep(session_);
}

void LedgerKeeper::TakeFile(const std::string& path) {
  file_ = subject_.platform.files.Absolute(path);
  origin_.clear();
}

void LedgerKeeper::Saved(const std::string& path, const std::string& octets) {
  const std::string before = std::exchange(file_, subject_.platform.files.Absolute(path));
  if (!Books()) return;
  LedgerEntry entry = Made(LedgerKind::Saving);
  entry.file = file_;
  entry.serial = origin_;
  if (entry.serial != session_.serial) {
    entry.firmware.clear();
    entry.features = LedgerEntry::kUnknown;
  }
  if (entry.serial.empty() && !before.empty()) entry.detail = "from " + before;
  entry.state = LedgerState::Done;
  entry.content = KeepContent(octets);
  Keep(entry);
}

void LedgerKeeper::NoteCopy(const std::string& path) {
  copy_ = path;
  if (reading_.id == 0) return;
  reading_.copy = path;
  Keep(reading_);
}

Lent<bool> LedgerKeeper::WithGuards() {
  written_ = 0;
  return {guarded_, true};
}

void LedgerKeeper::Verified(const Comparison& comparison) {
  LedgerEntry entry = Made(LedgerKind::Verification);
  entry.about = written_;
  entry.file = file_;
  entry.content = held_;
  entry.state = comparison.isSame ? LedgerState::Done : LedgerState::Failed;
  if (!comparison.isSame)
    entry.fault = std::to_string(comparison.differences.size()) + " field(s) differ";
  Keep(entry);
}

LedgerWork LedgerKeeper::Begin(LedgerKind kind, std::string detail) {
  LedgerWork work{Made(kind), subject_.platform.loop.Now()};
  work.entry.detail = std::move(detail);
  Keep(work.entry);
  return work;
}

void LedgerKeeper::End(LedgerWork work, std::string fault) {
  Close(work.entry, fault.empty(), work.began);
  work.entry.fault = std::move(fault);
  Keep(work.entry);
}

}  // namespace ostrel
