#include "shell/GuardedWrite.h"

#include "shell/Configurator.h"

namespace ostrel {
namespace {

/// What was sent, or is to be, against what the logger has reported.
class Against {
 public:
  Against(const Configurator& configurator, const DeviceConf& sent, const DeviceConf& read)
      : features_(configurator.info.Features),
        sent_{configurator.profile, sent},
        read_{configurator.profile,
              ReadAsSent(read, sent, {configurator.profile, configurator.info.Features})} {}

  Comparison WhatChanges() const { return Compare(read_, sent_, features_); }
  Comparison WhatCameBack() const { return Compare(sent_, read_, features_); }

 private:
  std::int32_t features_;
  ModelConfiguration sent_, read_;
};

/// Reads what the logger holds, and gets the consent to replace it. Nothing when all is well.
std::optional<WriteEnd> Prepare(Configurator& configurator, const WriteRoad& road,
                                const DeviceConf& toSend) {
  if (!road.keep && !road.mayWrite) return {};
  if (!road.read()) return WriteEnd::NotRead;
  const DeviceConf held = configurator.conf;
  configurator.ShowConfiguration(toSend);
  if (road.keep && !road.keep(held)) return WriteEnd::NotKept;
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
