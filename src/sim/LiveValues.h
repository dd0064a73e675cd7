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

/// Readings that move as those of a waterworks do, the same for the same seed, and the totals.
/// Levels and temperatures follow the hours of the day, with a ripple; consumption is low at night,
/// and the counters count what flows; a value with an alarm passes its limits now and then. Times
/// are whole seconds of the loop.
class LiveValues {
 public:
  /// `start` is what the logger's clock shows as the loop begins, in seconds.
  LiveValues(const Identity& self, std::uint64_t seed, std::int64_t start);

  /// The reading of an input within its scale; 0 when it is off.
  float Analog(const Configuration& conf, int index, std::int64_t now) const;
  unsigned DigitalMask(std::int64_t now) const;
  /// The first flags tell which analog inputs are outside the limits of their alarms.
  unsigned FlagMask(const Configuration& conf, std::int64_t now) const;
  float Flow(const Configuration& conf, int index, std::int64_t now) const;
  float Math(const Configuration& conf, int index, std::int64_t now) const;
  float Modbus(const Configuration& conf, int index, std::int64_t now) const;
  float Probe(const Configuration& conf, int index, std::int64_t now) const;
  /// An expansion input; it counts on from a value that was set.
  float Module(const Configuration& conf, int index, std::int64_t now) const;
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
  enum class Kind : std::uint64_t { Analog, Digital, Flag, Math, Modbus, Probe, Module, Pulse };

  std::uint64_t Mix(Kind kind, int index) const;
  /// A level from 0 to 1.
  double Curve(Kind kind, int index, std::int64_t now) const;
  /// A contact that is closed for a share of the time.
  bool Contact(Kind kind, int index, double share, std::int64_t now) const;
  unsigned Bits(Kind kind, int first, int count, double share, std::int64_t now) const;
  /// How the pulses of a meter come, in seconds.
  struct Consumption {
    double interval;  ///< from pulse to pulse, on the average
    double ripple;    ///< period in which they come more often and more rarely
  };
  Consumption ConsumptionOf(Kind kind, int index) const;
  /// Pulses since the beginning of all time, and those of the present second.
  double Pulses(Kind kind, int index, std::int64_t now) const;
  double PulsesNow(Kind kind, int index, std::int64_t now) const;
  float FlowOf(Kind kind, int index, float ratio, std::string_view unit, std::int64_t now) const;
  int Grown(const Count& count, Kind kind, int index, std::int64_t now) const;

  Identity self_;
  std::uint64_t seed_;
  std::int64_t start_;
  std::array<Count, kCounters> counters_{};
  std::map<int, Count> modules_;
};

/// The answer to a request for live values, names or units ("#20" to "#36"); nothing when this
/// logger does not know the request.
std::optional<std::string> AnswerLive(std::string_view request, const Identity& self,
                                      const Configuration& conf, const LiveValues& live,
                                      unsigned outputs, std::int64_t now);

}  // namespace ostrel::sim
