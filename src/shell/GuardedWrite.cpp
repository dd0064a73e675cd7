#include "shell/GuardedWrite.h"

#include "shell/Configurator.h"

namespace ostrel {
namespace {

/// One side is what was read. The voice-call list is not compared, since no reading brings it.
Comparison CompareHeld(const Configurator& configurator, DeviceConf before,
                       const DeviceConf& after) {
  before.AutVoz = after.AutVoz;
  return Compare({configurator.profile, before}, {configurator.profile, after},
                 configurator.info.Features);
}

/// Reads what the logger holds, and gets the consent to replace it. Nothing when all is well.
std::optional<WriteEnd> Prepare(Configurator& configurator, const WriteRoad& road,
                                const DeviceConf& toSend) {
  if (!road.keep && !road.mayWrite) return {};
  if (!road.read()) return WriteEnd::NotRead;
  const DeviceConf held = configurator.conf;
  configurator.ShowConfiguration(toSend);
  if (road.keep && !road.keep(held)) return WriteEnd::NotKept;
  if (road.mayWrite && !road.mayWrite(CompareHeld(configurator, held, toSend)))
    return WriteEnd::Declined;
  return {};
}

WriteEnd Send(Configurator& configurator, const WriteRoad& road, WriteResult& result) {
  if (const auto ended = Prepare(configurator, road, result.sent)) return *ended;
  if (!road.write()) return WriteEnd::NotWritten;
  if (!road.verify) return WriteEnd::Written;
  if (!road.read()) return WriteEnd::NotReadBack;
  result.verified = CompareHeld(configurator, result.sent, configurator.conf);
  return WriteEnd::Written;
}

}  // namespace

WriteResult WriteGuarded(Configurator& configurator, const WriteRoad& road) {
  WriteResult result{.sent = configurator.conf};
  result.end = Send(configurator, road, result);
  configurator.ShowConfiguration(result.sent);
  return result;
}

}  // namespace ostrel
