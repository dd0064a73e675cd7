#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "link/Line.h"

namespace ostrel {

/// Opens a port for a session: on a cable waits for a quiet line, behind a modem dials and gets the
/// access code, then greets the logger.
class Opening {
 public:
  /// `askCode` brings the operator's code into `accessCode`, which stays empty without one.
  Opening(Line& line, std::string& accessCode, std::function<void()> askCode);

  /// No fault when the session stands; the port is closed otherwise. An empty `phone` is a cable.
  LinkFault Run(std::int16_t port, const std::string& phone);

 private:
  LinkFault OpenPort(std::int16_t number);
  LinkFault Connect(const std::string& phone);
  void AskAccessCode();
  LinkFault Handshake();

  Line& line_;
  std::string& accessCode_;
  std::function<void()> askCode_;
};

/// A port's number as the operator knows it, such as "COM7".
std::string PortName(int number);

}  // namespace ostrel
