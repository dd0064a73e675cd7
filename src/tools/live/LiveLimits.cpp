#include "tools/live/LiveLimits.h"

#include "model/Features.h"

namespace ostrel {
namespace {

/// The bands of the enabled alarms of a channel; `factor` brings them into the unit of its value.
template <class Channel>
std::vector<AlarmBand> EnabledBands(const Channel& channel, double factor = 1) {
  std::vector<AlarmBand> bands;
  for (int config = 0; config < Channel::kShape.configs; ++config) {
    const auto& [common, levels] = channel.ALARM[config];
    if (common.HABIL)
      bands.push_back({levels.MINIMO * factor, levels.MAXIMO * factor, levels.HISTERESIS * factor});
  }
  return bands;
}

std::vector<AlarmBand> BandsOfModule(const ConfModulo& input) {
  if (input.MODO == kModeFlow) return EnabledBands(input.Q);
  if (input.MODO == kModeAnalog) return EnabledBands(input.A);
  return {};
}

}  // namespace

std::vector<AlarmBand> BandsOf(const DeviceConf& conf, const DeviceInfo& info, LiveId id) {
  switch (id.kind) {
    case LiveKind::Analog:
      return EnabledBands(conf.Analog[id.index]);
    case LiveKind::Probe:
      return EnabledBands(conf.OneWire[id.index]);
    case LiveKind::Math:
      return EnabledBands(conf.Math[id.index]);
    case LiveKind::Module:
      return BandsOfModule(conf.Modulo[id.index]);
    case LiveKind::Modbus: {
      const ConfModbus& channel = conf.Modbus[id.index];
      return channel.ANALOG_MODE ? EnabledBands(channel) : std::vector<AlarmBand>{};
    }
    case LiveKind::Flow: {
      // An older firmware has them in pulses.
      const ConfCaudal& meter = conf.Caudal[id.index];
      const bool inUnits = Has(info.Features, Feature::FlowThresholds);
      return EnabledBands(meter, inUnits ? 1 : meter.RATIO);
    }
    default:
      return {};
  }
}

}  // namespace ostrel
