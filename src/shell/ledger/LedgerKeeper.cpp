#include "shell/ledger/LedgerKeeper.h"

#include <utility>

#include "base/Sha256.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "shell/compare/Comparison.h"
#include "shell/files/ConfigurationFile.h"
#include "shell/session/FaultWords.h"

namespace ostrel {
namespace {

/// Contents that wait for a ledger which cannot keep them.
constexpr std::size_t kMostLate = 16;

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
  entry.utcOffset = UtcOffsetText(subject_.platform.clock.UtcOffset());
  entry.model = subject_.profile.TargetName;
  return entry;
}

void LedgerKeeper::Keep(LedgerEntry& entry) {
  if (!Books()) return;
  KeepLate();
  bool isKept = false;
  if (entry.id == 0) {
    entry.id = Books()->Add(entry);
    isKept = entry.id != 0;
  } else {
    late_.erase(entry.id);
    isKept = Books()->Change(entry);
    if (!isKept) late_[entry.id] = entry;
  }
  if (!isKept) Tell(Books()->Fault());
}

void LedgerKeeper::KeepLate() {
  while (!lateContents_.empty()) {
    const auto& [hash, octets] = *lateContents_.begin();
    if (!Books()->KeepContent(hash, octets)) return;
    lateContents_.erase(lateContents_.begin());
  }
  while (!late_.empty() && Books()->Change(late_.begin()->second)) late_.erase(late_.begin());
}

void LedgerKeeper::Tell(const std::string& why) {
  if (!std::exchange(told_, true) && OnFault) OnFault(why);
}

std::string LedgerKeeper::KeepContent(const std::string& octets) {
  std::string hash = Sha256(octets);
  if (!Books()->KeepContent(hash, octets)) {
    if (lateContents_.size() < kMostLate) lateContents_[hash] = octets;
    Tell(Books()->Fault());
  }
  return hash;
}

std::string LedgerKeeper::KeepConfiguration(const DeviceConf& conf) {
  if (!Books()) return {};
  return KeepContent(ContentOf(subject_.platform.files, conf, subject_.profile));
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
    deed_.file = source_.file;
    deed_.former = held_;
    deed_.copy = copy_;
    return;  // it is kept as soon as it is known what is sent
  }
  if (!deed.file.empty()) deed_.file = subject_.platform.files.Absolute(deed.file);
  if (!deed.text.empty() && Books()) deed_.content = KeepContent(deed.text);
  if (deed.kind == LedgerKind::VoiceWriting) deed_.file = source_.file;
  if (deed.kind == LedgerKind::Reading && guarded_ && written_ != 0) {
    deed_.about = written_;
    deed_.file = source_.file;
  }
  Keep(deed_);
  if (deed.kind == LedgerKind::Session) session_ = deed_;
}

void LedgerKeeper::Composed() {
  if (deed_.kind != LedgerKind::Writing) return;
  const std::string content = KeepConfiguration(subject_.conf);
  if (deed_.id != 0 && content == deed_.content) return;
  deed_.content = content;
  Keep(deed_);
}

void LedgerKeeper::Follow(const Progress& progress) {
  if (progress.stage == Progress::Stage::Attempt) ++deed_.attempts;
  if (progress.stage == Progress::Stage::Step) deed_.steps = progress.step;
  if (progress.stage != Progress::Stage::Closing) return;
  deed_.closing = true;
  Keep(deed_);
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
    deed_.content = held_ = KeepConfiguration(*subject_.received);
    copy_.clear();
    if (subject_.received == &subject_.conf) {
      source_.file.clear();
      ComesFromLogger();
    }
  }
  Keep(deed_);
  if (done) reading_ = deed_;
}

void LedgerKeeper::EndWriting(bool done) {
  Keep(deed_);
  if (done) {
    held_ = deed_.content;
    written_ = deed_.id;
    ComesFromLogger();
  } else if (deed_.closing) {
    held_.clear();
  }
}

void LedgerKeeper::ComesFromLogger() {
  source_.serial = deed_.serial;
  source_.firmware = deed_.firmware;
  source_.features = deed_.features;
  source_.session = deed_.session;
  source_.held = held_;
}

void LedgerKeeper::SessionEnds(const LinkFault& fault) {
  if (!fault.Ok())
    session_.fault =
        Filled(WordsOf({.during = SessionPhase::Open, .link = fault}, session_.port).what);
  Close(session_, fault.Ok(), sessionBegan_);
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
  if (source_.session != 0 && source_.session == session_.id) {
    source_.serial = session_.serial;
    source_.firmware = session_.firmware;
    source_.features = session_.features;
  }
  if (session_.id != 0) Keep(session_);
}

/// A file has one name, whichever link it was reached by.
std::string LedgerKeeper::NameOf(const std::string& path) const {
  Files& files = subject_.platform.files;
  return files.Resolve(files.Absolute(path));
}

void LedgerKeeper::TakeFile(const std::string& path) { source_ = {.file = NameOf(path)}; }

void LedgerKeeper::Saved(const std::string& path, const std::string& octets) {
  const std::string before = std::exchange(source_.file, NameOf(path));
  if (!Books()) return;
  LedgerEntry entry = Made(LedgerKind::Saving);
  entry.file = source_.file;
  entry.serial = source_.serial;
  entry.firmware = source_.firmware;
  entry.features = source_.features;
  entry.former = source_.held;
  if (!before.empty() && before != source_.file) {
    entry.detail = "from " + before;
    const auto last = Books()->Find({.file = before, .most = 1});
    if (!last.empty()) entry.about = last.front().id;
  }
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
  entry.file = source_.file;
  entry.content = source_.held = held_;
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
