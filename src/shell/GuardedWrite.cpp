#include "shell/GuardedWrite.h"

#include "shell/Against.h"
#include "shell/Configurator.h"
#include "shell/ledger/IdentityGuard.h"

namespace ostrel {
namespace {

/// Reads what the logger holds, and gets the consent to replace it. Nothing when all is well.
std::optional<WriteEnd> Prepare(Configurator& configurator, const WriteRoad& road,
                                const DeviceConf& toSend) {
  if (!road.keep && !road.mayWrite) return {};
  if (!road.read()) return WriteEnd::NotRead;
  const DeviceConf held = configurator.conf;
  configurator.ShowConfiguration(toSend);
  if (road.keep && !road.keep(held)) return WriteEnd::NotKept;
  if (const auto doubt = DoubtOfHeld(configurator, held);
      doubt && road.inSpiteOf && !road.inSpiteOf(*doubt))
    return WriteEnd::Declined;
  if (road.mayWrite && !road.mayWrite(Against(configurator, toSend, held).WhatChanges()))
    return WriteEnd::Declined;
  return {};
}

WriteEnd Send(Configurator& configurator, const WriteRoad& road, WriteResult& result) {
  if (const auto ended = Prepare(configurator, road, result.sent)) return *ended;
  if (!road.write()) return WriteEnd::NotWritten;
  if (!road.verify) return WriteEnd::Written;
  if (!road.read()) return WriteEnd::NotReadBack;
  result.verified = Against(configurator, result.sent, configurator.conf).WhatCameBack();
  configurator.ledger.Verified(*result.verified);
  return WriteEnd::Written;
}

}  // namespace

WriteResult WriteGuarded(Configurator& configurator, const WriteRoad& road) {
  const auto guarded = configurator.ledger.WithGuards();
  WriteResult result{.sent = configurator.conf};
  result.end = Send(configurator, road, result);
  configurator.ShowConfiguration(result.sent);
  return result;
}

}  // namespace ostrel
