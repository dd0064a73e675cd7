#include "shell/doctor/LinkDoctor.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Printable.h"
#include "base/Scope.h"
#include "link/Frame.h"
#include "link/LinkTimes.h"
#include "link/Modem.h"
#include "link/dialogues/Opening.h"
#include "shell/session/FaultWords.h"

namespace ostrel {
namespace {

using enum DoctorWord;

constexpr int kListenMs = 1000;
constexpr int kStreamMs = 1000;  ///< without a line, behind the last of a stream
/// So often a logger is asked who it is, to see how many lines come damaged.
constexpr int kStreams = 3;
constexpr std::string_view kStreamEnd = "#BB";
constexpr std::size_t kMostStart = 24;

struct AdviceRow {
  DoctorWord answer;
  DoctorWord advice;
};
/// What to try after which answer to the greeting, the most telling answer first.
constexpr AdviceRow kAdvice[] = {
    {Greets, AllWell},       {Echo, TakePlugOff}, {Held, CheckLines},    {BadFrames, CheckEarthing},
    {OtherAnswer, EndOther}, {Noise, CheckSpeed}, {OtherText, EndOther}, {NoAnswer, CheckSupply},
};

std::string Upped(bool up, const char* name) { return std::string(name) + (up ? " on" : " off"); }

std::string LineNames(const ControlLines& lines) {
  return Upped(lines.clearToSend, "CTS") + ", " + Upped(lines.dataSetReady, "DSR") + ", " +
         Upped(lines.carrier, "DCD");
}

std::string HolderNames(const std::vector<PortFacts::Holder>& holders) {
  std::string names;
  for (const auto& [process, name] : holders)
    names += (names.empty() ? "" : ", ") + Printable(name) + " (" + std::to_string(process) + ")";
  return names;
}

/// No text of any device holds these; code page 1252 has letters from 0xA0 on.
bool IsStrange(char c) {
  const auto octet = static_cast<unsigned char>(c);
  return (octet < 0x20 && c != '\r' && c != '\n' && c != '\t') || (octet > 0x7E && octet < 0xA0);
}

}  // namespace

void LinkDoctor::Ear::Received(std::string_view heard) {
  for (const char c : heard) {
    ++octets;
    if (IsStrange(c)) ++strange;
    const bool isPlain = c >= ' ' && c <= '~';
    if (isPlain && start.size() < kMostStart) start += c;
    if (c == '#') frame_.clear();
    if (c == '\r') {
      if (frame_.starts_with('#')) ++(ChecksumOk(frame_) ? good : bad);
      frame_.clear();
    } else if (c == '#' || (!frame_.empty() && frame_.size() < kLongestLine)) {
      frame_ += c;
    }
  }
}

LinkDoctor::LinkDoctor(const Platform& platform, PortInspector& inspector, DoctorQuestion question)
    : loop_(platform.loop),
      inspector_(inspector),
      question_(std::move(question)),
      port_(platform.port),
      line_(loop_, port_) {
  port_.Join(ear_);
}

Diagnosis LinkDoctor::Run() {
  const AtEnd closed([this] { line_.Close(); });
  if (!LookAtDevice() || !OpenPort()) return diagnosis_;
  LookAtLines();
  Listen();
  bool greeted = false;
  for (int attempt = 1; attempt <= kLinkAttempts && MayGreet() && !greeted; ++attempt)
    greeted = Greet(attempt);
  if (port_.LineLost()) {
    Fail(Spoken(Device), Spoken(Gone), Spoken(PlugIn));
  } else if (greeted) {
    CountDamage();
  } else if (answer_ == Held) {
    Advise(CheckLines);
  } else {
    TryModem();  // one that echoes looks like a loopback plug until then
  }
  return diagnosis_;
}

void LinkDoctor::Add(Health health, Phrase what, Phrase found) {
  diagnosis_.symptoms.push_back({health, std::move(what), std::move(found)});
  if (question_.onSymptom) question_.onSymptom(diagnosis_.symptoms.back());
}

bool LinkDoctor::Fail(Phrase what, Phrase found, Phrase advice) {
  Add(Health::Bad, std::move(what), std::move(found));
  diagnosis_.advice = std::move(advice);
  return false;
}

void LinkDoctor::Advise(DoctorWord word, std::vector<std::string> arguments) {
  diagnosis_.advice = Spoken(word, std::move(arguments));
}

bool LinkDoctor::LookAtDevice() {
  const PortFacts facts = inspector_.Inspect(question_.port);
  const std::string name = PortName(question_.port);
  if (facts.device.empty()) {
    // Either one of this process, which the opening tells, or none at all.
    const auto entries = port_.Entries();
    if (std::ranges::find(entries, question_.port, &PortEntry::number) == entries.end())
      return Fail(Spoken(Device), Spoken(DeviceMissing, {name}), Spoken(PlugIn));
    Add(Health::Good, Spoken(Device), Spoken(Simulated));
    return true;
  }
  if (!facts.exists)
    return Fail(Spoken(Device), Spoken(DeviceMissing, {name + " (" + facts.device + ")"}),
                Spoken(PlugIn));
  Add(Health::Good, Spoken(Device), Spoken(DeviceThere, {facts.device}));
  if (!facts.isPermitted && facts.group.empty())
    return Fail(Spoken(Permission), Spoken(NotPermitted), Spoken(AskAdministrator));
  if (!facts.isPermitted)
    return Fail(Spoken(Permission), Spoken(NotPermittedGroup, {facts.group}),
                Spoken(JoinGroup, {facts.group}));
  Add(Health::Good, Spoken(Permission), Spoken(Permitted));
  if (!facts.holders.empty())
    return Fail(Spoken(Users), Spoken(InUseBy, {HolderNames(facts.holders)}), Spoken(CloseProgram));
  Add(Health::Good, Spoken(Users), Spoken(NobodyElse));
  return true;
}

bool LinkDoctor::OpenPort() {
  switch (line_.Open(question_.port)) {
    case PortFault::None:
      Add(Health::Good, Spoken(PortOpening), Spoken(Opened));
      return true;
    case PortFault::NoSuchPort:
      return Fail(Spoken(PortOpening), Spoken(DeviceMissing, {PortName(question_.port)}),
                  Spoken(PlugIn));
    case PortFault::Busy:
      return Fail(Spoken(PortOpening), Spoken(InUseByOther), Spoken(CloseProgram));
    case PortFault::NoPermission:
      return Fail(Spoken(PortOpening), Spoken(NotPermitted), Spoken(AskAdministrator));
    case PortFault::Failed:
      break;
  }
  return Fail(Spoken(PortOpening), Spoken(NotOpened), Spoken(EndOther));
}

void LinkDoctor::LookAtLines() {
  const auto lines = port_.Lines();
  if (!lines) return Add(Health::Open, Spoken(CableLines), Spoken(NoLines));
  const std::string names = LineNames(*lines);
  if (lines->clearToSend) return Add(Health::Good, Spoken(CableLines), Spoken(LinesUp, {names}));
  Add(Health::Bad, Spoken(CableLines), Spoken(LinesDown, {names}));
}

void LinkDoctor::Listen() {
  ear_.Forget();
  line_.DrainFrames(kListenMs, std::chrono::milliseconds(2 * kListenMs));
  const std::string count = std::to_string(ear_.octets);
  if (ear_.octets == 0) return Add(Health::Good, Spoken(Listening), Spoken(Quiet));
  if (ear_.good > 0)
    return Add(Health::Open, Spoken(Listening), Spoken(TalksFrames, {std::to_string(ear_.good)}));
  if (ear_.HeardNoise())
    return Add(Health::Bad, Spoken(Listening),
               Spoken(Noise, {count, std::to_string(ear_.strange)}));
  Add(Health::Open, Spoken(Listening), Spoken(TalksText, {count}));
}

/// A line that is held once is held for good, and a logger behind a modem is not greeted ahead of
/// the call.
bool LinkDoctor::MayGreet() const {
  return question_.phone.empty() && answer_ != Held && line_.GoesOn();
}

bool LinkDoctor::Greet(int attempt) {
  const Line::Dialogue dialogue(line_);
  ear_.Forget();
  const bool sent = line_.Post("#40");
  const Answer answer = AnswerTo(sent, sent && line_.RxSer(kCableReplyMs));
  const bool greeted = answer.word == Greets;
  Add(greeted ? Health::Good : Health::Bad, Spoken(Attempt, {std::to_string(attempt)}),
      Spoken(answer.word, answer.arguments));
  const auto* const before = std::ranges::find(kAdvice, answer_, &AdviceRow::answer);
  const auto* const now = std::ranges::find(kAdvice, answer.word, &AdviceRow::answer);
  if (now < before) answer_ = answer.word;
  return greeted;
}

LinkDoctor::Answer LinkDoctor::AnswerTo(bool sent, bool answered) const {
  const std::string& said = line_.RxLine;
  if (!sent) return {Held, {}};
  if (answered && said.starts_with("#BF")) return {Greets, {said.substr(3)}};
  if (answered && said == "#40") return {Echo, {}};
  if (answered) return {OtherAnswer, {Excerpt(said)}};
  if (ear_.octets == 0) return {NoAnswer, {std::to_string(kCableReplyMs / 1000)}};
  if (ear_.HeardNoise())
    return {Noise, {std::to_string(ear_.octets), std::to_string(ear_.strange)}};
  if (ear_.bad > 0) return {BadFrames, {}};
  return {OtherText, {Excerpt(ear_.start)}};
}

void LinkDoctor::TryModem() {
  {
    const Line::Dialogue dialogue(line_);
    line_.AskModem("ATE0", kModemAnswerMs);
    line_.AskModem("AT", kModemAnswerMs);
  }
  if (line_.RxLine.starts_with("OK")) {
    Add(Health::Good, Spoken(Modem), Spoken(ModemAnswers));
    return question_.phone.empty() ? Advise(GivePhone) : Call();
  }
  Add(Health::Open, Spoken(Modem), Spoken(NoModem));
  const auto lines = port_.Lines();
  const bool holds = lines && !lines->clearToSend;
  Advise(holds ? CheckLines : std::ranges::find(kAdvice, answer_, &AdviceRow::answer)->advice);
}

/// Opens a session as any program would, and ends the call.
void LinkDoctor::Call() {
  std::string code;
  CodeAnswer given = CodeAnswer::NotAsked;
  line_.Close();
  const LinkFault fault = Opening(line_, code, [&] {
                            if (question_.askCode) question_.askCode(code);
                            given = code.empty() ? CodeAnswer::NotGiven : CodeAnswer::Given;
                          }).Run(static_cast<std::int16_t>(question_.port), question_.phone);
  if (fault.Ok()) {
    Add(Health::Good, Spoken(DoctorWord::Call), Spoken(CallStands));
    const Line::Dialogue dialogue(line_);
    HangUp(line_);
    return Conclude(DialBySession);
  }
  const FaultWords words = WordsOf({.during = SessionPhase::Opening, .link = fault, .code = given},
                                   PortName(question_.port));
  Add(Health::Bad, Spoken(DoctorWord::Call), words.what);
  Advise(LookAtNumber);
}

/// Has the logger tell who it is, some times over.
void LinkDoctor::CountDamage() {
  const Line::Dialogue dialogue(line_);
  ear_.Forget();
  for (int stream = 0; stream < kStreams && line_.GoesOn(); ++stream) {
    if (!line_.Post("#44")) break;
    // A damaged line ends a wait as a good one does; silence alone ends a stream.
    std::size_t before = 0;
    do {
      before = ear_.good + ear_.bad;
      line_.RxSer(kStreamMs);
    } while (ear_.good + ear_.bad > before && line_.RxLine != kStreamEnd && line_.GoesOn());
  }
  const std::size_t lines = ear_.good + ear_.bad;
  if (lines == 0) {
    Fail(Spoken(Damage), Spoken(NoneCame), Spoken(CheckEarthing));
  } else if (ear_.bad > 0) {
    Fail(Spoken(Damage), Spoken(SomeDamage, {std::to_string(ear_.bad), std::to_string(lines)}),
         Spoken(CheckEarthing));
  } else {
    Add(Health::Good, Spoken(Damage), Spoken(NoDamage, {std::to_string(lines)}));
    Conclude(AllWell);
  }
}

/// All is well where nothing bad was found. One greeting that is missed is nothing: a logger
/// sleeps.
void LinkDoctor::Conclude(DoctorWord well) {
  std::size_t missed = 0;
  for (const Symptom& symptom : diagnosis_.symptoms) {
    if (symptom.health != Health::Bad) continue;
    if (symptom.what == Spoken(CableLines)) return Advise(CheckLines);
    if (symptom.what == Spoken(Listening)) return Advise(CheckEarthing);
    if (++missed > 1) return Advise(CheckEarthing);
  }
  diagnosis_.isWell = true;
  Advise(well);
}

}  // namespace ostrel
