#include "Session.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "blocks/Configuration.h"
#include "shell/ledger/Interrupted.h"
#include "shell/session/FaultWords.h"

namespace ostrel::campaign {
namespace {

constexpr int kMostSteps = 6;
constexpr int kMostOpenings = 4;
constexpr double kByModem = 0.15;
constexpr double kOtherFeatures = 0.3;
constexpr const char* kPhone = "600123456";
constexpr std::size_t kLeak = 4;  ///< characters of a password that are too many

}  // namespace

Session::Session(std::uint64_t seed, Tally& tally, bool tells)
    : tally_(tally),
      tells_(tells),
      random_(seed * 0xD1342543DE82EF95U + 1),
      faults_(DrawFaults(random_)),
      world_(DrawLogger(random_, faults_.ofLogger), seed) {
  for (const Faults::Hurt& hurt : faults_.ofLine)
    (hurt.isToProgram ? world_.meddler->toProgram : world_.meddler->toDevice)
        .Hurt(hurt.damage, hurt.first, hurt.last, hurt.once);
  const double density = random_.Between(0, 100) / 100.0;
  sim::Configuration first =
      sim::RandomConfiguration(Self().model, Self().features, random_.Next(), density);
  if (!first.gprs.apnPassword.empty()) first.gprs.apnPassword = kPasswords[0];
  if (!first.gprs.ftpPassword.empty()) first.gprs.ftpPassword = kPasswords[1];
  world_.logger->SetConf(std::move(first));
  world_.logger->OnExchange([this](const sim::Exchange& exchange) { Follow(exchange); });
  for (const std::size_t kind : faults_.kinds) ++tally_.faults.at(kind);
  if (faults_.kinds.empty()) ++tally_.clean;
  Tell(std::string(Self().Traits().displayName));
  Tell("faults: " + (faults_.words.empty() ? "none" : faults_.words));
}

/// Small models more often: they are through sooner.
sim::LoggerOptions Session::DrawLogger(sim::Random& random, const sim::Faults& faults) {
  const bool isSmall = random.Chance(0.6);
  const sim::Model model =
      isSmall ? (random.Chance(0.5) ? sim::Model::KA1 : sim::Model::BQ) : random.Pick(sim::kModels);
  sim::LoggerOptions options = sim::MakeDefaultOptions(model);
  if (random.Chance(kOtherFeatures)) options.features &= static_cast<std::uint32_t>(random.Next());
  options.modem = random.Chance(kByModem);
  options.seed = random.Next();
  options.accessCode = kCodes[0];
  options.faults = faults;
  if (random.Chance(0.2)) options.clockOffsetSeconds = random.Between(-7200, 7200);
  return options;
}

void Session::StartProgram() {
  program_ = std::make_unique<Configurator>(
      world_.watched, ConfiguratorOptions{.programFolder = "", .langFile = "/Lang.txt"});
  program_->StartForCommand(Self().Traits().displayName, 1);
}

std::vector<std::string> Session::Run() {
  const auto before = faults_.deeds.equal_range(0);
  std::for_each(before.first, before.second, [this](const auto& one) { Do(one.second); });
  StartProgram();
  int openings = 0;
  for (int steps = random_.Between(2, kMostSteps); steps > 0; --steps) {
    if (!program_->Connected && (openings++ < kMostOpenings || faults_.kinds.empty())) Open();
    if (isKilled_) Restart();
    DoNext();
    if (isKilled_) Restart();
  }
  End();
  return std::move(breaches_);
}

void Session::DoNext() {
  using Work = void (*)(Session&);
  constexpr Work kWorks[] = {
      [](Session& s) { s.Read(); },
      [](Session& s) { s.Read(); },
      [](Session& s) { s.Write(true); },
      [](Session& s) { s.Write(true); },
      [](Session& s) { s.Write(true); },
      [](Session& s) { s.Write(false); },
      [](Session& s) { s.Live(); },
      [](Session& s) { s.Clock(); },
      [](Session& s) { s.Total(); },
      [](Session& s) { s.Output(); },
      [](Session& s) { s.VoiceWrite(); },
      [](Session& s) { s.VoiceRead(); },
      [](Session& s) { s.Firmware(); },
      [](Session& s) { s.SaveSome(); },
      [](Session& s) { s.SaveSome(); },
      [](Session& s) { s.LoadSome(); },
      [](Session& s) { s.UseFileTwice(); },
      [](Session& s) { s.UseFileTwice(); },
      [](Session& s) { s.program_->session.Close(s.world_.logger->Options().modem); }};
  random_.Pick(kWorks)(*this);
}

bool Session::Timed(Step step, const std::function<bool()>& work) {
  before_ = HeldBy(*world_.logger);
  const TimePoint start = world_.loop.Now();
  const bool isDone = work();
  const Duration took = world_.loop.Now() - start;
  world_.loop.RunFor(kWorkedOff);
  const Duration longest = LongestOf(step, *program_, *world_.logger);
  tally_.Count(step, isDone, took);
  Tell("step " + std::to_string(static_cast<int>(step)) + (isDone ? " done in " : " failed in ") +
       std::to_string(took / std::chrono::milliseconds(1)) + " ms");
  Expect(took <= longest, "it took " + std::to_string(took / std::chrono::milliseconds(1)) +
                              " ms, which is longer than " +
                              std::to_string(longest / std::chrono::milliseconds(1)));
  Expect(isDone || !faults_.kinds.empty(), "a step failed without any fault");
  const std::string wrong = WrongAtRest(*program_);
  Expect(wrong.empty(), wrong);
  return isDone;
}

void Session::Follow(const sim::Exchange& exchange) {
  if (tells_) Tell("  " + exchange.request + " -> " + exchange.reply + " " + exchange.note);
  const auto due = faults_.deeds.equal_range(++exchanges_);
  std::for_each(due.first, due.second, [this](const auto& one) { Do(one.second); });
}

void Session::Do(Deed deed) {
  constexpr PortFault kFaults[] = {PortFault::NoSuchPort, PortFault::Busy, PortFault::NoPermission,
                                   PortFault::Failed};
  switch (deed) {
    case Deed::NoPort:
      return world_.port.SetOpenFault(World::kPort, random_.Pick(kFaults));
    case Deed::PullOut:
      return world_.meddler->Vanish();
    case Deed::HoldLine:
      world_.port.HoldOutput(World::kPort, true);
      world_.loop.After(std::chrono::milliseconds(DrawPlace(random_, 20, 20'000)), "line let go",
                        [this] { world_.port.HoldOutput(World::kPort, false); });
      return;
    case Deed::FileFails:
      return world_.files.FailOperation(static_cast<std::size_t>(DrawPlace(random_, 1, 20)));
    case Deed::FilesFail:
      return world_.files.FailFrom(static_cast<std::size_t>(DrawPlace(random_, 1, 20)));
    case Deed::LedgerFails:
      world_.ledger.fault = "the disk is full";
      return;
    case Deed::WrongCode:
      givesWrongCode_ = true;
      return;
    case Deed::BreakOff:
      return program_->session.BreakOff();
    case Deed::Meddle:
      world_.loop.After(Duration::zero(), "other work", [this] { Meddle(); });
      return;
    case Deed::Kill:
      return Kill();
  }
}

/// Whatever else wants the link while a dialogue has it is turned away, and changes nothing.
void Session::Meddle() {
  if (!program_ || !program_->comms.LinkBusy) return;
  Comms& comms = program_->comms;
  const std::uint64_t said = comms.LinkBusy ? world_.loop.Steps() : 0;
  ConfAutVoz list;
  const bool isTurnedAway = !comms.ReadConf() && !comms.WriteConf() && !comms.ReadRealTime() &&
                            !comms.WriteDeviceRTC() && !comms.ReadAutVozList(list) &&
                            !comms.WriteAutVoz(list) && !comms.SetTotalCNT(0, 1);
  comms.ReadInfo();
  program_->session.Tick();
  program_->livePoll.Read();
  Expect(isTurnedAway, "two dialogues ran at a time");
  Expect(said == world_.loop.Steps(), "what was turned away has waited");
}

/// Nothing that the program does from here on leaves a trace.
void Session::Kill() {
  isKilled_ = true;
  world_.ledger.cut = true;
  world_.files.FailFrom(1);
  program_->session.BreakOff();
}

void Session::Restart() {
  program_.reset();
  isKilled_ = false;
  world_.files.Heal();
  world_.ledger.cut = false;
  world_.ledger.process += "+";
  StartProgram();
  Tell("killed, and started anew");
  tally_.Count(Step::Restart, true, {});
  const bool isKnown = world_.ledger.fault.empty() && IsClear();
  if (writing_ && isKnown) LookAfterRestart();
  if (cutOff_ && isKnown)
    Expect(
        std::ranges::any_of(FindInterrupted(world_.ledger),
                            [this](const Interrupted& one) { return one.entry.kind == cutOff_; }),
        "nothing is told of other work that was cut off");
  writing_.reset();
  cutOff_.reset();
  taken_.reset();
}

/// What is told of a writing that was cut off must be true, and so must what looking finds.
void Session::LookAfterRestart() {
  const sim::Configuration held = HeldBy(*world_.logger);
  const auto isTrue = [&](Holding holding) {
    return holding == Holding::Unknown ||
           (holding == Holding::New ? writing_->IsNew(held) : held == writing_->before);
  };
  const auto found = FindInterrupted(world_.ledger);
  Expect(!found.empty() || held == writing_->before,
         "nothing is told of a writing that was cut off");
  if (found.empty()) return;
  const Interrupted last = found.back();
  if (last.entry.kind != LedgerKind::Writing || last.entry.id <= writing_->lastEntry) return;
  Expect(isTrue(last.holding), "the next start says: " + WordsOf(last).holding.text);
  if (!Open() || isKilled_ || !Read() || isKilled_ || hasOddText_) return;
  const Holding looked = WhatWasFound(*program_, last.entry, program_->conf);
  Expect(isTrue(looked), "looking finds: " + FoundWords(looked).text);
}

bool Session::Open() {
  world_.port.Restore(World::kPort);
  const bool isModem = world_.logger->Options().modem;
  if (isModem && (!givesWrongCode_ || random_.Chance(0.5)))
    world_.dialogs.GiveCode(givesWrongCode_ ? std::string(kCodes[1])
                                            : world_.logger->Options().accessCode);
  return Timed(Step::Open, [&] {
    const bool isOpen = program_->session.Open(World::kPort, isModem ? kPhone : "");
    if (!isOpen) CheckWords(*program_->session.State().failed);
    return isOpen && program_->session.CompleteInfo();
  });
}

void Session::End() {
  if (program_->comms.PortOpen()) program_->session.Close(world_.logger->Options().modem);
  const std::string wrong = WrongAtRest(*program_);
  Expect(wrong.empty(), wrong);
  for (const KeptFile& copy : copies_)
    Expect(world_.files.contents[copy.path] == copy.octets, copy.path + " is not as it was kept");
  JudgeRecording();
  if (world_.meddler->HasForged()) ++tally_.forged;
  tally_.virtualSeconds += static_cast<std::uint64_t>(world_.loop.Now() / std::chrono::seconds(1));
  program_.reset();
}

/// A recording can be read, and holds no part of a secret. In which field one stands cannot be told
/// where damage has made another good line.
void Session::JudgeRecording() {
  world_.recorder.Finish();
  std::string error;
  Expect(ReadRecording(world_.recording, error).has_value(), "the recording: " + error);
  std::vector<std::string_view> parts(kCodes.begin(), kCodes.end());
  for (const std::string_view password : kPasswords)
    for (std::size_t at = 0; at + kLeak <= password.size(); ++at)
      parts.push_back(password.substr(at, kLeak));
  for (const std::string_view part : parts) {
    const std::size_t at = world_.recording.find(part);
    if (at == std::string::npos) continue;
    const std::size_t start = world_.recording.rfind('\n', at) + 1;
    return Expect(!IsClear(),
                  "the recording tells a secret: " +
                      world_.recording.substr(start, world_.recording.find('\n', at) - start));
  }
}

bool Session::Writing::IsNew(const sim::Configuration& held) const {
  return std::ranges::find(wanted, held) != wanted.end();
}

bool Session::IsClear() const { return !world_.meddler->HasForged(); }

void Session::CheckWords(const SessionFault& fault) {
  if (isKilled_ || !IsClear()) return;  // nobody hears them, or they cannot be true
  const FaultWords words = WordsOf(fault, "COM7");
  const std::string said = Filled(words.what) + "; " + words.outcome.text;
  Tell("says: " + said);
  Expect(!words.what.text.empty(), "a failure without words");
  const auto claim = ClaimOf(words.outcome.text);
  Expect(claim.has_value(), "says what the campaign does not know: " + said);
  const sim::Configuration held = HeldBy(*world_.logger);
  bool isTrue = true;
  if (claim == Claim::TakenOver) isTrue = held == taken_;
  if (claim == Claim::AsBefore) isTrue = held == before_;
  if (claim == Claim::NoFirmware) isTrue = !world_.logger->Firmware().IsIdle();
  if (claim == Claim::FirmwareKept) isTrue = world_.logger->Firmware().IsIdle();
  Expect(isTrue, "not true: " + said);
}

void Session::Expect(bool holds, const std::string& what) {
  if (!holds) breaches_.push_back(what);
}

void Session::Tell(const std::string& what) const {
  if (tells_)
    std::printf("%10.3f %s\n", std::chrono::duration<double>(world_.loop.Now()).count(),
                what.c_str());
}

}  // namespace ostrel::campaign
