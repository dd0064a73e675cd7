#include "blocks/TelephoneWire.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/Channels.h"
#include "base/Utf8.h"

namespace ostrel {
namespace {

/// The channels of a mask in the form of older firmware, lowest bit first.
constexpr std::array<std::string_view, 12> kShortMaskChannels{
    "DI0", "DI1", "DI2", "DI3", "DI4", "DI5", "DI6", "DI7", "AI0", "AI1", "AI2", "AI3"};

/// Reads the bit mask of an older firmware into the places of a telephone, which are all empty.
void ReadShortMask(std::int32_t mask, std::int32_t features, ConfPhone& phone) {
  const std::int32_t allChannels = Has(features, Feature::AllChannelsIsMinusOne) ? -1 : 65535;
  phone.MASKMODE = mask == allChannels ? 0 : 1;
  if (mask == allChannels) return;
  int place = 0;
  for (std::size_t bit = 0; bit < kShortMaskChannels.size(); ++bit)
    if ((static_cast<std::uint32_t>(mask) >> bit & 1) != 0)
      phone.ListaMask[place++] = TokenToChannel(kShortMaskChannels[bit]);
}

/// The token of a mask place for an older firmware; empty for a channel that it does not know.
std::string ShortToken(std::int16_t channel, bool isS100) {
  const std::string token(ChannelToToken(channel, isS100));
  if (!IsShortMaskToken(token)) return {};
  return {token[0], token[2]};
}

void AddExtendedMask(Statement& statement, const ConfPhone& phone) {
  if (phone.MASKMODE > 0) {
    statement.Text(",MASK=");
    for (int place = 0; place < kMaskPlaces; ++place)
      statement.Text(" ").Digits(phone.ListaMask[place]);
  }
  statement.Text(",MASKMODE").Digits(phone.MASKMODE);
}

}  // namespace

bool IsShortMaskToken(std::string_view token) {
  return std::ranges::find(kShortMaskChannels, token) != kShortMaskChannels.end();
}

void ReadPhone(LineReader& line, std::int32_t features, DeviceConf& conf) {
  const std::int32_t slot = line.Index();
  std::string number = line.Text();
  if (CharacterCount(number) < kShortestNumber) return;  // a free slot
  ConfPhone& phone = conf.Phone[slot];
  for (int place = 0; place < kMaskPlaces; ++place) phone.ListaMask[place] = kNoChannel;
  phone.TLF = std::move(number);
  line.Into(phone.Prio);
  line.Into(phone.PRV);
  if (Has(features, Feature::ExtendedMasks)) {
    line.Skip(1);
    line.Into(phone.MASKMODE);
    for (int place = 0; place < kMaskPlaces; ++place) line.Into(phone.ListaMask[place]);
  } else {
    const auto mask = RoundToEven<std::int32_t>(line.Number());
    if (mask) ReadShortMask(*mask, features, phone);
  }
}

Statement PhoneStatement(const ConfPhone& phone, const Receiver& receiver) {
  Statement statement("+TLF=");
  statement.Text(phone.TLF).Text(",Prio=").Digits(phone.Prio).Text(",PRV").Digits(phone.PRV);
  if (receiver.Has(Feature::ExtendedMasks)) {
    AddExtendedMask(statement, phone);
    return statement;
  }
  for (int place = 0; place < kMaskPlaces; ++place) {
    const std::string token = ShortToken(phone.ListaMask[place], receiver.profile.IsS100);
    if (!token.empty()) statement.Text(",").Text(token);
  }
  return statement;
}

}  // namespace ostrel
