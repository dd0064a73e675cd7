#include "platform/PortSwitch.h"

#include <algorithm>
#include <utility>

namespace ostrel {

void PortSwitch::AddRange(int first, int last, SerialPort& port) {
  ranges_.push_back({first, last, &port});
  port.SetOnComm([this, &port] {
    if (open_ == &port && onComm_) onComm_();
  });
}

SerialPort* PortSwitch::PortOf(int number) const {
  for (const Range& range : ranges_) {
    if (number >= range.first && number <= range.last) return range.port;
  }
  return nullptr;
}

void PortSwitch::Keep(Property property, Apply apply) {
  std::erase_if(properties_, [&](const auto& kept) { return kept.first == property; });
  if (open_) apply(*open_);
  properties_.emplace_back(property, std::move(apply));
}

void PortSwitch::SetCommPort(int number) { commPort_ = number; }

void PortSwitch::SetSettings(std::string_view settings) {
  Keep(Property::Settings, [text = std::string(settings)](SerialPort& p) { p.SetSettings(text); });
}

void PortSwitch::SetInputLen(int octets) {
  Keep(Property::InputLen, [octets](SerialPort& p) { p.SetInputLen(octets); });
}

void PortSwitch::SetInBufferSize(int octets) {
  Keep(Property::InBufferSize, [octets](SerialPort& p) { p.SetInBufferSize(octets); });
}

void PortSwitch::SetHandshaking(PortHandshaking handshaking) {
  Keep(Property::Handshaking, [handshaking](SerialPort& p) { p.SetHandshaking(handshaking); });
}

void PortSwitch::SetRTSEnable(bool on) {
  Keep(Property::RTSEnable, [on](SerialPort& p) { p.SetRTSEnable(on); });
}

void PortSwitch::SetDTREnable(bool on) {
  Keep(Property::DTREnable, [on](SerialPort& p) { p.SetDTREnable(on); });
}

PortFault PortSwitch::SetPortOpen(bool open) {
  if (!open) {
    if (SerialPort* port = std::exchange(open_, nullptr)) return port->SetPortOpen(false);
    return PortFault::None;
  }
  if (open_) return PortFault::Failed;
  SerialPort* port = PortOf(commPort_);
  if (!port) return PortFault::NoSuchPort;
  port->SetCommPort(commPort_);
  for (const auto& [property, apply] : properties_) apply(*port);
  const PortFault fault = port->SetPortOpen(true);
  if (fault != PortFault::None) return fault;
  open_ = port;
  openNumber_ = commPort_;
  return PortFault::None;
}

void PortSwitch::Output(std::string_view octets) {
  if (open_) open_->Output(octets);
}

void PortSwitch::DiscardOutput() {
  if (open_) open_->DiscardOutput();
}

PortFault PortSwitch::Probe(int number) {
  if (open_ && number == openNumber_) return PortFault::None;
  SerialPort* port = PortOf(number);
  return port ? port->Probe(number) : PortFault::NoSuchPort;
}

std::vector<PortEntry> PortSwitch::Entries() {
  std::vector<PortEntry> entries;
  std::vector<SerialPort*> asked;
  for (const Range& range : ranges_) {
    if (std::find(asked.begin(), asked.end(), range.port) != asked.end()) continue;
    asked.push_back(range.port);
    for (PortEntry& entry : range.port->Entries()) {
      if (PortOf(entry.number) == range.port) entries.push_back(std::move(entry));
    }
  }
  std::stable_sort(entries.begin(), entries.end(),
                   [](const PortEntry& a, const PortEntry& b) { return a.number < b.number; });
  return entries;
}

}  // namespace ostrel
