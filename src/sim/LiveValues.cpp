#include "sim/LiveValues.h"

#include <cmath>
#include <cstddef>

#include "sim/Random.h"

namespace ostrel::sim {
namespace {

/// A value between two ends, in hundredths.
float Between(double first, double last, double share) {
  return static_cast<float>(std::nearbyint((first + (last - first) * share) * 100) / 100);
}

bool IsCounter(int index) { return index >= 0 && index < kCounters; }

}  // namespace

LiveValues::LiveValues(const Identity& self, std::uint64_t seed) : self_(self), seed_(seed) {
  for (int i = 0; i < self.Traits().flows; ++i)
    counters_[static_cast<std::size_t>(i)].value = static_cast<int>(Mix(Kind::Pulse, i) % 100'000);
}

std::uint64_t LiveValues::Mix(Kind kind, int index) const {
  const auto channel = static_cast<std::uint64_t>(kind) * 256 + static_cast<std::uint64_t>(index);
  return Random(seed_ + channel * 0x1000003).Next();
}

/// A slow triangle from 0 to 1 and back.
double LiveValues::Wave(Kind kind, int index, std::int64_t now) const {
  const std::uint64_t mix = Mix(kind, index);
  const std::uint64_t period = 600 + mix % 3000;
  const std::uint64_t phase = (static_cast<std::uint64_t>(now) + (mix >> 32)) % period;
  const double rise = 2 * static_cast<double>(phase) / static_cast<double>(period);
  return rise <= 1 ? rise : 2 - rise;
}

unsigned LiveValues::Bits(Kind kind, int count, std::int64_t now) const {
  unsigned bits = 0;
  for (int i = 0; i < count; ++i) {
    if (Wave(kind, i, now) > 0.5) bits |= 1U << i;
  }
  return bits;
}

/// A pulse comes every 3 to 30 s; at its largest the count starts over.
int LiveValues::Grown(const Count& count, Kind kind, int index, std::int64_t now) const {
  const auto interval = static_cast<std::int64_t>(3 + Mix(kind, index) % 28);
  const std::int64_t value = count.value + (now - count.since) / interval;
  return static_cast<int>(value % (std::int64_t{1} << 31));
}

float LiveValues::Analog(const Configuration& conf, int index, std::int64_t now) const {
  const AnalogInput& input = conf.analogs.at(static_cast<std::size_t>(index));
  if (index >= self_.Traits().analogs || input.interface == Interface::Off) return 0;
  return Between(input.scale.valueAtStart, input.scale.valueAtEnd, Wave(Kind::Analog, index, now));
}

unsigned LiveValues::DigitalMask(std::int64_t now) const {
  return Bits(Kind::Digital, self_.Traits().digitals, now);
}

unsigned LiveValues::FlagMask(std::int64_t now) const { return Bits(Kind::Flag, kFlags, now); }

float LiveValues::Flow(int index, std::int64_t now) const {
  if (index >= self_.Traits().flows) return 0;
  return Between(0, 60, Wave(Kind::Flow, index, now));
}

float LiveValues::Math(int index, std::int64_t now) const {
  if (index >= self_.Traits().maths) return 0;
  return Between(-50, 150, Wave(Kind::Math, index, now));
}

float LiveValues::Modbus(int index, std::int64_t now) const {
  return Between(0, 1000, Wave(Kind::Modbus, index, now));
}

float LiveValues::Aux(int index, std::int64_t now) const {
  return Between(-2, 2, Wave(Kind::Aux, index, now));
}

float LiveValues::Module(int index, std::int64_t now) const {
  const auto set = modules_.find(index);
  if (set != modules_.end())
    return static_cast<float>(Grown(set->second, Kind::Module, index, now));
  return Between(0, 100, Wave(Kind::Module, index, now));
}

int LiveValues::Counter(int index, std::int64_t now) const {
  if (!IsCounter(index) || index >= self_.Traits().flows) return 0;
  return Grown(counters_[static_cast<std::size_t>(index)], Kind::Pulse, index, now);
}

void LiveValues::SetCounter(int index, int value, std::int64_t now) {
  if (IsCounter(index)) counters_[static_cast<std::size_t>(index)] = {value, now};
}

std::map<int, int> LiveValues::ModulesSet(std::int64_t now) const {
  std::map<int, int> values;
  for (const auto& [index, count] : modules_)
    values[index] = Grown(count, Kind::Module, index, now);
  return values;
}

}  // namespace ostrel::sim
