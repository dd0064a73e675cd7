#include "link/dialogues/ProbeReading.h"

#include <algorithm>

#include "link/LineReader.h"
#include "link/LinkTimes.h"

namespace ostrel {
namespace {

constexpr std::string_view kHead = "#05";
constexpr std::size_t kOctetDigits = 3;
constexpr int kOctetsOfHalf = 4;

/// Half of an identity out of comma-separated octets, from field `first` on.
std::string HalfOf(std::string_view reply, int first) {
  std::string half;
  for (int field = first; field < first + kOctetsOfHalf; ++field) {
    if (field > first) half += '.';
    half += FieldOf(reply, field);
  }
  return half;
}

/// Eight numbers of up to three digits.
bool AreOctets(std::string_view reply) {
  for (int field = 1; field <= 2 * kOctetsOfHalf; ++field) {
    const std::string_view octet = FieldOf(reply, field);
    if (octet.empty() || octet.size() > kOctetDigits ||
        octet.find_first_not_of("0123456789") != std::string_view::npos)
      return false;
  }
  return true;
}

}  // namespace

LinkFault ReadProbe(Line& line, ProbeIdentity& identity) {
  line.RxLine.clear();
  std::string message = "#FA";
  line.TxSer(message, kProbeReplyMs);
  if (line.RxLine.empty()) return line.WaitFault();
  if (!line.RxLine.starts_with(kHead))
    return line.FaultNow(LinkFault::Kind::WrongAnswer, 0, line.RxLine);
  // The head stands in front of the first octet, which has the last digits of its field.
  const std::string_view reply = line.RxLine;
  const std::size_t firstEnd = std::min(reply.find(','), reply.size());
  const std::size_t digits = std::min(kOctetDigits, firstEnd - kHead.size());
  const std::string_view octets = reply.substr(firstEnd - digits);
  if (!AreOctets(octets)) return line.FaultNow(LinkFault::Kind::WrongAnswer, 0, line.RxLine);
  identity = {HalfOf(octets, 1), HalfOf(octets, 1 + kOctetsOfHalf)};
  return {};
}

}  // namespace ostrel
