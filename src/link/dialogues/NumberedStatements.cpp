#include "link/dialogues/NumberedStatements.h"

#include "link/LinkTimes.h"
#include "link/WireText.h"
#include "model/Features.h"
#include "platform/Digits.h"

namespace ostrel {

int RefusalWindowMs(std::int32_t features) {
  return Has(features, Feature::FastRefusal) ? kFastRefusalMs : kRefusalMs;
}

LinkFault NumberedStatements::Send(std::string_view statement) {
  const int number = sent_;
  const bool hasLeft = line_.Post("#45" + Padded(number, kRecordDigits) + std::string(statement));
  ++sent_;
  if (left_) left_();
  if (!hasLeft) return line_.WaitFault(number);
  line_.ExpectAnswer(true);  // none was due before this window
  line_.RxSer(RefusalWindowMs(info_.Features));
  if (!line_.GoesOn()) return line_.WaitFault(number);
  if (line_.RxLine.find(kStatementRefused) == std::string::npos) return {};
  return line_.FaultNow(LinkFault::Kind::Refused, number, std::string(statement));
}

std::string NumberedStatements::Closing() const { return "#46" + Padded(sent_, kRecordDigits); }

}  // namespace ostrel
