#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/EventLoop.h"

namespace ostrel::sim {

enum class DialResult { Connect, Busy, NoCarrier, NoAnswer };

struct ModemOptions {
  Duration answerTime = std::chrono::milliseconds{20};  ///< from a command to its answer
  Duration ringingTime = std::chrono::seconds{6};       ///< from dialling to its result
  /// Silence around the escape; a little less than the second that programs keep.
  Duration guardTime = std::chrono::milliseconds{950};
  DialResult dialResult = DialResult::Connect;
  int cmeErrors = 0;         ///< that many commands are answered "+CME ERROR: 515" first
  bool flowControl = true;   ///< whether it knows AT+IFC
  bool dead = false;         ///< never answers
  std::string onlyNumber{};  ///< when not empty, any other number gets NO CARRIER
};

/// A modem that answers AT commands and passes a call's octets through.
class Modem {
 public:
  struct Wiring {
    std::function<void(std::string_view octets)> toProgram;
    std::function<void(std::string_view octets)> toLogger;
    std::function<void(bool up)> onCall;  ///< a call came up or ended
    std::function<void(const std::string& command, const std::string& answer)> onCommand;
  };

  Modem(EventLoop& loop, ModemOptions options, Wiring wiring);
  ~Modem();
  Modem(const Modem&) = delete;
  Modem& operator=(const Modem&) = delete;

  void Receive(std::string_view octets);
  /// Whether octets pass between the two ends: a call stands, and no escape has been heard.
  bool PassesData() const { return call_ && !commandMode_; }
  /// Ends a call without a word, as a falling DTR does.
  void HangUp();
  /// The far end is gone: ends the call and says so.
  void LoseCarrier();

 private:
  void TakeCommandOctet(char octet);
  void Execute(const std::string& command);
  std::string AnswerOf(const std::string& command);
  void Dial(const std::string& command);
  void FinishDial(const std::string& command);
  void AnswerLater(const std::string& command, std::string answer);
  void Say(const std::string& command, const std::string& answer);
  void WatchEscape(std::string_view octets);
  void EndCall();

  EventLoop& loop_;
  ModemOptions options_;
  Wiring wiring_;
  bool call_ = false;        ///< a call stands
  bool commandMode_ = true;  ///< octets are commands
  bool echo_ = true;
  bool ringing_ = false;
  std::string command_;    ///< being typed
  TimerId answer_ = 0;     ///< answer or dial result to come
  TimerId escape_ = 0;     ///< guard time behind the escape
  TimePoint lastOctet_{};  ///< in data mode
  int pluses_ = 0;         ///< of the escape, after a guard time
};

}  // namespace ostrel::sim
