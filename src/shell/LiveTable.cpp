#include "shell/LiveTable.h"

#include "base/Values.h"
#include "model/Features.h"

namespace ostrel {
namespace {

template <class Values, class Names, class Units>
LiveGroup MakeGroup(std::string_view key, std::string_view title, int count, const Values& values,
                    const Names& names, const Units& units) {
  LiveGroup group{key, title, {}};
  for (int i = 0; i < count; ++i) group.measures.push_back({i, values[i], names[i], units[i]});
  return group;
}

}  // namespace

std::vector<LiveGroup> LiveGroups(const RealTimeData& live, const TargetProfile& model,
                                  std::int32_t features) {
  const Bounded<std::string, 10> noUnits;
  const int aux = model.IsKA1 || model.IsKA2 ? 4 : 0;
  const int math = Has(features, Feature::Math) ? model.MathCount : 0;
  return {
      MakeGroup("analog", "analog input", model.AnalogCount, live.AnalogValue, live.AnalogName,
                live.AnalogUnit),
      MakeGroup("counters", "counter", model.CaudalCount, live.CounterValue, live.CounterName,
                noUnits),
      MakeGroup("flows", "flow meter", model.CaudalCount, live.FlowValue, live.FlowName,
                live.FlowUnit),
      MakeGroup("math", "math channel", math, live.MathValue, live.MathName, live.MathUnit),
      MakeGroup("modbus", "MODBUS channel", model.IsVR200 ? model.ModbusCount : 0, live.ModbusValue,
                live.ModbusName, live.ModbusUnit),
      MakeGroup("aux", "auxiliary input", aux, live.AuxValue, live.AuxName, live.AuxUnit),
      MakeGroup("modules", "expansion input", model.ModuloCount, live.ModuloValue, live.ModuloName,
                live.ModuloUnit),
  };
}

std::vector<LiveStates> LiveStatesOf(const RealTimeData& live, const TargetProfile& model) {
  return {{"digital", "digital inputs", static_cast<std::uint16_t>(live.DigitalMask),
           model.DigitalCount},
          {"outputs", "outputs", static_cast<std::uint16_t>(live.OutputMask), model.OutputCount},
          {"flags", "flags", static_cast<std::uint32_t>(live.FlagMask), 16}};
}

std::string LiveText(const LiveMeasure& measure) {
  const auto* number = std::get_if<float>(&measure.value);
  return number ? DecText(*number) : std::to_string(std::get<std::int32_t>(measure.value));
}

}  // namespace ostrel
