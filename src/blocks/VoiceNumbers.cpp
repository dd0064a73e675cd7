#include "blocks/VoiceNumbers.h"

namespace ostrel {

void VoiceNumbers::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  SetNumbers(conf.AutVoz, {});
  conf.AutVoz.MACRO = kNoVoiceMacro;
}

}  // namespace ostrel
