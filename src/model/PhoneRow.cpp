#include "model/PhoneRow.h"

#include "base/Channels.h"
#include "base/Values.h"

namespace ostrel {
namespace {

/// Sets `value` when `field` is exactly the word and one digit from 0 to `highest`.
void ReadDigit(std::string_view field, std::string_view word, char highest, std::int16_t& value) {
  if (field.size() != word.size() + 1 || !field.starts_with(word)) return;
  const char digit = field.back();
  if (digit >= '0' && digit <= highest) value = static_cast<std::int16_t>(digit - '0');
}

/// The present token of a short one ("D3", "A0"); empty for any other text.
std::string LongToken(std::string_view shortToken) {
  if (shortToken.size() != 2) return {};
  const char digit = shortToken[1];
  const bool isDigital = shortToken[0] == 'D' && digit >= '0' && digit <= '7';
  const bool isAnalog = shortToken[0] == 'A' && digit >= '0' && digit <= '3';
  if (!isDigital && !isAnalog) return {};
  return {shortToken[0], 'I', digit};
}

}  // namespace

std::string PhoneRow(const ConfPhone& phone, bool isS100) {
  std::string row = phone.TLF;
  row += ",Prio=" + std::to_string(phone.Prio);
  row += ",PRV" + std::to_string(phone.PRV);
  row += ",MASKMODE" + std::to_string(phone.MASKMODE);
  for (int place = 0; place < kMaskPlaces; ++place) {
    const std::string token(ChannelToToken(phone.ListaMask[place], isS100));
    if (!token.empty()) row += "," + token;
  }
  return row;
}

void ReadPhoneRow(std::string_view row, ConfPhone& phone) {
  phone.TLF = FieldOf(row, 1);
  ReadDigit(FieldOf(row, 2), "Prio=", '8', phone.Prio);
  ReadDigit(FieldOf(row, 3), "PRV", '3', phone.PRV);
  ReadDigit(FieldOf(row, 4), "MASKMODE", '2', phone.MASKMODE);
  for (int place = 0; place < kMaskPlaces; ++place) {
    const std::string token(FieldOf(row, place + 5));
    phone.ListaMask[place] = token.empty() ? kNoChannel : TokenToChannel(token);
  }
}

void ReadEarlierPhoneRow(std::string_view row, ConfPhone& phone) {
  phone.TLF = FieldOf(row, 1);
  phone.MASKMODE = 0;
  ReadDigit(FieldOf(row, 2), "Prio=", '8', phone.Prio);
  ReadDigit(FieldOf(row, 3), "PRV", '3', phone.PRV);
  for (int place = 0; place < kMaskPlaces; ++place) {
    const std::string token(FieldOf(row, place + 4));
    if (token.empty()) {
      phone.ListaMask[place] = kNoChannel;
      continue;
    }
    phone.MASKMODE = 1;
    if (const std::string full = LongToken(token); !full.empty())
      phone.ListaMask[place] = TokenToChannel(full);
  }
}

}  // namespace ostrel
