#include "shell/writing/GuardedWrite.h"

#include <type_traits>

#include "base/Scope.h"
#include "shell/Configurator.h"
#include "shell/compare/Against.h"
#include "shell/ledger/IdentityGuard.h"

namespace ostrel {
namespace {

/// Reads what the logger holds, and gets the consent to replace it. Nothing when all is well.
std::optional<WriteEnd> Prepare(Configurator& configurator, const WriteRoad& road,
                                const DeviceConf& toSend) {
  const auto isDeclined = [&road](const std::optional<Phrase>& doubt) {
    return doubt && road.inSpiteOf && !road.inSpiteOf(*doubt);
  };
  const bool isGuarded = road.inSpiteOf && !road.isFormerState && HaveMet(configurator);
  if (!road.keep && !road.mayWrite && !isGuarded) return {};
  const auto known = configurator.session.ModelDoubt();  // whoever writes has been asked about it
  const auto held = ReadBeside(configurator, road.read);
  if (!held) return WriteEnd::NotRead;
  if (const auto doubt = configurator.session.ModelDoubt(); doubt != known && isDeclined(doubt))
    return WriteEnd::Declined;
  if (road.keep && !road.keep(*held)) return WriteEnd::NotKept;
  if (isGuarded && isDeclined(DoubtOfHeld(configurator, *held))) return WriteEnd::Declined;
  if (road.mayWrite &&
      !road.mayWrite(Against(configurator, toSend, *held, road.passwords).WhatChanges()))
    return WriteEnd::Declined;
  return {};
}

WriteEnd Send(Configurator& configurator, const WriteRoad& road, WriteResult& result) {
  if (const auto ended = Prepare(configurator, road, result.sent)) return *ended;
  if (!road.write()) return WriteEnd::NotWritten;
  if (!road.verify) return WriteEnd::Written;
  const auto held = ReadBeside(configurator, road.read);
  if (!held) return WriteEnd::NotReadBack;
  result.verified = Against(configurator, result.sent, *held, road.passwords).WhatCameBack();
  configurator.ledger.Verified(*result.verified);
  return WriteEnd::Written;
}

}  // namespace

std::optional<DeviceConf> ReadBeside(Configurator& configurator,
                                     const std::function<bool()>& read) {
  DeviceConf held;
  const Lent beside(configurator.received, &held);
  if (!read()) return {};
  return held;
}

WriteResult WriteGuarded(Configurator& configurator, const WriteRoad& road) {
  const auto guarded = configurator.ledger.WithGuards();
  // What its readings tell of the model is asked about: nobody is to be told beside it.
  auto& tell = configurator.session.OnModelDoubt;
  const Lent untold(tell, std::remove_reference_t<decltype(tell)>{});
  configurator.session.ForgetWritten();
  WriteResult result{.sent = configurator.conf};
  result.end = Send(configurator, road, result);
  // A logger holds just this now.
  if (result.verified && result.verified->isSame) configurator.SetOrigin({.isKnown = true});
  return result;
}

}  // namespace ostrel
