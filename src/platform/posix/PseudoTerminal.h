#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Line.h"
#include "platform/LineQueue.h"
#include "platform/posix/NodeWatch.h"
#include "platform/qt/QtEventLoop.h"

namespace ostrel {

/// A device of this process on a pseudo-terminal, where other programs open it like a serial port.
///
/// What a pseudo-terminal cannot do: it has no carrier line, so `SetCarrier` is without effect. Its
/// opening and closing are seen at once; a program that closes and opens it between two turns of
/// the loop is not noticed. Nothing wakes the loop while no octet moves. The loop must outlive it.
class PseudoTerminal final : public LineEnd {
 public:
  using Attach = std::function<std::unique_ptr<LineDevice>(LineEnd& end)>;

  /// Makes the terminal and puts a device on it. Paced, octets take their line time each way.
  /// Throws `std::system_error` when the system has no terminal to give.
  PseudoTerminal(QtEventLoop& loop, const Attach& attach, bool paced);
  ~PseudoTerminal() override;
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  /// What other programs open.
  const std::string& SlavePath() const { return slavePath_; }
  /// Whether a program has it open, as far as seen.
  bool InUse() const { return inUse_; }

  void Send(std::string_view octets) override;
  void SetCarrier(bool) override {}
  /// Hangs up on the program; the terminal is gone for good.
  void Vanish() override;

 private:
  void MakeTerminal();
  void SetRaw() const;
  bool FarEndInUse() const;
  void LookForProgram();
  void ReadAll();
  void WriteOn();
  void SetInUse(bool inUse);
  void Deliver();
  void CloseMaster();

  QtEventLoop& loop_;
  int master_ = -1;
  std::string slavePath_;
  std::unique_ptr<NodeWatch> openings_;
  std::unique_ptr<QSocketNotifier> readable_;
  std::unique_ptr<QSocketNotifier> writable_;
  LineQueue toProgram_;
  LineQueue toDevice_;
  std::unique_ptr<LineDevice> device_;
  std::string unwritten_;  ///< off the line, waiting for room in the terminal
  bool inUse_ = false;
};

}  // namespace ostrel
