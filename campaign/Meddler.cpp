#include "Meddler.h"

namespace ostrel::campaign {
namespace {

constexpr int kLongestRun = 60;

}  // namespace

void Way::Hurt(Damage damage, int first, int last, bool once) {
  faults_.push_back({damage, first, last, once, random_.Between(first, last)});
}

std::string Way::Pass(std::string_view octets) {
  std::string out(octets);
  if (faults_.empty()) return out;
  out.clear();
  for (const char octet : octets) {
    if (losing_ > 0) {
      --losing_;
      continue;
    }
    Fault* struck = nullptr;
    for (Fault& fault : faults_)
      if (fault.left > 0 && --fault.left == 0) struck = &fault;
    if (struck)
      Strike(*struck, octet, out);
    else
      out += octet;
  }
  Watch(octets, out);
  return out;
}

void Way::Strike(Fault& fault, char octet, std::string& out) {
  ++strikes_;
  if (!fault.once) fault.left = random_.Between(fault.first, fault.last);
  switch (fault.damage) {
    case Damage::Flip:
      out += static_cast<char>(octet ^ (1 << random_.Between(0, 7)));
      break;
    case Damage::Drop:
      break;
    case Damage::Insert:
      out += static_cast<char>(random_.Between(0, 255));
      out += octet;
      break;
    case Damage::Double:
      out.append(2, octet);
      break;
    case Damage::LoseRun:
      losing_ = random_.Between(1, kLongestRun);
  }
}

void Way::Watch(std::string_view sent, std::string_view arrived) {
  while (auto message = sent_.Take(sent)) said_.insert(std::move(*message));
  while (const auto message = arrived_.Take(arrived))
    if (!said_.contains(*message)) hasForged_ = true;
}

}  // namespace ostrel::campaign
