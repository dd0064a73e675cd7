#include "link/dialogues/Opening.h"

#include <utility>

#include "base/Scope.h"
#include "link/LinkTimes.h"
#include "link/Modem.h"

namespace ostrel {
namespace {

LinkFault::Kind KindOf(PortFault fault) {
  switch (fault) {
    case PortFault::None:
      return LinkFault::Kind::None;
    case PortFault::NoSuchPort:
      return LinkFault::Kind::NoSuchPort;
    case PortFault::Busy:
      return LinkFault::Kind::PortBusy;
    case PortFault::NoPermission:
      return LinkFault::Kind::NoPermission;
    case PortFault::Failed:
      break;
  }
  return LinkFault::Kind::PortFailed;
}

}  // namespace

std::string PortName(int number) { return "COM" + std::to_string(number); }

Opening::Opening(Line& line, std::string& accessCode, std::function<void()> askCode)
    : line_(line), accessCode_(accessCode), askCode_(std::move(askCode)) {}

LinkFault Opening::Run(std::int16_t port, const std::string& phone) {
  const Line::Dialogue dialogue(line_);
  bool stands = false;
  const AtEnd closed([&] {
    if (!stands) line_.Close();
  });
  LinkFault fault = OpenPort(port);
  if (fault.Ok()) fault = Connect(phone);
  stands = fault.Ok();
  return fault;
}

LinkFault Opening::OpenPort(std::int16_t number) {
  const PortFault opened = line_.Open(number);
  if (opened == PortFault::None) return {};
  return {KindOf(opened), number, PortName(number)};
}

LinkFault Opening::Connect(const std::string& phone) {
  line_.ReplyTimeout = phone.empty() ? kCableReplyMs : kModemReplyMs;
  if (phone.empty()) {
    line_.DrainFrames(kOpeningQuietMs, kLongestOpeningQuiet);
  } else {
    if (LinkFault fault = Dial(line_, phone); !fault.Ok()) return fault;
    AskAccessCode();
  }
  return Handshake();
}

void Opening::AskAccessCode() {
  for (int pass = 0; pass < kCodePasses && line_.GoesOn(); ++pass) {
    accessCode_.clear();
    line_.ExpectAnswer(false);  // the operator takes the time now
    if (askCode_) askCode_();
    line_.ExpectAnswer(true);
    if (accessCode_.empty()) continue;
    const Line::Limit limit(line_, line_.TimeFor(1));
    line_.Ask("#11" + accessCode_);
    if (line_.RxLine == "#PassWord=1") return;
  }
}

LinkFault Opening::Handshake() {
  const Line::Limit limit(line_, line_.TimeFor(1));
  line_.Ask("#40");
  if (line_.RxLine.starts_with("#BF")) return {};
  return line_.FaultNow(LinkFault::Kind::NoHandshake, 0, line_.RxLine);
}

}  // namespace ostrel
