#include <algorithm>
#include <utility>

#include "Session.h"
#include "blocks/Configuration.h"

namespace ostrel::campaign {
namespace {

constexpr const char* kPaths[] = {"/site.ocf", "/other.ocf"};
constexpr double kKilled = 0.1;
constexpr int kChangesOfSaving = 8;

}  // namespace

void Session::SaveSome() { Save(random_.Pick(kPaths)); }

void Session::LoadSome() {
  const std::string path = random_.Pick(kPaths);
  if (world_.files.contents.contains(path)) Load(path);
}

bool Session::Save(const std::string& path) {
  const auto octetsOf = [&]() -> std::optional<std::string> {
    const auto found = world_.files.contents.find(path);
    if (found == world_.files.contents.end()) return {};
    return found->second;
  };
  const auto before = octetsOf();
  const bool dies = random_.Chance(kKilled);
  if (dies)
    world_.files.FailFrom(static_cast<std::size_t>(DrawPlace(random_, 1, kChangesOfSaving)));
  if (dies) world_.ledger.cut = isKilled_ = true;
  const bool isDone = Timed(Step::Save, [&] {
    const auto saved = program_->SaveTo(path);
    const std::string whole = ContentOf(world_.files, program_->conf, program_->profile);
    const auto now = octetsOf();
    if (dies) Expect(now == whole || now == before, "a saving that was cut off tore the file");
    if (dies) return true;
    const bool isSaved = saved && saved->Ok();
    Expect(isSaved ? now == whole : now == before,
           isSaved ? "a file is saved, it says" : "a saving that failed has changed the file");
    return isSaved;
  });
  const bool isLeft = world_.files.contents.contains(path + "~ostrel-1");
  Expect(dies || !isLeft || world_.files.log.back().starts_with("remove"),
         "a temporary file is left");
  return isDone && !dies;
}

bool Session::Load(const std::string& path) {
  return Timed(Step::Load, [&] {
    const std::string octets = world_.files.contents[path];
    const bool isLoaded = program_->OpenFile(path) == RestoreResult::Loaded;
    Expect(isLoaded, "a file that was saved does not open");
    Expect(hasOddText_ || ContentOf(world_.files, program_->conf, program_->profile) == octets,
           "a file that was saved opens as another configuration");
    return isLoaded;
  });
}

/// A file is written into the logger and later once more. Where others have changed the logger in
/// between the operator must be told, and only there.
void Session::UseFileTwice() {
  const std::string path = random_.Pick(kPaths);
  if (!program_->Connected || !Save(path) || !Write(true)) return;
  const bool othersChange = random_.Chance(0.5);
  if (othersChange && !ChangeByOthers()) return;
  if (!program_->Connected && !Open()) return;
  if (isKilled_ || (random_.Chance(0.5) && !Load(path))) return;
  const Lent expected(doubted_, othersChange ? Doubted::Must : Doubted::MustNot);
  const Lent declines(declines_, random_.Chance(0.5));
  Write(true);
}

/// Another program writes into the logger, at another time. False where that changes nothing.
bool Session::ChangeByOthers() {
  program_->session.Close(world_.logger->Options().modem);
  world_.loop.RunFor(kWorkedOff);
  const sim::Configuration held = HeldBy(*world_.logger);
  const DeviceConf other =
      ReadOff(sim::RandomConfiguration(Self().model, Self().features, random_.Next(), 0.7), Self(),
              *program_);
  auto changed = After(held, Self(), other, Logger());
  if (!changed || ReadOff(*changed, Self(), *program_) == ReadOff(held, Self(), *program_))
    return false;
  changed->voice = world_.logger->Conf().voice;
  world_.logger->SetConf(*changed);
  return true;
}

/// Whether what was told of the logger's configuration ahead of a writing is right. What the line
/// or the ledger has lost cannot be told.
void Session::JudgeDoubts(const WriteResult& result) {
  if (result.end == WriteEnd::NotRead || result.end == WriteEnd::NotKept) return;
  if (doubted_ == Doubted::Unknown || hasOddText_ || !world_.ledger.fault.empty()) return;
  const auto isUse = [this](const LedgerEntry& entry) {
    return entry.kind == LedgerKind::Writing && entry.state == LedgerState::Done &&
           entry.file == program_->ledger.File() && !entry.serial.empty() &&
           entry.serial == program_->info.SerialNumber;
  };
  if (std::ranges::none_of(world_.ledger.entries, isUse)) return;
  if (doubted_ == Doubted::MustNot)
    return Expect(doubts_.empty(), doubts_.empty() ? "" : "without reason: " + doubts_.front());
  Expect(!doubts_.empty(), "nothing is told of what others have changed");
  Expect((result.end == WriteEnd::Declined) == declines_, "the operator's answer goes for nothing");
}

}  // namespace ostrel::campaign
