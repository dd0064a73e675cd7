#pragma once

#include <windows.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "platform/LineQueue.h"
#include "platform/qt/ServedLine.h"
#include "platform/windows/Handle.h"
#include "platform/windows/OverlappedCall.h"

namespace ostrel {

/// A device of this process on a named pipe, where one program at a time opens it like a serial
/// port. A pipe has no carrier line, so `SetCarrier` is without effect. Nothing wakes the loop
/// while no octet moves. The loop must outlive it.
class NamedPipe final : public LineEnd, public ServedLine {
 public:
  NamedPipe(QtEventLoop& loop, const Attach& attach, bool paced);
  ~NamedPipe() override;
  NamedPipe(const NamedPipe&) = delete;
  NamedPipe& operator=(const NamedPipe&) = delete;

  std::string Path() const override { return path_; }
  /// The pipe takes the name, with or without "\\.\pipe\" before it, for its own.
  std::string FindAs(const std::string& name) override;

  void Send(std::string_view octets) override;
  void SetCarrier(bool) override {}
  /// Ends the connection; the pipe is gone for good.
  void Vanish() override;

 private:
  /// Makes the pipe and waits for a program. Gives the system's error; 0 for none.
  DWORD Open(const std::string& path);
  void Await();
  void TakeProgram();
  void ReadOn();
  void TakeRead();
  void WriteOn();
  void TakeWritten();
  void Deliver();
  void SetInUse(bool inUse);
  void CloseAll();

  QtEventLoop& loop_;
  std::string path_;
  Handle pipe_;
  OverlappedCall connecting_, reading_, writing_;
  LineQueue toProgram_;
  LineQueue toDevice_;
  std::unique_ptr<LineDevice> device_;
  static constexpr DWORD kBlock = 1024;
  std::array<char, kBlock> block_{};  ///< octets that are being read
  std::string unwritten_;             ///< off the line, behind those that are being written
  std::string underWay_;              ///< being written
  bool inUse_ = false;
};

}  // namespace ostrel
