#include "shell/GuardedWrite.h"

#include "shell/Configurator.h"

namespace ostrel {
namespace {

/// What was sent, or is to be, against what the logger has reported.
class Against {
 public:
  Against(const Configurator& configurator, const WriteRoad& road, const DeviceConf& sent,
          const DeviceConf& read)
      : features_(configurator.info.Features),
        passwords_(road.passwords),
        sent_{configurator.profile, sent},
        read_{configurator.profile,
              ReadAsSent(read, sent, {configurator.profile, configurator.info.Features})} {}

  Comparison WhatChanges() const { return Compare(read_, sent_, features_, passwords_); }
  Comparison WhatCameBack() const { return Compare(sent_, read_, features_, passwords_); }

 private:
  std::int32_t features_;
  Passwords passwords_;
  ModelConfiguration sent_, read_;
};

/// Puts back what stood on the pages, at the end of a scope.
class PagesKept {
 public:
  explicit PagesKept(Configurator& configurator)
      : configurator_(configurator), conf_(configurator.conf), origin_(configurator.WhereFrom()) {}
  ~PagesKept() {
    configurator_.ShowConfiguration(conf_);
    configurator_.SetOrigin(std::move(origin_));
  }
  PagesKept(const PagesKept&) = delete;
  PagesKept& operator=(const PagesKept&) = delete;

 private:
  Configurator& configurator_;
  DeviceConf conf_;
  Configurator::Origin origin_;
};

/// Reads what the logger holds, and gets the consent to replace it. Nothing when all is well.
std::optional<WriteEnd> Prepare(Configurator& configurator, const WriteRoad& road,
                                const DeviceConf& toSend) {
  if (!road.keep && !road.mayWrite) return {};
  const auto held = ReadBeside(configurator, road.read);
  if (!held) return WriteEnd::NotRead;
  if (road.keep && !road.keep(*held)) return WriteEnd::NotKept;
  if (road.mayWrite && !road.mayWrite(Against(configurator, road, toSend, *held).WhatChanges()))
    return WriteEnd::Declined;
  return {};
}

WriteEnd Send(Configurator& configurator, const WriteRoad& road, WriteResult& result) {
  if (const auto ended = Prepare(configurator, road, result.sent)) return *ended;
  if (!road.write()) return WriteEnd::NotWritten;
  if (!road.verify) return WriteEnd::Written;
  const auto held = ReadBeside(configurator, road.read);
  if (!held) return WriteEnd::NotReadBack;
  result.verified = Against(configurator, road, result.sent, *held).WhatCameBack();
  return WriteEnd::Written;
}

}  // namespace

std::optional<DeviceConf> ReadBeside(Configurator& configurator,
                                     const std::function<bool()>& read) {
  const PagesKept kept(configurator);
  if (!read()) return {};
  return configurator.conf;
}

WriteResult WriteGuarded(Configurator& configurator, const WriteRoad& road) {
  WriteResult result{.sent = configurator.conf};
  result.end = Send(configurator, road, result);
  // A logger holds just this now.
  if (result.verified && result.verified->isSame) configurator.SetOrigin({.isKnown = true});
  return result;
}

}  // namespace ostrel
