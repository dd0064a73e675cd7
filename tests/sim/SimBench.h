#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/virtual/VirtualLoop.h"
#include "sim/Logger.h"
#include "sim/wire/Frame.h"

namespace ostrel::sim {

/// The line of a logger under test: keeps all that was sent, with the time of each sending.
struct RecordingLine final : LineEnd {
  explicit RecordingLine(EventLoop& owner) : loop(owner) {}
  void Send(std::string_view octets) override {
    sent += octets;
    sendings.emplace_back(loop.Now(), octets);
  }
  void SetCarrier(bool on) override { carrier = on; }
  void Vanish() override { vanished = true; }

  EventLoop& loop;
  std::string sent;
  std::vector<std::pair<TimePoint, std::string>> sendings;
  bool carrier = false;
  bool vanished = false;
};

/// Messages of the good frames in a text.
inline std::vector<std::string> Messages(std::string_view octets) {
  std::vector<std::string> messages;
  FrameReader reader;
  while (auto message = reader.Take(octets)) messages.push_back(std::move(*message));
  return messages;
}

/// A logger on virtual time.
struct SimBench {
  explicit SimBench(LoggerOptions options) : logger(loop, line, std::move(options)) {}
  explicit SimBench(Model model) : SimBench(MakeDefaultOptions(model)) {}
  SimBench(Model model, std::string_view fault, std::uint64_t seed = 1)
      : SimBench(WithFault(model, fault, seed)) {}

  static LoggerOptions WithFault(Model model, std::string_view text, std::uint64_t seed) {
    LoggerOptions options = MakeDefaultOptions(model);
    std::string error;
    options.faults.push_back(ParseFault(text, error).value());
    options.seed = seed;
    return options;
  }

  /// What comes within `wait` of sending raw octets.
  std::string Say(std::string_view octets, Duration wait = std::chrono::milliseconds{20}) {
    const std::size_t before = line.sent.size();
    logger.Receive(octets);
    loop.RunFor(wait);
    return line.sent.substr(before);
  }
  std::vector<std::string> AskAll(std::string_view message) {
    return Messages(Say(ComposeFrame(message)));
  }
  /// The only message of an answer; "" for silence, "(n)" for several.
  std::string Ask(std::string_view message) {
    const auto answers = AskAll(message);
    if (answers.empty()) return {};
    return answers.size() == 1 ? answers[0] : "(" + std::to_string(answers.size()) + ")";
  }
  /// Sends statements from "000" on and closes them; the answer to the closing.
  std::string UploadAll(const std::vector<std::string>& statements) {
    int number = 0;
    for (const std::string& statement : statements) Ask("#45" + Number(number++) + statement);
    return Ask("#46" + Number(number));
  }
  static std::string Number(int number) {
    const std::string digits = std::to_string(number);
    return std::string(3 - digits.size(), '0') + digits;
  }

  VirtualLoop loop;
  RecordingLine line{loop};
  Logger logger;
};

/// Field n of a message, counted from 1.
inline std::string Field(std::string_view message, int n) {
  for (; n > 1; --n) {
    const std::size_t comma = message.find(',');
    if (comma == std::string_view::npos) return "(none)";
    message.remove_prefix(comma + 1);
  }
  return std::string(message.substr(0, message.find(',')));
}

}  // namespace ostrel::sim
