#include "link/Modem.h"

#include "link/LinkTimes.h"

namespace ostrel {

LinkFault Dial(Line& line, const std::string& phone) {
  const Line::Limit limit(line, kLongestDialling);
  line.AskModem("ATE0", kModemAnswerMs);
  line.AskModem("AT", kModemAnswerMs);
  if (!line.RxLine.starts_with("OK"))
    return line.FaultNow(LinkFault::Kind::NoModem, 0, line.RxLine);
  line.AskModem("AT+IFC=2,2", kModemAnswerMs);
  line.AskModem("ATD" + phone, line.ReplyTimeout + kDialExtraMs);
  if (!line.RxLine.starts_with("CONNECT"))
    return line.FaultNow(LinkFault::Kind::NoConnect, 0, line.RxLine);
  return {};
}

void HangUp(Line& line) {
  constexpr int kPlusSigns = 3;
  line.EndTornMessage();  // ahead of the guard time
  for (int sign = 0; sign < kPlusSigns; ++sign) {
    line.Delay(sign == 0 ? kGuardMs : kBetweenPlusMs);
    if (!line.GoesOn()) return;
    line.Put("+");
    line.Note("TxGsm: ", "+");
  }
  line.Delay(kGuardMs);
  line.AskModem("ATH", kHangUpMs);
}

}  // namespace ostrel
