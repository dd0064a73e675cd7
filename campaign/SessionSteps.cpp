#include <algorithm>
#include <cstdlib>
#include <utility>

#include "Session.h"
#include "blocks/Configuration.h"
#include "shell/writing/SafetyCopies.h"
#include "sim/blocks/Block.h"

namespace ostrel::campaign {
namespace {

constexpr double kOddText = 0.03;
constexpr const char* kOddTexts[] = {
    "a,b",     "{x}",
    "x\ny",    "caf\xC3\xA9 \xE2\x82\xAC",
    "=;#\"[]", "un nombre que es mucho mas largo que lo que cabe en el logger"};

/// Intel hex with an end record.
std::string HexFile(sim::Random& random, int records) {
  std::string text;
  for (int i = 0; i < records; ++i) {
    text += ":10000000";
    for (int octet = 0; octet < 16; ++octet) text += "0A1B2C3D"[random.Between(0, 7)];
    text += "\r\n";
  }
  return text + ":00000001FF\r\n";
}

}  // namespace

/// Takes some channels, timers and the like from another configuration that the logger could hold.
void Session::Edit() {
  const sim::Configuration other =
      sim::RandomConfiguration(Self().model, Self().features, random_.Next(), 0.7);
  DeviceConf from = ReadOff(other, Self(), *program_);
  const std::vector<Field> taken = FieldsOf(from, program_->profile);
  const std::vector<Field> fields = FieldsOf(program_->conf, program_->profile);
  const double share = random_.Pick(std::array{0.02, 0.1, 0.5, 1.0});
  bool takes = false;
  for (std::size_t i = 0; i < fields.size() && i < taken.size(); ++i) {
    const bool isSameRecord = i > 0 && fields[i].page == fields[i - 1].page &&
                              fields[i].id.channel == fields[i - 1].id.channel;
    if (!isSameRecord) takes = random_.Chance(share);
    if (takes) CopyField(ViewOf(taken[i].value), fields[i].value);
  }
  if (random_.Chance(kOddText)) TypeOddText();
  if (!program_->conf.Gprs.APN_PASS.empty()) program_->conf.Gprs.APN_PASS = kPasswords[2];
  if (!program_->conf.Gprs.FTP_PASS.empty()) program_->conf.Gprs.FTP_PASS = kPasswords[3];
  program_->ShowConfiguration(DeviceConf(program_->conf));
}

void Session::TypeOddText() {
  hasOddText_ = true;
  for (const Field& field : FieldsOf(program_->conf, program_->profile))
    if (auto* const* text = std::get_if<std::string*>(&field.value); text && random_.Chance(0.02))
      **text = random_.Pick(kOddTexts);
}

/// Whether a configuration is what the logger held when the step began, or that cannot be known.
bool Session::IsAsHeld(const DeviceConf& read) const {
  const bool isKnown = program_->info.Features == Logger().features;
  return !IsClear() || !isKnown || hasOddText_ || After(before_, Self(), read, Logger()) == before_;
}

bool Session::Read() {
  // Emptying leaves some fields alone, so that only a reading into nothing is all the logger's.
  const bool isIntoNothing = random_.Chance(0.6);
  if (isIntoNothing) program_->conf = DeviceConf{};
  const DeviceConf shown = program_->conf;
  return Timed(Step::Read, [&] {
    const bool isDone = program_->session.Download();
    if (isDone) {
      Expect(!isIntoNothing || IsAsHeld(program_->conf),
             "what was read is not what the logger holds");
      return true;
    }
    Expect(program_->conf == shown, "a reading that failed has changed the pages");
    CheckWords(program_->session.FaultDuring(SessionPhase::Reading));
    return false;
  });
}

WriteRoad Session::Road(bool guarded) {
  WriteRoad road{.read = [this] { return program_->session.Download(); },
                 .write = [this] { return program_->session.Upload(); },
                 .verify = guarded};
  if (!guarded) return road;
  road.keep = [this](const DeviceConf& held) { return KeepCopy(held); };
  road.inSpiteOf = [this](const Phrase& doubt) {
    doubts_.push_back(Filled(doubt));
    return !declines_;
  };
  return road;
}

bool Session::KeepCopy(const DeviceConf& held) {
  SafetyCopies copies(world_.files, world_.clock, "/data");
  const std::vector<std::string> lines = program_->comms.DownloadedLines();
  const auto kept = copies.Keep({held, program_->profile, program_->info.SerialNumber, lines});
  if (!kept.result.Ok()) return false;
  program_->ledger.NoteCopy(kept.path);
  copies_.push_back({kept.path, ContentOf(world_.files, held, program_->profile)});
  const std::string beside = SafetyCopies::LinesBeside(kept.path);
  copies_.push_back({beside, world_.files.contents[beside]});
  Expect(!IsClear() || lines == LinesOf(before_, Self()),
         "a safety copy does not hold the logger's own lines");
  Expect(IsAsHeld(held), "a safety copy is not what the logger held");
  return true;
}

bool Session::Write(bool guarded) {
  if (random_.Chance(0.9)) Edit();
  doubts_.clear();
  writing_ = {HeldBy(*world_.logger), {}, static_cast<std::int64_t>(world_.ledger.entries.size())};
  const auto want = [this](const DeviceConf& sent) {
    auto after =
        After(writing_->before, Self(), sent, {program_->profile, program_->info.Features});
    if (after) writing_->wanted.push_back(std::move(*after));
  };
  want(program_->conf);
  const DeviceConf toSend = program_->conf;
  bool isVerified = false;
  Timed(guarded ? Step::WriteGuarded : Step::WritePlain, [&] {
    const WriteResult result = WriteGuarded(*program_, Road(guarded));
    want(result.sent);  // what the firmware can do may have become known meanwhile
    Expect(program_->conf == toSend, "the pages show another configuration than was to be written");
    JudgeWriting(result);
    isVerified = result.verified && result.IsAsSent();
    // What no logger can take is refused, or comes back as another text.
    return result.IsAsSent() || writing_->wanted.empty() || hasOddText_ ||
           (declines_ && result.end == WriteEnd::Declined);
  });
  if (!isKilled_) writing_.reset();
  return isVerified && !isKilled_;
}

void Session::JudgeWriting(const WriteResult& result) {
  const sim::Configuration held = HeldBy(*world_.logger);
  const bool isOld = held == writing_->before;
  const bool isNew = writing_->IsNew(held);
  if (!isOld && !isNew) ++tally_.mixes;
  Expect(isOld || isNew || !IsClear(), "the logger holds neither the former nor the new");
  if (isKilled_ || !IsClear()) return;
  JudgeDoubts(result);
  JudgeLedger(result, isOld, isNew);
  switch (result.end) {
    case WriteEnd::NotRead:
      Expect(isOld, "it was written though it was not read ahead");
      return CheckWords(program_->session.FaultDuring(SessionPhase::Reading));
    case WriteEnd::NotKept:
      return Expect(isOld, "it was written without a safety copy");
    case WriteEnd::Declined:
      return Expect(isOld, "it was written in spite of the operator");
    case WriteEnd::NotWritten:
      return CheckWords(*program_->session.State().failed);
    case WriteEnd::NotReadBack:
      Expect(isNew, "written, it says, and not read back");
      if (isNew) taken_ = held;
      return CheckWords(program_->session.FaultDuring(SessionPhase::Reading));
    case WriteEnd::Written:
      break;
  }
  taken_.reset();
  if (isNew) taken_ = held;
  const bool isSame = !result.verified || result.verified->isSame;
  Expect(isNew || !isSame, result.verified ? "written and verified, it says" : "written, it says");
  Expect(isSame || !isNew || hasOddText_,
         "it says that the logger holds another one, which is not so");
}

/// What the ledger says of a writing, when nobody remembers it any more.
void Session::JudgeLedger(const WriteResult& result, bool isOld, bool isNew) {
  if (!world_.ledger.fault.empty()) return;
  const auto from = world_.ledger.entries.begin() + writing_->lastEntry;
  for (const LedgerEntry& entry : std::ranges::subrange(from, world_.ledger.entries.end())) {
    const bool isDone = entry.state == LedgerState::Done;
    const bool isKept = entry.content.empty() || world_.ledger.contents.contains(entry.content);
    Expect(isKept, "the ledger has lost what was written or read");
    Expect(entry.state != LedgerState::UnderWay || entry.kind == LedgerKind::Session,
           "the ledger says that it is still being written or read");
    if (entry.kind == LedgerKind::Verification)
      Expect(isDone == result.IsAsSent(), "the ledger says of the verification what is not so");
    if (entry.kind != LedgerKind::Writing) continue;
    if (isDone) Expect(isNew, "the ledger says that it is written");
    if (!isDone && !entry.closing)
      Expect(isOld, "the ledger says that the logger was not asked to take anything over");
  }
}

/// A dialogue of a few messages, or with the voice-call list: where it says that it was done, so it
/// must be.
void Session::Short(Step step, const std::function<LinkResult()>& dialogue,
                    const std::function<bool()>& isSo) {
  Timed(step, [&] {
    const LinkResult result = dialogue();
    SessionFault fault = program_->session.FaultDuring(SessionPhase::Open);
    fault.link = result.Fault();
    fault.writingVoiceList = step == Step::VoiceWrite;
    if (!result) CheckWords(fault);
    Expect(!result || !IsClear() || isSo(), "what was done, it says, is not so");
    return bool(result);
  });
}

void Session::Live() {
  Short(
      Step::Live,
      [this] {
        program_->comms.ReadIOParameter();
        program_->comms.ReadTotalCount();
        return program_->comms.ReadRealTime();
      },
      [] { return true; });
}

void Session::Clock() {
  const auto now = [this] { return ToSeconds(world_.clock.LocalNow()); };
  const std::int64_t asked = now();
  Short(
      Step::Clock, [this] { return program_->comms.WriteDeviceRTC(); },
      [&] { return std::abs(ToSeconds(world_.logger->Clock()) - now()) <= now() - asked + 1; });
}

void Session::Total() {
  const int index = random_.Between(0, Self().Traits().flows - 1);
  const int value = random_.Between(0, 1'000'000'000);
  Short(
      Step::Total,
      [&] { return program_->comms.SetTotalCNT(static_cast<std::int16_t>(index), value); },
      [&] {
        const int counted = world_.logger->Total(index) - value;
        return counted >= 0 && counted < 1000;
      });
}

void Session::Output() {
  if (Self().Traits().outputs == 0) return;
  const int index = random_.Between(0, Self().Traits().outputs - 1);
  const bool on = random_.Chance(0.5);
  const auto isSo = [&] {
    // An output is switched without a look at the answer.
    return ((world_.logger->Outputs() >> index & 1U) != 0) == on || !faults_.kinds.empty();
  };
  Short(
      Step::Output,
      [&] { return program_->comms.SetSingleOutput(static_cast<std::int16_t>(index), on); }, isSo);
}

void Session::VoiceWrite() {
  if (!sim::kVoiceBlock.stands(Self())) return;
  std::vector<std::string> numbers;
  for (int count = DrawPlace(random_, 1, 60); count > 1; --count)
    numbers.push_back("6" + std::to_string(random_.Between(10'000'000, 99'999'999)));
  ConfAutVoz list;
  SetNumbers(list, numbers);
  list.MACRO = static_cast<std::int16_t>(random_.Between(-1, 39));
  const sim::VoiceList before = world_.logger->Conf().voice;
  Short(
      Step::VoiceWrite, [&] { return program_->session.WriteVoiceList(list); },
      [&] { return IsVoiceList(list); });
  const sim::VoiceList& now = world_.logger->Conf().voice;
  if (isKilled_ && (now.numbers != before.numbers || now.macro != before.macro))
    cutOff_ = LedgerKind::VoiceWriting;
}

void Session::VoiceRead() {
  if (!sim::kVoiceBlock.stands(Self())) return;
  ConfAutVoz list;
  Short(
      Step::VoiceRead, [&] { return program_->session.ReadVoiceList(list); },
      [&] { return IsVoiceList(list); });
}

bool Session::IsVoiceList(const ConfAutVoz& list) const {
  const sim::VoiceList& voice = world_.logger->Conf().voice;
  return voice.numbers == NumbersOf(list) && voice.macro == list.MACRO;
}

void Session::Firmware() {
  if (!random_.Chance(0.3)) return;
  const FirmwareFiles files{HexFile(random_, random_.Between(150, 400)), HexFile(random_, 20)};
  const std::size_t strikes = world_.meddler->toDevice.Strikes();
  const bool isDone = Timed(Step::Firmware, [&] {
    const LinkResult result = program_->session.SendFirmware(files, [](FirmwareStage) {});
    const sim::FirmwareTaking& taken = world_.logger->Firmware();
    const bool isWhole = files.image.starts_with(taken.Image()) &&
                         files.loader.starts_with(taken.Loader()) &&
                         taken.Now() == sim::FirmwareTaking::State::Copying;
    Expect(!result || isWhole || strikes != world_.meddler->toDevice.Strikes() || !IsClear(),
           "the firmware is sent, it says");
    if (!result && program_->session.State().failed) CheckWords(*program_->session.State().failed);
    return bool(result);
  });
  if (isKilled_ && !world_.logger->Firmware().IsIdle()) cutOff_ = LedgerKind::Firmware;
  if (!isDone || isKilled_) return;
  program_->session.Close(world_.logger->Options().modem);
  world_.loop.RunFor(world_.logger->Options().flashCopyTime);
}

}  // namespace ostrel::campaign
