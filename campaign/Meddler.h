#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "platform/Line.h"
#include "sim/Random.h"
#include "sim/wire/Frame.h"

namespace ostrel::campaign {

/// What a bad cable does to octets.
enum class Damage { Flip, Drop, Insert, Double, LoseRun };
inline constexpr std::array<std::string_view, 5> kDamageNames{
    "bit turned over", "octet lost", "octet made up", "octet doubled", "run of octets lost"};

/// One way of a line, as good as its cable.
class Way {
 public:
  explicit Way(std::uint64_t seed) : random_(seed) {}

  /// Does such damage to an octet each so many octets, as drawn between the two; once or for ever.
  void Hurt(Damage damage, int first, int last, bool once);
  std::string Pass(std::string_view octets);
  /// How often it has struck.
  std::size_t Strikes() const { return strikes_; }
  /// Whether damage has made a frame that was never sent and bears its check sum: neither end can
  /// know then what was said.
  bool HasForged() const { return hasForged_; }

 private:
  struct Fault {
    Damage damage;
    int first, last;
    bool once;
    int left = 0;  ///< octets until it strikes
  };

  void Strike(Fault& fault, char octet, std::string& out);
  void Watch(std::string_view sent, std::string_view arrived);

  sim::Random random_;
  std::vector<Fault> faults_;
  int losing_ = 0;  ///< octets of a run that is being lost
  std::size_t strikes_ = 0;
  sim::FrameReader sent_, arrived_;
  std::unordered_set<std::string> said_;
  bool hasForged_ = false;
};

/// Stands between a port and a device, and lets damage at what passes.
class Meddler final : public LineDevice, public LineEnd {
 public:
  Meddler(LineEnd& port, std::uint64_t seed) : toDevice(seed), toProgram(~seed), port_(port) {}

  void Receive(std::string_view octets) override { device->Receive(toDevice.Pass(octets)); }
  void SetTerminalReady(bool ready) override { device->SetTerminalReady(ready); }
  void Send(std::string_view octets) override { port_.Send(toProgram.Pass(octets)); }
  void SetCarrier(bool on) override { port_.SetCarrier(on); }
  void Vanish() override { port_.Vanish(); }

  bool HasForged() const { return toDevice.HasForged() || toProgram.HasForged(); }

  Way toDevice, toProgram;
  std::unique_ptr<LineDevice> device;

 private:
  LineEnd& port_;
};

}  // namespace ostrel::campaign
