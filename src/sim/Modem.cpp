#include "sim/Modem.h"

#include <utility>

namespace ostrel::sim {

Modem::Modem(EventLoop& loop, ModemOptions options, Wiring wiring)
    : loop_(loop), options_(std::move(options)), wiring_(std::move(wiring)) {}

Modem::~Modem() {
  loop_.Cancel(answer_);
  loop_.Cancel(escape_);
}

void Modem::Receive(std::string_view octets) {
  if (options_.dead) return;
  if (!commandMode_) {
    WatchEscape(octets);
    wiring_.toLogger(octets);
    return;
  }
  for (const char octet : octets) TakeCommandOctet(octet);
}

void Modem::TakeCommandOctet(char octet) {
  if (ringing_) {  // any octet gives the dialling up
    ringing_ = false;
    loop_.Cancel(std::exchange(answer_, 0));
    Say("ATD", "NO CARRIER");
  }
  if (echo_) wiring_.toProgram(std::string_view(&octet, 1));
  if (octet != '\r') {
    if (static_cast<unsigned char>(octet) >= ' ' && command_.size() < 256) command_ += octet;
    return;
  }
  const std::string command = std::exchange(command_, {});
  if (!command.empty()) Execute(command);
}

void Modem::Execute(const std::string& command) {
  if (options_.cmeErrors > 0) {
    --options_.cmeErrors;
    AnswerLater(command, "+CME ERROR: 515");
  } else if (command.starts_with("ATD")) {
    Dial(command);
  } else {
    AnswerLater(command, AnswerOf(command));
  }
}

std::string Modem::AnswerOf(const std::string& command) {
  if (command == "ATE0" || command == "ATE1")
    echo_ = command == "ATE1";
  else if (command == "ATH" || command == "ATH0")
    EndCall();
  else if (!(command == "AT" || (command == "AT+IFC=2,2" && options_.flowControl)))
    return "ERROR";
  return "OK";
}

void Modem::Dial(const std::string& command) {
  if (call_) return AnswerLater(command, "ERROR");
  ringing_ = true;
  loop_.Cancel(answer_);
  answer_ = loop_.After(options_.ringingTime, "simulated ringing", [this, command] {
    answer_ = 0;
    ringing_ = false;
    FinishDial(command);
  });
}

void Modem::FinishDial(const std::string& command) {
  const std::string number = command.substr(3);
  const bool rightNumber = options_.onlyNumber.empty() || number == options_.onlyNumber;
  if (number.empty() || !rightNumber || options_.dialResult == DialResult::NoCarrier)
    return Say(command, "NO CARRIER");
  if (options_.dialResult == DialResult::Busy) return Say(command, "BUSY");
  if (options_.dialResult == DialResult::NoAnswer) return Say(command, "NO ANSWER");
  call_ = true;
  commandMode_ = false;
  pluses_ = 0;
  lastOctet_ = loop_.Now();
  Say(command, "CONNECT 9600");
  wiring_.onCall(true);
}

void Modem::AnswerLater(const std::string& command, std::string answer) {
  loop_.Cancel(answer_);
  answer_ = loop_.After(options_.answerTime, "simulated modem",
                        [this, command, text = std::move(answer)] {
                          answer_ = 0;
                          Say(command, text);
                        });
}

void Modem::Say(const std::string& command, const std::string& answer) {
  wiring_.toProgram("\r\n" + answer + "\r\n");
  wiring_.onCommand(command, answer);
}

/// The escape is three plus signs alone between two guard times.
void Modem::WatchEscape(std::string_view octets) {
  loop_.Cancel(std::exchange(escape_, 0));
  for (const char octet : octets) {
    const bool afterGuard = loop_.Now() - lastOctet_ >= options_.guardTime;
    if (octet != '+' || (pluses_ == 0 && !afterGuard) || (pluses_ > 0 && afterGuard))
      pluses_ = octet == '+' && afterGuard ? 1 : 0;
    else
      ++pluses_;
    lastOctet_ = loop_.Now();
  }
  if (pluses_ != 3) return;
  escape_ = loop_.After(options_.guardTime, "simulated escape", [this] {
    escape_ = 0;
    pluses_ = 0;
    commandMode_ = true;
    Say("+++", "OK");
  });
}

void Modem::EndCall() {
  loop_.Cancel(std::exchange(escape_, 0));
  commandMode_ = true;
  pluses_ = 0;
  if (std::exchange(call_, false)) wiring_.onCall(false);
}

void Modem::HangUp() {
  loop_.Cancel(std::exchange(answer_, 0));
  ringing_ = false;
  command_.clear();
  echo_ = true;
  EndCall();
}

void Modem::LoseCarrier() {
  if (!call_) return;
  EndCall();
  Say({}, "NO CARRIER");
}

}  // namespace ostrel::sim
