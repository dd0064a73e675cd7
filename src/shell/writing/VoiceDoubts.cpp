#include "shell/writing/VoiceDoubts.h"

#include "base/Numbers.h"

namespace ostrel {

std::optional<VoiceDoubt> DoubtOfVoiceList(const ConfAutVoz& list) {
  using Kind = VoiceDoubt::Kind;
  VoiceDoubt noNumber{.kind = Kind::NoNumber};
  int inUse = 0;
  for (int place = 0; place <= kVoiceNumbers; ++place) {
    const std::string& number = list.TEL[place];
    if (number.empty()) continue;
    ++inUse;
    if (IsIntText(number)) continue;
    if (noNumber.count++ > 0) continue;
    noNumber.place = place;
    noNumber.number = number;
  }
  if (noNumber.count > 0) return noNumber;
  if (inUse > kVoiceNumbers) return VoiceDoubt{Kind::TooMany};
  if (list.MACRO >= kVoiceMacros) return VoiceDoubt{Kind::NoMacro};
  if (inUse == 0) return VoiceDoubt{Kind::Empty};
  return {};
}

}  // namespace ostrel
