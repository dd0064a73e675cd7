#include "platform/TappedPort.h"

namespace ostrel {

TappedPort::~TappedPort() {
  if (handles_) port_.SetOnComm({});
}

void TappedPort::SetCommPort(int number) {
  number_ = number;
  port_.SetCommPort(number);
}

PortFault TappedPort::SetPortOpen(bool open) {
  const bool wasOpen = port_.PortOpen();
  if (!open && wasOpen) TakeRest();
  const PortFault fault = port_.SetPortOpen(open);
  if (open) {
    lostTold_ = false;
    Tell(fault == PortFault::None ? LineEvent::Opened : LineEvent::NotOpened,
         "COM" + std::to_string(number_));
  } else if (wasOpen) {
    Tell(LineEvent::Closed);
  }
  return fault;
}

/// What nobody has read is gone for the program, and still part of what the line carried.
void TappedPort::TakeRest() {
  if (listeners_.empty()) return;
  while (!Input().empty()) {
  }
}

bool TappedPort::LineLost() const {
  const bool lost = port_.LineLost();
  if (lost && !lostTold_) {
    lostTold_ = true;
    Tell(LineEvent::Lost);
  }
  return lost;
}

void TappedPort::Output(std::string_view octets) {
  if (port_.PortOpen() && !LineLost())
    for (LineListener* listener : listeners_) listener->Sent(octets);
  port_.Output(octets);
}

void TappedPort::DiscardOutput() {
  if (const std::size_t queued = port_.OutBufferCount(); queued > 0)
    Tell(LineEvent::Discarded, std::to_string(queued));
  port_.DiscardOutput();
}

std::string TappedPort::Input() {
  std::string octets = port_.Input();
  if (!octets.empty())
    for (LineListener* listener : listeners_) listener->Received(octets);
  return octets;
}

void TappedPort::SetOnComm(std::function<void()> handler) {
  handles_ = true;
  port_.SetOnComm([this, handler = std::move(handler)] {
    if (port_.CommEvent() == kCommEventCarrier)
      Tell(port_.CDHolding() ? LineEvent::CarrierRose : LineEvent::CarrierFell);
    if (handler) handler();
  });
}

void TappedPort::Tell(LineEvent event, const std::string& detail) const {
  for (LineListener* listener : listeners_) listener->Happened(event, detail);
}

}  // namespace ostrel
