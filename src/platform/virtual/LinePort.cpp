#include "platform/virtual/LinePort.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/LineQueue.h"

namespace ostrel {
namespace {

/// Octets beyond which flow control holds a sender no longer: one that does not heed it.
constexpr std::size_t kMostWaiting = 1U << 20U;

}  // namespace

/// A number's device and the line between it and the port.
class LinePort::Wire final : public LineEnd {
 public:
  Wire(LinePort& port, std::string deviceText, std::string descriptionText)
      : device(std::move(deviceText)),
        description(std::move(descriptionText)),
        toProgram(port.loop_, "line to program", [this] { port_.TakeIn(); }),
        toDevice(port.loop_, "line to device", [this] { Deliver(); }),
        port_(port) {}

  void Send(std::string_view octets) override {
    if (InUse()) toProgram.Put(octets);
  }

  void SetCarrier(bool on) override {
    if (on == carrier) return;
    carrier = on;
    if (InUse()) port_.PostCarrier(on);
  }

  void Vanish() override {
    vanished = true;
    Clear();
    if (port_.open_.get() == this) port_.Forget();
  }

  /// Hands what has come off the line to the device.
  void Deliver() {
    const std::string octets = toDevice.Take(std::numeric_limits<std::size_t>::max());
    if (!octets.empty()) far->Receive(octets);
  }

  void Clear() {
    toProgram.Clear();
    toDevice.Clear();
  }

  void SetPaced(bool paced) {
    toProgram.SetPaced(paced);
    toDevice.SetPaced(paced);
  }

  std::string device;
  std::string description;
  LineQueue toProgram;
  LineQueue toDevice;
  std::unique_ptr<LineDevice> owned;
  LineDevice* far = nullptr;
  PortFault fault = PortFault::None;
  std::optional<ControlLines> lines;
  bool carrier = false;
  bool vanished = false;

 private:
  bool InUse() const { return port_.open_.get() == this && !vanished; }

