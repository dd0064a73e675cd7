#include <algorithm>
#include <concepts>
#include <cstddef>

#include "sim/LiveValues.h"
#include "sim/wire/NumberText.h"

namespace ostrel::sim {
namespace {

constexpr int kMathRaws = 8;

/// Registers of the expansion inputs: 32 from 29 on, the further 64 from 117 on.
int InputOfRegister(int reg) {
  if (reg >= 29 && reg <= 60) return reg - 29;
  if (reg >= 117 && reg <= 180) return reg - 117 + 32;
  return -1;
}

/// First register of a range "1D24" whose `count` registers are all inputs next to each other;
/// `last` of the range is `span` above its first. The index of the first input, or -1.
int FirstInput(std::string_view range, int span, int count) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  if (range.size() != 4) return -1;
  int ends[2] = {0, 0};
  for (std::size_t i = 0; i < range.size(); ++i) {
    const std::size_t digit = kDigits.find(range[i]);
    if (digit == std::string_view::npos) return -1;
    ends[i / 2] = ends[i / 2] * 16 + static_cast<int>(digit);
  }
  const int first = InputOfRegister(ends[0]);
  const int last = InputOfRegister(ends[0] + count - 1);
  const bool whole = ends[1] - ends[0] == span && first >= 0 && last - first == count - 1;
  return whole ? first : -1;
}

/// Builds the answers; each gives the whole message.
class Answers {
 public:
  Answers(std::string_view head, const Identity& self, const Configuration& conf,
          const LiveValues& live, unsigned outputs, std::int64_t now)
      : text_(head), self_(self), conf_(conf), live_(live), outputs_(outputs), now_(now) {}

  std::string Counters() {
    for (int i = 0; i < kCounters; ++i) Add(live_.Counter(i, now_));
    return text_;
  }
  std::string Flows() {
    for (int i = 0; i < kFlows; ++i) Add(live_.Flow(conf_, i, now_));
    return text_;
  }
  std::string MasksAndAnalogs() {
    Add(live_.DigitalMask(now_));
    Add(outputs_);
    Add(live_.FlagMask(conf_, now_));
    for (int i = 0; i < kAnalogs; ++i) Add(live_.Analog(conf_, i, now_));
    return text_;
  }
  std::string AnalogNames() {
    for (const AnalogInput& input : conf_.analogs) {
      Add(static_cast<int>(input.interface));
      Add(input.group);
      Add(input.scale.valueAtStart);
      Add(input.scale.valueAtEnd);
      Add(input.name);
      Add(input.unit);
    }
    return text_;
  }
  std::string CounterNames() {
    for (const FlowMeter& meter : conf_.flows) Add(meter.name);
    return text_;
  }
  std::string FlowNames() {
    for (const FlowMeter& meter : conf_.flows) AddNames(meter);
    return text_;
  }
  /// The last register is a total, which has more digits than a measured value.
  std::string MathRaws() {
    constexpr std::int64_t kTotal = 123'456'789;
    for (int i = 0; i < kMathRaws - 1; ++i) Add(i < kMaths ? live_.Math(conf_, i, now_) * 2 : 0.0F);
    Add(std::to_string(kTotal + now_) + ".25");
    return text_;
  }
  std::string Maths() {
    for (int i = 0; i < self_.Traits().maths; ++i) Add(live_.Math(conf_, i, now_));
    return text_;
  }
  std::string MathNames() { return Channels(conf_.maths); }
  std::string ModbusNames() { return Channels(conf_.modbus); }
  std::string ModbusValues() {
    for (int i = 0; i < self_.Traits().modbus; ++i) Add(live_.Modbus(conf_, i, now_));
    return text_;
  }
  /// Where there are probes, they stand in the place of the auxiliary inputs.
  std::string AuxNames() { return Channels(conf_.probes); }
  std::string AuxValues() {
    for (int i = 0; i < kProbes; ++i) Add(live_.Probe(conf_, i, now_));
    return text_;
  }
  std::optional<std::string> ModuleNames(std::string_view range) {
    const int first = FirstInput(range, 7, 8);
    if (first < 0) return std::nullopt;
    for (int i = first; i < first + 8; ++i) AddNames(conf_.expansion[static_cast<std::size_t>(i)]);
    return text_;
  }
  std::optional<std::string> ModuleValues(std::string_view range) {
    const int first = FirstInput(range, 32, 32);
    if (first < 0) return std::nullopt;
    for (int i = first; i < first + 32; ++i) Add(live_.Module(conf_, i, now_));
    return text_;
  }

 private:
  void Add(const std::string& field) { text_.append(1, ',').append(field); }
  template <class Number>
  requires(std::integral<Number> || std::same_as<Number, float>) void Add(Number value) {
    text_ += ',';
    AppendNumber(text_, value);
  }
  template <class Channel>
  void AddNames(const Channel& channel) {
    Add(channel.name);
    Add(channel.unit);
  }
  /// Per channel its number and whether it has a name, then name and unit.
  template <class AnyChannels>
  std::string Channels(const AnyChannels& channels) {
    int number = 0;
    for (const auto& channel : channels) {
      Add(number++);
      Add(channel.name.empty() ? 0 : 1);
      AddNames(channel);
    }
    return text_;
  }

  std::string text_;
  const Identity& self_;
  const Configuration& conf_;
  const LiveValues& live_;
  unsigned outputs_;
  std::int64_t now_;
};

struct Request {
  std::string_view request;
  std::string_view head;
  bool (*known)(const Identity& self);
  std::string (Answers::*answer)();
};

bool Always(const Identity&) { return true; }
bool WithMath(const Identity& self) { return self.Has(kMath); }
bool WithModbus(const Identity& self) { return self.Traits().modbus > 0; }
bool WithAux(const Identity& self) { return self.Traits().aux > 0; }

constexpr Request kRequests[] = {
    {"#20", "#DF", Always, &Answers::Counters},
    {"#22", "#DD", Always, &Answers::Flows},
    {"#23", "#DC", Always, &Answers::MasksAndAnalogs},
    {"#25", "#DA", Always, &Answers::AnalogNames},
    {"#26", "#D9", Always, &Answers::CounterNames},
    {"#27", "#D8", Always, &Answers::FlowNames},
    {"#28", "#D7", WithMath, &Answers::MathRaws},
    {"#29", "#D6", WithMath, &Answers::Maths},
    {"#2A", "#D5", WithMath, &Answers::MathNames},
    {"#2C", "#D3", WithModbus, &Answers::ModbusNames},
    {"#2D", "#D2", WithModbus, &Answers::ModbusValues},
    {"#35", "#CA", WithAux, &Answers::AuxNames},
    {"#36", "#C9", WithAux, &Answers::AuxValues},
};

}  // namespace

std::optional<std::string> AnswerLive(std::string_view request, const Identity& self,
                                      const Configuration& conf, const LiveValues& live,
                                      unsigned outputs, std::int64_t now) {
  const auto answers = [&](std::string_view head) {
    return Answers(head, self, conf, live, outputs, now);
  };
  if (self.Traits().modules > 0) {
    if (request.starts_with("#2B")) return answers("#D4").ModuleNames(request.substr(3));
    if (request.starts_with("#2F")) return answers("#D0").ModuleValues(request.substr(3));
  }
  const auto* found = std::ranges::find(kRequests, request, &Request::request);
  if (found == std::ranges::end(kRequests) || !found->known(self)) return std::nullopt;
  Answers answer = answers(found->head);
  return (answer.*found->answer)();
}

}  // namespace ostrel::sim
