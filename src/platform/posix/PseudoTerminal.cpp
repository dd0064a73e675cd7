#include "platform/posix/PseudoTerminal.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <limits>
#include <system_error>
#include <utility>

namespace ostrel {
namespace {

/// Octets on the way to the device, beyond which the program is held up as a driver would do it.
constexpr std::size_t kMostUnderway = 4096;
/// Octets kept for a program that does not read; what comes on top is lost, as on a line.
constexpr std::size_t kMostUnwritten = 4'194'304;

void Require(bool ok, const char* what) {
  if (!ok) throw std::system_error(errno, std::generic_category(), what);
}

}  // namespace

PseudoTerminal::PseudoTerminal(QtEventLoop& loop, const Attach& attach, bool paced)
    : loop_(loop),
      toProgram_(loop, "terminal to program", [this] { WriteOn(); }),
      toDevice_(loop, "terminal to device", [this] { Deliver(); }) {
  toProgram_.SetPaced(paced);
  toDevice_.SetPaced(paced);
  try {
    MakeTerminal();
    device_ = attach(*this);
  } catch (...) {
    CloseMaster();
    throw;
  }
}

PseudoTerminal::~PseudoTerminal() { CloseMaster(); }

void PseudoTerminal::MakeTerminal() {
  master_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  Require(master_ >= 0 && ::grantpt(master_) == 0 && ::unlockpt(master_) == 0, "pseudo-terminal");
  std::array<char, 256> name{};
  Require(::ptsname_r(master_, name.data(), name.size()) == 0, "pseudo-terminal");
  slavePath_ = name.data();
  // Opened and closed once: from then on the system tells whether some program has it open.
  const int slave = ::open(slavePath_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  Require(slave >= 0, "pseudo-terminal");
  SetRaw();
  ::close(slave);
  openings_ = std::make_unique<NodeWatch>(
      loop_, slavePath_, [this] { LookForProgram(); }, NodeEvent::Opened);
  Require(openings_->Watches(), "watch of the pseudo-terminal");
  readable_ = std::make_unique<QSocketNotifier>(master_, QSocketNotifier::Read);
  writable_ = std::make_unique<QSocketNotifier>(master_, QSocketNotifier::Write);
  readable_->setEnabled(false);
  writable_->setEnabled(false);
  QObject::connect(readable_.get(), &QSocketNotifier::activated, readable_.get(),
                   [this] { loop_.Guard([this] { ReadAll(); }); });
  QObject::connect(writable_.get(), &QSocketNotifier::activated, writable_.get(),
                   [this] { loop_.Guard([this] { WriteOn(); }); });
}

/// Octets pass as they are, without echo. Asked of the near end, which sets the mode of both.
void PseudoTerminal::SetRaw() const {
  termios mode{};
  if (::tcgetattr(master_, &mode) != 0) return;
  ::cfmakeraw(&mode);
  ::tcsetattr(master_, TCSANOW, &mode);
}

/// Whether a program has the far end open, or has left octets there before it closed it.
bool PseudoTerminal::FarEndInUse() const {
  pollfd state{master_, POLLIN, 0};
  if (::poll(&state, 1, 0) <= 0) return true;
  return (state.revents & POLLIN) != 0 || (state.revents & POLLHUP) == 0;
}

/// Some program has opened the terminal. A closed one would wake the loop without end, so the other
/// notifiers are off until then.
void PseudoTerminal::LookForProgram() {
  if (inUse_ || master_ < 0 || !FarEndInUse()) return;
  SetRaw();
  SetInUse(true);
}

void PseudoTerminal::SetInUse(bool inUse) {
  if (inUse == inUse_ || master_ < 0) return;
  inUse_ = inUse;
  readable_->setEnabled(inUse);
  if (!inUse) {
    writable_->setEnabled(false);
    unwritten_.clear();
    toProgram_.Clear();
    toDevice_.Flush();
    Deliver();
    if (master_ < 0) return;
  }
  device_->SetTerminalReady(inUse);
}

void PseudoTerminal::ReadAll() {
  std::array<char, 1024> block;
  while (master_ >= 0) {
    if (toDevice_.Underway() >= kMostUnderway) {
      readable_->setEnabled(false);
      return;
    }
    const ssize_t got = ::read(master_, block.data(), block.size());
    if (got > 0) {
      toDevice_.Put({block.data(), static_cast<std::size_t>(got)});
    } else if (got == 0 || errno != EINTR) {
      if (got == 0 || errno != EAGAIN) SetInUse(false);
      return;
    }
  }
}

void PseudoTerminal::Deliver() {
  const std::string octets = toDevice_.Take(std::numeric_limits<std::size_t>::max());
  if (!octets.empty()) device_->Receive(octets);
  if (inUse_ && toDevice_.Underway() < kMostUnderway) readable_->setEnabled(true);
}

void PseudoTerminal::Send(std::string_view octets) {
  const std::size_t kept = toProgram_.Underway() + unwritten_.size();
  if (inUse_ && kept < kMostUnwritten) toProgram_.Put(octets);
}

/// Hands what has come off the line to the terminal, as far as that has room.
void PseudoTerminal::WriteOn() {
  unwritten_ += toProgram_.Take(std::numeric_limits<std::size_t>::max());
  if (unwritten_.size() > kMostUnwritten) unwritten_.resize(kMostUnwritten);
  while (master_ >= 0 && !unwritten_.empty()) {
    const ssize_t written = ::write(master_, unwritten_.data(), unwritten_.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) break;
    unwritten_.erase(0, static_cast<std::size_t>(written));
  }
  if (writable_) writable_->setEnabled(inUse_ && !unwritten_.empty());
}

void PseudoTerminal::Vanish() {
  toProgram_.Clear();
  toDevice_.Clear();
  unwritten_.clear();
  inUse_ = false;
  CloseMaster();
}

void PseudoTerminal::CloseMaster() {
  // A notifier may be calling: it is only switched off here.
  if (readable_) readable_->setEnabled(false);
  if (writable_) writable_->setEnabled(false);
  if (master_ >= 0) ::close(std::exchange(master_, -1));
}

}  // namespace ostrel
