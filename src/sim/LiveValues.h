#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "sim/Configuration.h"

namespace ostrel::sim {

inline constexpr int kCounters = 9;

/// Readings that move slowly with time, the same for the same seed, and the totals. Times are
/// whole seconds of the loop.
class LiveValues {
 public:
  LiveValues(const Identity& self, std::uint64_t seed);

  /// The reading of an input within its scale; 0 when it is off.
  float Analog(const Configuration& conf, int index, std::int64_t now) const;
  unsigned DigitalMask(std::int64_t now) const;
  unsigned FlagMask(std::int64_t now) const;
  float Flow(int index, std::int64_t now) const;
  float Math(int index, std::int64_t now) const;
  float Modbus(int index, std::int64_t now) const;
  float Aux(int index, std::int64_t now) const;
  /// An expansion input; it counts on from a value that was set.
  float Module(int index, std::int64_t now) const;
  void SetModule(int index, int value, std::int64_t now) { modules_[index] = {value, now}; }
  /// A total; it counts pulses from the value set last. Indices outside 0 to 8 read 0.
  int Counter(int index, std::int64_t now) const;
  void SetCounter(int index, int value, std::int64_t now);
  /// The expansion inputs that were set, with what each has come to.
  std::map<int, int> ModulesSet(std::int64_t now) const;
  void ForgetModules() { modules_.clear(); }

 private:
  struct Count {
    int value = 0;
    std::int64_t since = 0;
  };
  enum class Kind : std::uint64_t { Analog, Digital, Flag, Flow, Math, Modbus, Aux, Module, Pulse };

  std::uint64_t Mix(Kind kind, int index) const;
  double Wave(Kind kind, int index, std::int64_t now) const;
  unsigned Bits(Kind kind, int count, std::int64_t now) const;
  int Grown(const Count& count, Kind kind, int index, std::int64_t now) const;

  Identity self_;
  std::uint64_t seed_;
  std::array<Count, kCounters> counters_{};
  std::map<int, Count> modules_;
};

/// The answer to a request for live values, names or units ("#20" to "#36"); nothing when this
/// logger does not know the request.
std::optional<std::string> AnswerLive(std::string_view request, const Identity& self,
                                      const Configuration& conf, const LiveValues& live,
                                      unsigned outputs, std::int64_t now);

}  // namespace ostrel::sim
