#include "sim/LiveValues.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <span>

#include "sim/Random.h"

namespace ostrel::sim {
namespace {

constexpr double kHour = 3600;
constexpr double kDay = 24 * kHour;
constexpr double kFullest = 6 * kHour;   // of the day: reservoirs fill at night
constexpr double kQuietest = 4 * kHour;  // when least is drawn
constexpr double kDayShare = 0.7;        // of the consumption, that comes and goes with the day
constexpr double kRippleShare = 0.25;

/// An angle that goes round once in a period.
double Turn(double seconds, double period) { return 2 * std::numbers::pi * seconds / period; }

/// A value between two ends, in hundredths.
float Between(double first, double last, double share) {
  return static_cast<float>(std::nearbyint((first + (last - first) * share) * 100) / 100);
}

/// The ends between which a value moves: a little beyond the limits of its first alarm that is on,
/// so that alarms come and go; else the given ones.
struct Ends {
  double first, last;
};
Ends EndsOf(std::span<const Alarm> alarms, const Ends& otherwise) {
  constexpr double kBeyond = 0.12;
  for (const Alarm& alarm : alarms) {
    const double span = alarm.maximum - alarm.minimum;
    if (alarm.week != 0 && span > 0)
      return {alarm.minimum - kBeyond * span, alarm.maximum + kBeyond * span};
  }
  return otherwise;
}

bool IsCounter(int index) { return index >= 0 && index < kCounters; }

/// The seconds in which a flow is told, by its unit; an hour where that tells none.
double TimeOfUnit(std::string_view unit) {
  if (unit.ends_with("/min")) return 60;
  return unit.ends_with("/s") ? 1 : kHour;
}

}  // namespace

LiveValues::LiveValues(const Identity& self, std::uint64_t seed, std::int64_t start)
    : self_(self), seed_(seed), start_(start) {
  for (int i = 0; i < self.Traits().flows; ++i)
    counters_[static_cast<std::size_t>(i)].value = static_cast<int>(Mix(Kind::Pulse, i) % 100'000);
}

std::uint64_t LiveValues::Mix(Kind kind, int index) const {
  const auto channel = static_cast<std::uint64_t>(kind) * 256 + static_cast<std::uint64_t>(index);
  return Random(seed_ + channel * 0x1000003).Next();
}

double LiveValues::Curve(Kind kind, int index, std::int64_t now) const {
  const std::uint64_t mix = Mix(kind, index);
  const auto time = static_cast<double>(start_ + now);
  const double lag = static_cast<double>(mix % 7) * kHour / 2;
  const double period = 300 + static_cast<double>(mix >> 16 & 0x1FF);
  const double day = 0.36 * std::cos(Turn(time - kFullest - lag, kDay));
  const double ripple = 0.16 * std::sin(Turn(time + static_cast<double>(mix >> 40), period));
  const double noise =
      0.01 *
      (static_cast<double>(Random(mix + static_cast<std::uint64_t>(now)).Next() >> 11) * 0x1p-53 -
       0.5);
  return std::clamp(0.5 + day + ripple + noise, 0.0, 1.0);
}

bool LiveValues::Contact(Kind kind, int index, double share, std::int64_t now) const {
  const std::uint64_t mix = Mix(kind, index);
  const std::uint64_t period = 120 + mix % 1200;
  const std::uint64_t phase = (static_cast<std::uint64_t>(start_ + now) + (mix >> 32)) % period;
  return static_cast<double>(phase) < share * static_cast<double>(period);
}

unsigned LiveValues::Bits(Kind kind, int first, int count, double share, std::int64_t now) const {
  unsigned bits = 0;
  for (int i = first; i < count; ++i)
    if (Contact(kind, i, share, now)) bits |= 1U << i;
  return bits;
}

/// A pulse comes every 3 to 30 s on the average of a day, more rarely at night.
LiveValues::Consumption LiveValues::ConsumptionOf(Kind kind, int index) const {
  const std::uint64_t mix = Mix(kind, index);
  return {static_cast<double>(3 + mix % 28), 900 + static_cast<double>(mix >> 32 & 0x3FF)};
}

double LiveValues::PulsesNow(Kind kind, int index, std::int64_t now) const {
  const auto [interval, ripple] = ConsumptionOf(kind, index);
  const auto time = static_cast<double>(start_ + now);
  return (1 - kDayShare * std::cos(Turn(time - kQuietest, kDay)) +
          kRippleShare * std::sin(Turn(time, ripple))) /
         interval;
}

/// The integral of the pulses of a second.
double LiveValues::Pulses(Kind kind, int index, std::int64_t now) const {
  const auto [interval, ripple] = ConsumptionOf(kind, index);
  const auto time = static_cast<double>(start_ + now);
  return (time - kDayShare * std::sin(Turn(time - kQuietest, kDay)) / Turn(1, kDay) -
          kRippleShare * std::cos(Turn(time, ripple)) / Turn(1, ripple)) /
         interval;
}

/// At its largest the count starts over.
int LiveValues::Grown(const Count& count, Kind kind, int index, std::int64_t now) const {
  const double grown = Pulses(kind, index, now) - Pulses(kind, index, count.since);
  const std::int64_t value = count.value + static_cast<std::int64_t>(grown);
  return static_cast<int>(value % (std::int64_t{1} << 31));
}

float LiveValues::FlowOf(Kind kind, int index, float ratio, std::string_view unit,
                         std::int64_t now) const {
  return Between(0, PulsesNow(kind, index, now) * TimeOfUnit(unit), static_cast<double>(ratio));
}

float LiveValues::Analog(const Configuration& conf, int index, std::int64_t now) const {
  const AnalogInput& input = conf.analogs.at(static_cast<std::size_t>(index));
  if (index >= self_.Traits().analogs || input.interface == Interface::Off) return 0;
  const auto [low, high] = std::minmax(input.scale.valueAtStart, input.scale.valueAtEnd);
  const Ends ends = EndsOf(input.alarms, {low, high});
  return std::clamp(Between(ends.first, ends.last, Curve(Kind::Analog, index, now)), low, high);
}

unsigned LiveValues::DigitalMask(std::int64_t now) const {
  constexpr unsigned kPumps = 0x55;  // run half of the time; the others are contacts of alarms
  // A BQ tells the direction of its flows behind its inputs.
  const ModelTraits& model = self_.Traits();
  const int count = model.digitals + (self_.model == Model::BQ ? model.flows : 0);
  return (Bits(Kind::Digital, 0, count, 0.5, now) & kPumps) |
         (Bits(Kind::Digital, 0, count, 0.15, now) & ~kPumps);
}

unsigned LiveValues::FlagMask(const Configuration& conf, std::int64_t now) const {
  unsigned bits = Bits(Kind::Flag, kAnalogs, kFlags, 0.1, now);
  for (int i = 0; i < kAnalogs; ++i) {
    const float value = Analog(conf, i, now);
    const AlarmRow& alarms = conf.analogs[static_cast<std::size_t>(i)].alarms;
    const auto isOutside = [value](const Alarm& alarm) {
      return alarm.week != 0 && (value < alarm.minimum || value > alarm.maximum);
    };
    if (std::ranges::any_of(alarms, isOutside)) bits |= 1U << i;
  }
  return bits;
}

float LiveValues::Flow(const Configuration& conf, int index, std::int64_t now) const {
  const FlowMeter& meter = conf.flows.at(static_cast<std::size_t>(index));
  if (index >= self_.Traits().flows || meter.timeBase == 0) return 0;
  return FlowOf(Kind::Pulse, index, meter.ratio, meter.unit, now);
}

float LiveValues::Math(const Configuration& conf, int index, std::int64_t now) const {
  const MathChannel& channel = conf.maths.at(static_cast<std::size_t>(index));
  if (index >= self_.Traits().maths || !channel.on) return 0;
  const Ends ends = EndsOf(channel.alarms, {-50, 150});
  return Between(ends.first, ends.last, Curve(Kind::Math, index, now));
}

float LiveValues::Modbus(const Configuration& conf, int index, std::int64_t now) const {
  const ModbusChannel& channel = conf.modbus.at(static_cast<std::size_t>(index));
  if (channel.slave == 0) return 0;
  if (channel.multiplier == 0) return Contact(Kind::Modbus, index, 0.15, now) ? 1 : 0;
  const std::int64_t meter = static_cast<std::int64_t>(Mix(Kind::Modbus, index) % 100'000);
  if (channel.size == RegisterSize::Bits32)
    return Between(0, static_cast<double>(channel.multiplier),
                   static_cast<double>(meter) + Pulses(Kind::Modbus, index, now) -
                       Pulses(Kind::Modbus, index, 0));
  const Ends ends = EndsOf(channel.alarms, {0, 1000});
  return Between(ends.first, ends.last, Curve(Kind::Modbus, index, now));
}

float LiveValues::Probe(const Configuration& conf, int index, std::int64_t now) const {
  const sim::Probe& probe = conf.probes.at(static_cast<std::size_t>(index));
  if (probe.kind == ProbeKind::Off) return 0;
  const bool isHumidity = probe.kind == ProbeKind::Humidity;
  const Ends ends = EndsOf(probe.alarms, isHumidity ? Ends{35, 95} : Ends{-5, 35});
  return Between(ends.first, ends.last, Curve(Kind::Probe, index, now));
}

float LiveValues::Module(const Configuration& conf, int index, std::int64_t now) const {
  const ExpansionInput& input = conf.expansion.at(static_cast<std::size_t>(index));
  const auto set = modules_.find(index);
  if (set != modules_.end() || input.mode == ExpansionMode::Counter)
    return static_cast<float>(
        Grown(set != modules_.end() ? set->second : Count{}, Kind::Module, index, now));
  switch (input.mode) {
    case ExpansionMode::Digital:
      return Contact(Kind::Module, index, 0.15, now) ? 1 : 0;
    case ExpansionMode::Flow:
      return FlowOf(Kind::Module, index, input.ratio, input.unit, now);
    case ExpansionMode::Analog: {
      const Ends ends = EndsOf(input.alarms, {input.scale.valueAtStart, input.scale.valueAtEnd});
      return Between(ends.first, ends.last, Curve(Kind::Module, index, now));
    }
    default:
      return 0;
  }
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
