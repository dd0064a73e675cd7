#include <algorithm>
#include <array>

#include "sim/Logger.h"
#include "sim/wire/NumberText.h"

namespace ostrel::sim {
namespace {

constexpr Duration kTraceInterval = std::chrono::seconds(1);
constexpr std::string_view kLineEnd = "\r\n";

/// What the console says begins no frame.
std::string WithoutFrameHeads(std::string text) {
  std::ranges::replace(text, '#', '=');
  return text;
}

}  // namespace

std::string Logger::TimeOfDayText() const {
  const DateTime now = Clock();
  std::string text;
  for (const int part : {now.hour, now.minute, now.second}) {
    if (!text.empty()) text += ':';
    AppendPadded(text, part, 2);
  }
  return text;
}

std::string Logger::InputsText() const {
  std::string text = "DI=";
  AppendNumber(text, live_.DigitalMask(Seconds()));
  for (std::size_t i = 0; i < conf_.analogs.size(); ++i) {
    text += " AI" + std::to_string(i) + "=";
    AppendNumber(text, live_.Analog(conf_, static_cast<int>(i), Seconds()));
  }
  return text;
}

std::string Logger::VersionText() const {
  std::string text(Self().Traits().displayName);
  text += " v";
  AppendNumber(text, options_.version / 100);
  text += '.';
  AppendPadded(text, options_.version % 100, 2);
  return text;
}

bool Logger::AnswerConsole(std::string_view rest) {
  struct Word {
    std::string_view word;
    std::string (*answer)(const Logger& logger);
  };
  static constexpr std::array<Word, 6> kWords{{
      {"HELP", [](const Logger&) { return std::string("HELP VER TIME IN OUT NAME"); }},
      {"VER", [](const Logger& logger) { return logger.VersionText(); }},
      {"TIME", [](const Logger& logger) { return logger.TimeOfDayText(); }},
      {"IN", [](const Logger& logger) { return logger.InputsText(); }},
      {"OUT", [](const Logger& logger) { return "OUT=" + std::to_string(logger.outputs_); }},
      {"NAME", [](const Logger& logger) { return logger.conf_.name; }},
  }};
  std::string typed(rest);
  std::ranges::transform(typed, typed.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  const auto* found = std::ranges::find(kWords, typed, &Word::word);
  const bool isKnown = found != kWords.end();
  if (!isKnown) exchange_.note = "unknown command";
  Say(isKnown ? found->answer(*this) : "? " + std::string(rest));
  return true;
}

bool Logger::AnswerTraces(std::string_view rest) {
  if (rest != "0" && rest != "1") return false;
  traces_ = rest == "1";
  ScheduleTrace();
  return true;
}

/// Behind a modem only who has called, and been admitted, hears it: on a line without a call its
/// words would stand among those of the modem.
bool Logger::HasListener() const {
  return isHeard_ && (!modem_ || (modem_->PassesData() && admitted_));
}

void Logger::Say(const std::string& line) {
  if (!HasListener()) return;
  sender_.Text(WithoutFrameHeads(line) + std::string(kLineEnd));
}

/// Tells which request was heard, without what it holds.
void Logger::TraceRequest(std::string_view request) {
  if (traces_ && taking_.IsIdle())
    Say(TimeOfDayText() + " rx " + std::string(request.substr(1, 2)));
}

void Logger::ScheduleTrace() {
  loop_.Cancel(std::exchange(trace_, 0));
  if (!traces_ || !HasListener()) return;
  trace_ = loop_.After(kTraceInterval, "simulated trace", [this] {
    trace_ = 0;
    if (taking_.IsIdle()) Say(TimeOfDayText() + " " + InputsText());
    sender_.Flush();
    ScheduleTrace();
  });
}

}  // namespace ostrel::sim
