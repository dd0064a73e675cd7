#include "link/dialogues/NumberedStream.h"

#include "link/LineReader.h"
#include "link/WireText.h"

namespace ostrel {
namespace {

constexpr std::size_t kNumberAt = 4;
constexpr std::size_t kKeyAt = 7;

}  // namespace

std::string_view KeyOf(std::string_view line) { return Characters(FieldOf(line, 1), kKeyAt); }

LinkFault NumberedStream::Read(const Take& take) {
  Restart();
  if (!line_.Ask(std::string(request_))) return line_.WaitFault(expected_);
  if (line_.RxLine == head_) return line_.FaultNow(LinkFault::Kind::EmptyStream);
  while (line_.RxLine != head_) {
    if (LinkFault fault = TakeRecord(take); !fault.Ok()) return fault;
    if (!line_.RxSer(line_.ReplyTimeout)) return line_.WaitFault(expected_);
  }
  return {};
}

LinkFault NumberedStream::TakeRecord(const Take& take) {
  const std::string_view line = line_.RxLine;
  const double number = NumVal(Characters(line, kNumberAt, kRecordDigits));
  if (!line.starts_with(head_) || RoundToEven<int>(number) != expected_)
    return line_.FaultNow(LinkFault::Kind::OutOfSequence, expected_, line_.RxLine);
  return take({expected_++, KeyOf(line), line});
}

}  // namespace ostrel
