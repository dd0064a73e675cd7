#include <array>
#include <cstdint>

#include "base/Channels.h"
#include "base/Utf8.h"
#include "model/Assign.h"
#include "model/Features.h"
#include "pages/General.h"

namespace ostrel {
namespace {

constexpr int kShortestNumber = 3;
constexpr int kSecondsPerMinute = 60;

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

/// The token of a mask place for an older firmware; empty for a channel that it does not know.
std::string ShortToken(std::int16_t channel, bool isS100) {
  const std::string token(ChannelToToken(channel, isS100));
  for (const std::string_view known : kShortMaskChannels)
    if (token == known) return {known[0], known[2]};
  return {};
}

Statement PhoneStatement(const ConfPhone& phone, bool extendedMasks, bool isS100) {
  Statement statement("+TLF=");
  statement.Text(phone.TLF).Text(",Prio=").Digits(phone.Prio).Text(",PRV").Digits(phone.PRV);
  if (extendedMasks) {
    if (phone.MASKMODE > 0) {
      statement.Text(",MASK=");
      for (int place = 0; place < kMaskPlaces; ++place)
        statement.Text(" ").Digits(phone.ListaMask[place]);
    }
    statement.Text(",MASKMODE").Digits(phone.MASKMODE);
    return statement;
  }
  for (int place = 0; place < kMaskPlaces; ++place) {
    const std::string token = ShortToken(phone.ListaMask[place], isS100);
    if (!token.empty()) statement.Text(",").Text(token);
  }
  return statement;
}

}  // namespace

std::vector<WireSection> General::WireSections() {
  DeviceConf& conf = context_.conf;
  ConfGeneral& general = conf.General;
  return {
      {"DNAME", [&general](LineReader& line) { line.Into(general.DNAME); }},
      {"SMC", [&general](LineReader& line) { line.Into(general.CSM); }},
      {"PTLF", [&general](LineReader& line) { line.Into(general.PTLF); }},
      {"RENVT",
       [&general](LineReader& line) { Assign(general.RENVT, line.Number() / kSecondsPerMinute); }},
      {"RENVN", [&general](LineReader& line) { line.Into(general.RENVN); }},
      {"REST", [&general](LineReader& line) { line.Into(general.REST); }},
      {"TLF", [this, &conf](LineReader& line) { ReadPhone(line, context_.info.Features, conf); }},
  };
}

std::vector<WireBlock> General::WireBlocks() {
  const ConfGeneral& general = context_.conf.General;
  return {
      {"Identity",
       [&general](StatementList& out) {
         out.Add(Statement("ID=").Text(general.DNAME));
         out.Add(Statement("CSM=").Text(general.CSM));
         out.Add(Statement("PTLF=").Text(general.PTLF));
         out.Add(Statement("REST=").Text(general.REST));
       }},
      {"Resend rules",
       [this, &general](StatementList& out) {
         if (!Has(context_.info.Features, Feature::RetryRules)) return;
         out.Add(Statement("").Num("RETRYMAX=", general.RENVN));
         out.Add(Statement("").Num("RETRYTIME=", std::int64_t{general.RENVT} * kSecondsPerMinute));
       }},
      {"Telephones",
       [this](StatementList& out) {
         out.Add(Statement("CLRTLF"));
         const bool extendedMasks = Has(context_.info.Features, Feature::ExtendedMasks);
         for (int slot = 0; slot < kPhones; ++slot) {
           const ConfPhone& phone = context_.conf.Phone[slot];
           if (!phone.TLF.empty())
             out.Add(PhoneStatement(phone, extendedMasks, context_.profile.IsS100));
         }
       }},
  };
}

}  // namespace ostrel
