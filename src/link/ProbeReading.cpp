#include "link/ProbeReading.h"

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
  identity = {HalfOf(octets, 1), HalfOf(octets, 1 + kOctetsOfHalf)};
  return {};
}

}  // namespace ostrel
