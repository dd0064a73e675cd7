#include "shell/compare/Against.h"

#include "shell/Configurator.h"

namespace ostrel {

Against::Against(const Configurator& configurator, const DeviceConf& sent, const DeviceConf& read,
                 Passwords passwords)
    : features_(configurator.info.Features),
      passwords_(passwords),
      sent_{configurator.profile, sent},
      read_{configurator.profile,
            ReadAsSent(read, sent, {configurator.profile, configurator.info.Features})} {}

}  // namespace ostrel