  LinePort& port_;
};

LinePort::LinePort(EventLoop& loop) : loop_(loop) {}

LinePort::~LinePort() { loop_.Cancel(carrierTimer_); }

LinePort::Wire& LinePort::AddWire(int number, std::string device, std::string description) {
  if (const auto earlier = Find(number)) earlier->Vanish();
  auto wire = std::make_shared<Wire>(*this, std::move(device), std::move(description));
  wire->SetPaced(paced_);
  return *(wires_[number] = std::move(wire));
}

LineEnd& LinePort::AddDevice(int number, std::string device, std::string description,
                             const Attach& attach) {
  Wire& wire = AddWire(number, std::move(device), std::move(description));
  wire.owned = attach(wire);
  wire.far = wire.owned.get();
  return wire;
}

LineEnd& LinePort::AddDevice(int number, std::string device, std::string description,
                             LineDevice& logger) {
  Wire& wire = AddWire(number, std::move(device), std::move(description));
  wire.far = &logger;
  return wire;
}

void LinePort::Restore(int number) {
  const auto wire = Find(number);
  if (wire && wire != open_) wire->vanished = false;
}

void LinePort::SetOpenFault(int number, PortFault fault) {
  if (const auto wire = Find(number)) wire->fault = fault;
}

void LinePort::SetLines(int number, ControlLines lines) {
  if (const auto wire = Find(number)) wire->lines = lines;
}

std::optional<ControlLines> LinePort::Lines() const { return open_ ? open_->lines : std::nullopt; }

void LinePort::HoldOutput(int number, bool hold) {
  if (const auto wire = Find(number)) wire->toDevice.Hold(hold);
}

void LinePort::SetPaced(bool paced) {
  paced_ = paced;
  for (const auto& [number, wire] : wires_) wire->SetPaced(paced);
}

std::shared_ptr<LinePort::Wire> LinePort::Find(int number) const {
  const auto found = wires_.find(number);
  return found == wires_.end() ? nullptr : found->second;
}

PortFault LinePort::FaultOf(int number) const {
  const auto wire = Find(number);
  return !wire || wire->vanished ? PortFault::NoSuchPort : wire->fault;
}

void LinePort::SetInBufferSize(int octets) {
  received_.SetSize(static_cast<std::size_t>(std::max(octets, 1)));
}

void LinePort::SetDTREnable(bool on) {
  if (on == dtr_) return;
  dtr_ = on;
  if (open_ && !open_->vanished) open_->far->SetTerminalReady(on);
}

PortFault LinePort::SetPortOpen(bool open) {
  if (open) return open_ ? PortFault::Failed : Open();
  if (open_) Close();
  return PortFault::None;
}

PortFault LinePort::Open() {
  const PortFault fault = FaultOf(commPort_);
  if (fault != PortFault::None) return fault;
  open_ = Find(commPort_);
  carrier_ = open_->carrier;
  if (dtr_) open_->far->SetTerminalReady(true);
  return PortFault::None;
}

void LinePort::Close() {
  const std::shared_ptr<Wire> wire = std::move(open_);
  open_ = nullptr;
  Forget();
  if (wire->vanished) return;
  // An unpaced line counts as having taken all that was written.
  if (!wire->toDevice.Paced() && !wire->toDevice.OnHold()) wire->toDevice.Flush();
  wire->Deliver();
  wire->Clear();
  if (dtr_) wire->far->SetTerminalReady(false);
}

/// Empties the near end: nothing that came before is seen any more.
void LinePort::Forget() {
  received_.Clear();
  carrier_ = false;
  carrierChanges_.clear();
}

bool LinePort::LineLost() const { return open_ && open_->vanished; }

void LinePort::Output(std::string_view octets) {
  if (open_ && !open_->vanished) open_->toDevice.Put(octets);
}

std::size_t LinePort::OutBufferCount() const {
  if (!open_) return 0;
  const LineQueue& line = open_->toDevice;
  return line.Paced() || line.OnHold() ? line.Underway() : 0;
}

void LinePort::DiscardOutput() {
  if (open_) open_->toDevice.Discard();
}

/// Moves arrived octets into the receive buffer. While the program takes what comes, the sender
/// waits for room, as flow control makes it wait; a talker that nobody listens to is not held.
void LinePort::TakeIn() {
  if (!open_) return;
  LineQueue& line = open_->toProgram;
  const bool waits = std::exchange(isTaken_, false) && line.Arrived() < kMostWaiting;
  received_.Put(line.Take(waits ? received_.Room() : std::numeric_limits<std::size_t>::max()));
}

std::size_t LinePort::InBufferCount() const {
  if (!open_) return 0;
  return std::min(received_.Size(), received_.Count() + open_->toProgram.Arrived());
}

std::string LinePort::Input() {
  isTaken_ = true;
  TakeIn();
  isTaken_ = true;
  return received_.Take(inputLen_);
}

/// Lets the program see a carrier change with the next event.
void LinePort::PostCarrier(bool on) {
  carrierChanges_.push_back(on);
  if (carrierChanges_.size() == 1) {
    loop_.Cancel(carrierTimer_);
    carrierTimer_ = loop_.After(Duration::zero(), "carrier", [this] { TellCarrier(); });
  }
}

void LinePort::TellCarrier() {
  if (carrierChanges_.empty()) return;
  carrier_ = carrierChanges_.front();
  carrierChanges_.pop_front();
  if (!carrierChanges_.empty()) {
    carrierTimer_ = loop_.After(Duration::zero(), "carrier", [this] { TellCarrier(); });
  }
  commEvent_ = kCommEventCarrier;
  if (onComm_) onComm_();
}

PortFault LinePort::Probe(int number) {
  if (open_ && Find(number) == open_) return PortFault::None;
  const PortFault fault = FaultOf(number);
  if (fault == PortFault::None && dtr_) {
    LineDevice& far = *Find(number)->far;
    far.SetTerminalReady(true);
    far.SetTerminalReady(false);
  }
  return fault;
}

std::vector<PortEntry> LinePort::Entries() {
  std::vector<PortEntry> entries;
  for (const auto& [number, wire] : wires_) {
    if (!wire->vanished) entries.push_back({number, wire->device, wire->description});
  }
  return entries;
}

}  // namespace ostrel
