#include "link/dialogues/LiveRequests.h"

#include <cmath>

#include "link/WireText.h"
#include "model/Features.h"

namespace ostrel {
namespace {

using Fill = std::function<void(LineReader&)>;

constexpr int kCounters = 9;
constexpr int kFlows = 9;
constexpr int kAnalogs = 4;
constexpr int kAuxInputs = 4;
constexpr int kModbusChannels = 32;
constexpr int kModules = 96;
constexpr int kModulesAName = 8;
constexpr int kModulesAValue = 32;

/// Where the names and units of an answer stand: channel i has its name in field
/// `firstField + i * step` and its unit in the next one.
struct NamePlaces {
  int firstField;
  int step;
  int count;
  int firstIndex = 0;
};

template <class Array>
Fill NamesInto(Array& names, Array& units, NamePlaces places) {
  return [&names, &units, places](LineReader& line) {
    line.Skip(places.firstField - 2);
    for (int i = places.firstIndex; i < places.firstIndex + places.count; ++i) {
      line.Into(names[i]);
      line.Into(units[i]);
      line.Skip(places.step - 2);
    }
  };
}

/// Takes fields from 2 on into an array, from `first` on.
template <class Array>
Fill FieldsInto(Array& array, int count, int first = 0) {
  return [&array, count, first](LineReader& line) {
    for (int i = first; i < first + count; ++i) line.Into(array[i]);
  };
}

Fill MasksInto(RealTimeData& live) {
  return [&live](LineReader& line) {
    line.Into(live.DigitalMask);
    line.Into(live.OutputMask);
    line.Into(live.FlagMask);
    for (int i = 0; i < kAnalogs; ++i) line.Into(live.AnalogValue[i]);
  };
}

Fill RawMathInto(RealTimeData& live) {
  return [&live](LineReader& line) {
    for (int i = 0; i < kMathRegisters; ++i) live.MathRaw[i] = DecText(line.Number());
  };
}

/// The expansion inputs stand in two runs of registers, 32 from 29 on and 64 from 117 on.
std::string ModuleRange(int index) {
  const int first = index < 32 ? index + 29 : index + 85;
  const int last = first + kModulesAName - 1;
  return HexOctet(static_cast<std::uint8_t>(first)) + HexOctet(static_cast<std::uint8_t>(last));
}

std::vector<LiveRequest> Applying(std::vector<LiveRequest> requests) {
  std::erase_if(requests, [](const LiveRequest& request) { return !request.applies; });
  return requests;
}

}  // namespace

LiveRequest TotalsRequest(TotalCounts& totals) {
  return {"#20", "#DF", true, [&totals](LineReader& line) {
            for (int i = 0; i < kCounters; ++i) {
              const double whole = std::trunc(line.Number());
              totals[i] = RoundToEven<std::int32_t>(whole).value_or(totals[i]);
            }
          }};
}

std::vector<LiveRequest> NameRequests(RealTimeData& live, const TargetProfile& profile,
                                      const DeviceInfo& info) {
  const bool hasMath = Has(info.Features, Feature::Math);
  std::vector<LiveRequest> requests;
  for (int index = 0; index < kModules; index += kModulesAName)
    requests.push_back({"#2B" + ModuleRange(index), "#D4", profile.IsS100,
                        NamesInto(live.ModuloName, live.ModuloUnit, {2, 2, kModulesAName, index})});
  const auto add = [&](std::string message, std::string_view head, bool applies, Fill fill) {
    requests.push_back({std::move(message), head, applies, std::move(fill)});
  };
  add("#2C", "#D3", profile.IsVR200,
      NamesInto(live.ModbusName, live.ModbusUnit, {4, 4, kModbusChannels}));
  add("#35", "#CA", HasProbes(profile), NamesInto(live.AuxName, live.AuxUnit, {4, 4, kAuxInputs}));
  add("#26", "#D9", true, FieldsInto(live.CounterName, kCounters));
  add("#27", "#D8", true, NamesInto(live.FlowName, live.FlowUnit, {2, 2, kFlows}));
  add("#25", "#DA", true, NamesInto(live.AnalogName, live.AnalogUnit, {6, 6, kAnalogs}));
  add("#2A", "#D5", hasMath, NamesInto(live.MathName, live.MathUnit, {4, 4, profile.MathCount}));
  return Applying(std::move(requests));
}

std::vector<LiveRequest> ValueRequests(RealTimeData& live, const TargetProfile& profile,
                                       const DeviceInfo& info) {
  const bool hasMath = Has(info.Features, Feature::Math);
  const auto modules = [&live](int first) {
    return FieldsInto(live.ModuloValue, kModulesAValue, first);
  };
  const auto into = [&live](LiveAnswer answer) { return &live.reads[static_cast<int>(answer)]; };
  return Applying({
      {"#2F1D3D", "#D0", profile.IsS100, modules(0), into(LiveAnswer::Modules0)},
      {"#2F7595", "#D0", profile.IsS100, modules(32), into(LiveAnswer::Modules32)},
      {"#2F95B5", "#D0", profile.IsS100, modules(64), into(LiveAnswer::Modules64)},
      {"#2D", "#D2", profile.IsVR200, FieldsInto(live.ModbusValue, kModbusChannels),
       into(LiveAnswer::Modbus)},
      {"#20", "#DF", true, FieldsInto(live.CounterValue, kCounters), into(LiveAnswer::Counters)},
      {"#22", "#DD", true, FieldsInto(live.FlowValue, kFlows), into(LiveAnswer::Flows)},
      {std::string(kMasksRequest), "#DC", true, MasksInto(live), into(LiveAnswer::Masks)},
      {"#29", "#D6", hasMath, FieldsInto(live.MathValue, profile.MathCount),
       into(LiveAnswer::Math)},
      {"#28", "#D7", hasMath, RawMathInto(live), into(LiveAnswer::MathRaw)},
      {"#36", "#C9", HasProbes(profile), FieldsInto(live.AuxValue, kAuxInputs),
       into(LiveAnswer::Aux)},
  });
}

}  // namespace ostrel
