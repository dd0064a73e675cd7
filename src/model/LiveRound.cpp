#include "model/LiveRound.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "base/Numbers.h"
#include "model/DeviceConf.h"
#include "model/Features.h"

namespace ostrel {
namespace {

constexpr int kProbes = 4;

struct KindTag {
  LiveKind kind;
  std::string_view tag;
};

constexpr std::array<KindTag, 11> kTags{{
    {LiveKind::Digital, "DI"},
    {LiveKind::Output, "DO"},
    {LiveKind::Flag, "FG"},
    {LiveKind::Analog, "AI"},
    {LiveKind::Counter, "CT"},
    {LiveKind::Flow, "FL"},
    {LiveKind::Math, "MC"},
    {LiveKind::MathRegister, "MR"},
    {LiveKind::Modbus, "MB"},
    {LiveKind::Probe, "PB"},
    {LiveKind::Module, "EX"},
}};

/// Collects the values of a round, kind by kind.
class RoundBuilder {
 public:
  RoundBuilder(const RealTimeData& live, const WallTime& now) : live_(live), round_{now, {}} {}

  void States(LiveKind kind, int count, std::uint32_t mask) {
    const LiveRead& read = live_.ReadOf(LiveAnswer::Masks);
    for (int i = 0; i < count; ++i) {
      LiveValue& value = Add({kind, i}, read);
      if (read.hasCome) value.on = (mask >> i & 1U) != 0;
    }
  }
  /// Inputs that no configuration names have the name that is printed beside them.
  void DigitalInputs(const TargetProfile& profile) {
    States(LiveKind::Digital, DigitalInputsShown(profile),
           static_cast<std::uint16_t>(live_.DigitalMask));
    for (LiveValue& value : round_.values)
      if (value.id.index >= profile.DigitalCount)
        value.name = DigitalInputLabel(profile, value.id.index);
  }
  template <class Numbers, std::size_t N = 1>
  void Measures(LiveKind kind, int count, LiveAnswer answer, const Numbers& numbers,
                const Bounded<std::string, N>* names = nullptr,
                const Bounded<std::string, N>* units = nullptr) {
    for (int i = 0; i < count; ++i) {
      const LiveRead& read = live_.ReadOf(AnswerFor(answer, i));
      LiveValue& value = Add({kind, i}, read);
      if (names) value.name = (*names)[i];
      if (units) value.unit = (*units)[i];
      if (read.hasCome) value.number = static_cast<double>(numbers[i]);
    }
  }
  LiveRound Take() { return std::move(round_); }

 private:
  LiveValue& Add(LiveId id, const LiveRead& read) {
    return round_.values.emplace_back(LiveValue{id, {}, {}, {}, {}, read});
  }
  static LiveAnswer AnswerFor(LiveAnswer answer, int index) {
    return answer == LiveAnswer::Modules0 ? AnswerOfModule(index) : answer;
  }

  const RealTimeData& live_;
  LiveRound round_;
};

}  // namespace

std::string LiveTag(LiveId id) {
  const auto* row = std::ranges::find(kTags, id.kind, &KindTag::kind);
  return std::string(row->tag) + std::to_string(id.index);
}

std::optional<LiveId> LiveIdOf(std::string_view tag) {
  for (const auto& [kind, word] : kTags) {
    if (!tag.starts_with(word)) continue;
    const std::string_view digits = tag.substr(word.size());
    int index = 0;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    const bool isWhole = fault == std::errc() && end == digits.data() + digits.size();
    if (isWhole && index >= 0 && LiveTag({kind, index}) == tag) return LiveId{kind, index};
  }
  return {};
}

const LiveValue* LiveRound::Find(LiveId id) const {
  const auto found = std::ranges::lower_bound(values, id, {}, &LiveValue::id);
  return found != values.end() && found->id == id ? &*found : nullptr;
}

LiveRound TakeRound(const RealTimeData& live, const TargetProfile& profile, const DeviceInfo& info,
                    const WallTime& now) {
  const int maths = Has(info.Features, Feature::Math) ? profile.MathCount : 0;
  Bounded<double, kMathRegisters> registers;
  for (int i = 0; i < kMathRegisters; ++i) registers[i] = NumVal(live.MathRaw[i]);

  RoundBuilder round(live, now);
  round.DigitalInputs(profile);
  round.States(LiveKind::Output, profile.OutputCount, static_cast<std::uint16_t>(live.OutputMask));
  round.States(LiveKind::Flag, kLiveFlags, static_cast<std::uint32_t>(live.FlagMask));
  round.Measures(LiveKind::Analog, profile.AnalogCount, LiveAnswer::Masks, live.AnalogValue,
                 &live.AnalogName, &live.AnalogUnit);
  round.Measures(LiveKind::Counter, profile.CaudalCount, LiveAnswer::Counters, live.CounterValue,
                 &live.CounterName);
  round.Measures(LiveKind::Flow, profile.CaudalCount, LiveAnswer::Flows, live.FlowValue,
                 &live.FlowName, &live.FlowUnit);
  round.Measures(LiveKind::Math, maths, LiveAnswer::Math, live.MathValue, &live.MathName,
                 &live.MathUnit);
  round.Measures(LiveKind::MathRegister, maths > 0 ? kMathRegisters : 0, LiveAnswer::MathRaw,
                 registers);
  round.Measures(LiveKind::Modbus, profile.IsVR200 ? profile.ModbusCount : 0, LiveAnswer::Modbus,
                 live.ModbusValue, &live.ModbusName, &live.ModbusUnit);
  round.Measures(LiveKind::Probe, HasProbes(profile) ? kProbes : 0, LiveAnswer::Aux, live.AuxValue,
                 &live.AuxName, &live.AuxUnit);
  round.Measures(LiveKind::Module, profile.IsS100 ? profile.ModuloCount : 0, LiveAnswer::Modules0,
                 live.ModuloValue, &live.ModuloName, &live.ModuloUnit);
  return round.Take();
}

LiveRound WithNames(LiveRound round, const DeviceConf& conf) {
  for (LiveValue& value : round.values)
    if (value.id.kind == LiveKind::Digital && value.name.empty())
      value.name = conf.Digital[value.id.index].NOMBRE;
  return round;
}

std::string LiveNumberText(LiveKind kind, double number) {
  return IsWide(kind) ? DecText(number) : DecText(static_cast<float>(number));
}

std::string LiveText(const LiveValue& value) {
  if (value.on) return *value.on ? "1" : "0";
  if (!value.number) return {};
  return LiveNumberText(value.id.kind, *value.number);
}

std::string LiveName(LiveId id, const std::string& name) {
  return name.empty() ? LiveTag(id) : name;
}

}  // namespace ostrel
