#include "platform/windows/NamedPipe.h"

#include <limits>
#include <system_error>
#include <utility>

#include "platform/windows/WideText.h"

namespace ostrel {
namespace {

constexpr std::string_view kPipes = "\\\\.\\pipe\\";
/// Octets on the way to the device, beyond which the program is held up as a driver would do it.
constexpr std::size_t kMostUnderway = 4096;
/// Octets kept for a program that does not read; what comes on top is lost, as on a line.
constexpr std::size_t kMostUnwritten = 4'194'304;
constexpr DWORD kPipeOctets = 4096;  // that the system keeps each way

}  // namespace

NamedPipe::NamedPipe(QtEventLoop& loop, const Attach& attach, bool paced)
    : loop_(loop),
      connecting_(loop, [this] { TakeProgram(); }),
      reading_(loop, [this] { TakeRead(); }),
      writing_(loop, [this] { TakeWritten(); }),
      toProgram_(loop, "pipe to program", [this] { WriteOn(); }),
      toDevice_(loop, "pipe to device", [this] { Deliver(); }) {
  toProgram_.SetPaced(paced);
  toDevice_.SetPaced(paced);
  device_ = attach(*this);
  const std::string name = "ostrel-sim-" + std::to_string(::GetCurrentProcessId());
  if (const DWORD error = Open(std::string(kPipes) + name); error != 0)
    throw std::system_error(static_cast<int>(error), std::system_category(), "named pipe");
}

NamedPipe::~NamedPipe() { CloseAll(); }

DWORD NamedPipe::Open(const std::string& path) {
  Handle pipe(::CreateNamedPipeW(
      ToWide(path).c_str(),
      PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
      PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS, 1, kPipeOctets,
      kPipeOctets, 0, nullptr));
  if (!pipe) return ::GetLastError();
  CloseAll();
  pipe_ = std::move(pipe);
  path_ = path;
  Await();
  return 0;
}

std::string NamedPipe::FindAs(const std::string& name) {
  const std::string path = name.starts_with(kPipes) ? name : std::string(kPipes) + name;
  const DWORD error = Open(path);
  return error == 0 ? std::string() : SystemWords(error);
}

void NamedPipe::Await() {
  const bool isDone = ::ConnectNamedPipe(pipe_.Get(), connecting_.State()) != 0;
  // A program that was quicker sets no event.
  if (!isDone && ::GetLastError() == ERROR_PIPE_CONNECTED) return SetInUse(true);
  connecting_.Begun(isDone);
}

void NamedPipe::TakeProgram() {
  if (connecting_.End(pipe_.Get())) SetInUse(true);
}

void NamedPipe::SetInUse(bool inUse) {
  if (inUse == inUse_ || !pipe_) return;
  inUse_ = inUse;
  if (inUse) {
    device_->SetTerminalReady(true);
    return ReadOn();
  }
  writing_.Abandon(pipe_.Get());
  unwritten_.clear();
  underWay_.clear();
  toProgram_.Clear();
  toDevice_.Flush();
  Deliver();
  device_->SetTerminalReady(false);
  if (!pipe_) return;
  ::DisconnectNamedPipe(pipe_.Get());
  Await();
}

void NamedPipe::ReadOn() {
  if (!inUse_ || reading_.IsUnderWay() || toDevice_.Underway() >= kMostUnderway) return;
  const BOOL isDone = ::ReadFile(pipe_.Get(), block_.data(), kBlock, nullptr, reading_.State());
  if (!reading_.Begun(isDone != 0)) SetInUse(false);
}

void NamedPipe::TakeRead() {
  const std::optional<std::size_t> got = reading_.End(pipe_.Get());
  if (!got) return SetInUse(false);
  toDevice_.Put({block_.data(), *got});
  ReadOn();
}

void NamedPipe::Deliver() {
  const std::string octets = toDevice_.Take(std::numeric_limits<std::size_t>::max());
  if (!octets.empty()) device_->Receive(octets);
  ReadOn();
}

void NamedPipe::Send(std::string_view octets) {
  const std::size_t kept = toProgram_.Underway() + unwritten_.size();
  if (inUse_ && kept < kMostUnwritten) toProgram_.Put(octets);
}

void NamedPipe::WriteOn() {
  unwritten_ += toProgram_.Take(std::numeric_limits<std::size_t>::max());
  if (unwritten_.size() > kMostUnwritten) unwritten_.resize(kMostUnwritten);
  if (!inUse_ || writing_.IsUnderWay() || unwritten_.empty()) return;
  underWay_ = std::exchange(unwritten_, {});
  const auto size = static_cast<DWORD>(underWay_.size());
  // A reading tells of a program that has gone.
  writing_.Begun(::WriteFile(pipe_.Get(), underWay_.data(), size, nullptr, writing_.State()) != 0);
}

void NamedPipe::TakeWritten() {
  writing_.End(pipe_.Get());
  WriteOn();
}

void NamedPipe::Vanish() {
  toProgram_.Clear();
  toDevice_.Clear();
  unwritten_.clear();
  inUse_ = false;
  CloseAll();
}

void NamedPipe::CloseAll() {
  if (!pipe_) return;
  for (OverlappedCall* call : {&connecting_, &reading_, &writing_}) call->Abandon(pipe_.Get());
  inUse_ = false;
  pipe_.Close();
}

std::unique_ptr<ServedLine> ServeDevice(QtEventLoop& loop, const ServedLine::Attach& attach,
                                        bool paced) {
  return std::make_unique<NamedPipe>(loop, attach, paced);
}

}  // namespace ostrel
