#include "sim/Logger.h"

#include <algorithm>
#include <utility>

#include "sim/wire/LineComposer.h"
#include "sim/wire/NumberText.h"

namespace ostrel::sim {

namespace {

constexpr std::size_t kMostRequestOctets = 1'048'576;
constexpr int kTavroBattery = 720;  // hundredths of a volt

}  // namespace

LoggerOptions MakeDefaultOptions(Model model) {
  const ModelTraits& traits = TraitsOf(model);
  LoggerOptions options;
  options.model = model;
  options.version = traits.version;
  options.features = traits.features;
  options.serial = std::string(traits.word) + "-000137";
  if (model == Model::BP || model == Model::BQ) options.battery = kTavroBattery;
  return options;
}

const Logger::Command Logger::kCommands[] = {
    {"#01", &Logger::AnswerConsole},     {"#04", &Logger::AnswerTraces},
    {"#F0", &Logger::AnswerErase},       {"#F1", &Logger::AnswerLoader},
    {"#11", &Logger::AnswerAccessCode},  {"#40", &Logger::AnswerHandshake},
    {"#41", &Logger::AnswerOrder},       {"#42", &Logger::AnswerDownload},
    {"#44", &Logger::AnswerInformation}, {"#45", &Logger::AnswerStatement},
    {"#46", &Logger::AnswerClosing},     {"#47", &Logger::AnswerOutputOn},
    {"#48", &Logger::AnswerOutputOff},   {"#4E", &Logger::AnswerVoiceSum},
    {"#4F", &Logger::AnswerVoiceList},   {"#5C", &Logger::AnswerSetClock},
    {"#5D", &Logger::AnswerReadClock},   {"#FA", &Logger::AnswerProbeIdentity},
    {"#F4", &Logger::AnswerTestFrame},   {"#F5", &Logger::AnswerIdle},
    {"#F6", &Logger::AnswerNumber},      {"#FB", &Logger::AnswerIdleOfBQ},
};

Logger::Logger(EventLoop& loop, LineEnd& line, LoggerOptions options)
    : loop_(loop),
      line_(line),
      options_(std::move(options)),
      plan_(options_.faults, options_.seed),
      sender_(loop, line, plan_, [this] { LoseCarrier(); }),
      upload_(Self()),
      live_(Self(), options_.seed, ToSeconds(options_.clockStart) + options_.clockOffsetSeconds),
      fixture_(options_.fixture) {
  SetClock(FromSeconds(ToSeconds(options_.clockStart) + options_.clockOffsetSeconds));
  if (!options_.modem) {
    line_.SetCarrier(true);
    return;
  }
  modem_ = std::make_unique<Modem>(
      loop_, options_.modemOptions,
      Modem::Wiring{.toProgram = [this](std::string_view octets) { line_.Send(octets); },
                    .toLogger = [this](std::string_view octets) { TakeOctets(octets); },
                    .onCall = [this](bool up) { ChangeCall(up); },
                    .onCommand =
                        [this](const std::string& command, const std::string& answer) {
                          Tell({loop_.Now(), command, answer, 0, {}});
                        }});
}

Logger::~Logger() {
  for (const TimerId timer : {answer_, copying_, trace_}) loop_.Cancel(timer);
}

// ---- The way of a request

void Logger::Receive(std::string_view octets) {
  if (modem_)
    modem_->Receive(octets);
  else
    TakeOctets(octets);
}

void Logger::TakeOctets(std::string_view octets) {
  if (taking_.Now() == FirmwareTaking::State::Copying) return;
  TakeFirmware(octets);
  while (auto request = reader_.Take(octets)) {
    // A flood is lost beyond what the memory of a logger would hold many times over.
    if (requestOctets_ + request->size() > kMostRequestOctets) continue;
    requestOctets_ += request->size();
    requests_.push_back(std::move(*request));
  }
  AwaitAnswer();
}

void Logger::AwaitAnswer() {
  if (answer_ != 0 || requests_.empty()) return;
  answer_ = loop_.After(options_.replyDelay, "simulated logger", [this] {
    answer_ = 0;
    const std::string request = std::move(requests_.front());
    requests_.pop_front();
    requestOctets_ -= request.size();
    Answer(request);
    AwaitAnswer();
  });
}

void Logger::Answer(const std::string& request) {
  exchange_ = {loop_.Now(), request, {}, 0, {}};
  if (plan_.Count(FaultKind::Silent))
    exchange_.note = "silent by fault";
  else if (fixture_.Asleep())
    exchange_.note = "asleep";
  else if (plan_.Count(FaultKind::Noise))
    AnswerNoise();
  else if (plan_.Count(FaultKind::Echo))
    AnswerEcho(request);
  else if (!admitted_ && !request.starts_with("#11"))
    exchange_.note = "access code missing";
  else if (HasNoWordFor(request))
    exchange_.note = "no firmware";
  else if (!Dispatch(request) && exchange_.note.empty())
    exchange_.note = "unknown request";
  TraceRequest(request);
  // Told first: what is sent may end the call, and its end belongs behind.
  Tell(std::exchange(exchange_, {}));
  sender_.Flush();
}

bool Logger::Dispatch(const std::string& request) {
  for (const Command& command : kCommands) {
    if (request.starts_with(command.head))
      return (this->*command.answer)(std::string_view(request).substr(command.head.size()));
  }
  const auto answer = AnswerLive(request, Self(), conf_, live_, outputs_, Seconds());
  if (answer) Reply(*answer);
  return answer.has_value();
}

/// What a line of another speed looks like: octets of any value, none of them the end of a line.
void Logger::AnswerNoise() {
  constexpr int kOctets = 24;
  std::string noise;
  for (int i = 0; i < kOctets; ++i) noise += static_cast<char>(0x80 + plan_.Draw(0x1F));
  exchange_.note = "noise by fault";
  line_.Send(noise);
}

void Logger::AnswerEcho(const std::string& request) {
  exchange_.note = "echo by fault";
  line_.Send(ComposeFrame(request));
}

void Logger::Reply(std::string_view message, Duration tear) {
  if (exchange_.frames++ == 0) exchange_.reply = message;
  sender_.Frame(message, tear);
}

void Logger::Tell(const Exchange& exchange) const {
  if (observer_) observer_(exchange);
}

void Logger::SetTerminalReady(bool ready) {
  isHeard_ = ready;
  ScheduleTrace();
  // A loader without an end record has ended with the line.
  if (!ready && taking_.Now() == FirmwareTaking::State::Loader) CopyFirmware();
  if (!ready) ForgetLine();
  if (ready) fixture_.PutIn(loop_.Now());
  if (modem_ && !ready) modem_->HangUp();
  if (!modem_ && ready) line_.SetCarrier(true);
}

void Logger::ForgetLine() {
  reader_.Reset();
  requests_.clear();
  requestOctets_ = 0;
  loop_.Cancel(std::exchange(answer_, 0));
  sender_.Clear();
}

void Logger::ChangeCall(bool up) {
  ForgetLine();
  admitted_ = !up || options_.accessCode.empty();
  ScheduleTrace();
  line_.SetCarrier(up);
}

void Logger::LoseCarrier() {
  if (modem_)
    modem_->LoseCarrier();
  else
    line_.SetCarrier(false);
}

// ---- Answers

bool Logger::AnswerAccessCode(std::string_view rest) {
  const bool right = rest == options_.accessCode;
  if (modem_) {
    admitted_ = right || options_.accessCode.empty();
    ScheduleTrace();
  }
  Reply(right ? "#PassWord=1" : "#PassWord=0");
  return true;
}

bool Logger::AnswerHandshake(std::string_view rest) {
  if (!rest.empty()) return false;
  Reply("#BF" + VersionText());
  return true;
}

void Logger::ReplyRecord(std::string_view head, int number, std::string_view record) {
  std::string message(head);
  AppendPadded(message, number, 3);
  Reply(message.append(record));
}

bool Logger::AnswerInformation(std::string_view rest) {
  if (!rest.empty()) return false;
  const int battery =
      fixture_.Script().battery.value_or(options_.battery + static_cast<int>(options_.seed % 30));
  std::string volts = std::to_string(battery / 100) + ".";
  AppendPadded(volts, battery % 100, 2);
  const std::int64_t used = 1200 + Seconds() / 60;
  const std::string records[] = {
      "VERSION," + std::to_string(options_.version),
      "FEATURES," + std::to_string(static_cast<std::int32_t>(options_.features)),
      "SERIAL," + options_.serial,
      "VBAT," + volts,
      "RSSI," + std::to_string(18 + Seconds() / 20 % 5),
      "LOG.SIZE,65536",
      "LOG.USE," + std::to_string(std::min<std::int64_t>(used, 65536)),
  };
  int number = 0;
  for (const std::string& record : records) ReplyRecord("#BB", number++, record);
  Reply("#BB");
  return true;
}

bool Logger::AnswerDownload(std::string_view rest) {
  if (!rest.empty()) return false;
  int number = 0;
  for (const std::string& record : ConfigurationRecords(conf_, Self())) {
    ReplyRecord("#BD", number, record);
    if (plan_.At(FaultKind::SilentAfterRecord, number++)) {
      exchange_.note = "cut by fault";
      return true;
    }
  }
  Reply("#BD");
  return true;
}

bool Logger::AnswerStatement(std::string_view rest) {
  const int number = ThreeDigits(rest);
  if (number == 0) muteUpload_ = false;
  if (muteUpload_) {
    exchange_.note = "unheard by fault";
    return true;
  }
  Verdict verdict = upload_.Take(rest, conf_);
  Duration tear{};
  if (verdict == Verdict::Taken) {
    const auto torn = plan_.At(FaultKind::TornRefusal, number);
    if (torn) tear = std::chrono::milliseconds{torn->milliseconds};
    if (torn || plan_.At(FaultKind::RefuseStatement, number)) {
      upload_.Refuse("by fault");
      verdict = Verdict::Refused;
    }
  }
  if (verdict == Verdict::Refused) Reply("#BA0" + std::string(rest.substr(0, 3)), tear);
  if (verdict != Verdict::Taken) exchange_.note = upload_.Why();
  if (plan_.At(FaultKind::SilentAfterStatement, number)) muteUpload_ = true;
  return true;
}

bool Logger::AnswerClosing(std::string_view rest) {
  if (muteUpload_) {
    exchange_.note = "unheard by fault";
    return true;
  }
  if (plan_.Count(FaultKind::WrongClosing)) upload_.Refuse("by fault");
  if (auto conf = upload_.Close(rest)) {
    conf_ = std::move(*conf);
    ++uploadsTaken_;
    Reply("#B91");
  } else {
    exchange_.note = upload_.Why();
    Reply("#B90");
  }
  return true;
}

bool Logger::SwitchOutput(std::string_view rest, bool on) {
  StatementCursor in(rest);
  const int index = in.Plain(0, Self().Traits().outputs - 1);
  in.End();
  exchange_.note = in.Why();
  const unsigned bit = in.Failed() ? 0 : 1U << index;
  outputs_ = on ? outputs_ | bit : outputs_ & ~bit;
  Reply(std::string(on ? "#B8" : "#B7") + (bit == 0 ? "0" : "1"));
  return true;
}

bool Logger::AnswerOutputOn(std::string_view rest) { return SwitchOutput(rest, true); }
bool Logger::AnswerOutputOff(std::string_view rest) { return SwitchOutput(rest, false); }

}  // namespace ostrel::sim
