#include "shell/words/Recipients.h"

#include "base/Channels.h"
#include "blocks/TelephoneWire.h"
#include "model/Features.h"

namespace ostrel {

std::string MaskTokenOf(const AlarmPlace& place, bool isS100) {
  if (place.section->maskPrefix.empty()) return {};
  std::string token = std::string(place.section->maskPrefix) + std::to_string(place.channel);
  return ChannelToToken(TokenToChannel(token), isS100) == token ? token : std::string();
}

bool Admits(const ConfPhone& phone, const std::string& token, bool isS100,
            std::optional<std::int32_t> features) {
  const bool isShort = features && !Has(*features, Feature::ExtendedMasks);
  if (phone.MASKMODE == 0 && !isShort) return true;
  bool isNamed = false;
  bool isEmpty = true;
  for (int place = 0; place < kMaskPlaces; ++place) {
    const std::string named = ChannelToToken(phone.ListaMask[place], isS100);
    if (named.empty() || (isShort && !IsShortMaskToken(named))) continue;
    isEmpty = false;
    isNamed = isNamed || named == token;
  }
  if (isShort) return isEmpty || isNamed;
  return phone.MASKMODE == 1 ? isNamed : !isNamed;
}

std::vector<std::string> RecipientsOf(const DeviceConf& conf, const AlarmPlace& place, bool isS100,
                                      std::optional<std::int32_t> features) {
  const std::string token = MaskTokenOf(place, isS100);
  std::vector<std::string> numbers;
  for (int slot = 0; slot < kPhones; ++slot)
    if (const ConfPhone& phone = conf.Phone[slot];
        !phone.TLF.empty() && Admits(phone, token, isS100, features))
      numbers.push_back(phone.TLF);
  return numbers;
}

}  // namespace ostrel
