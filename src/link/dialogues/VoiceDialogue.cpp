#include "link/dialogues/VoiceDialogue.h"

#include <charconv>

#include "link/LinkTimes.h"
#include "link/WireText.h"
#include "model/Assign.h"

namespace ostrel {
namespace {

using Kind = LinkFault::Kind;

constexpr std::string_view kNumberLine = "#B01";
constexpr std::string_view kMacroLine = "#B03";
constexpr std::size_t kBehindHead = 5;
constexpr std::size_t kSumAt = 4;
constexpr std::size_t kSumDigits = 4;

/// The check sum that a reply carries, with the sign of its 16 bits; nothing where it has none.
std::optional<std::int32_t> SumIn(std::string_view reply) {
  const std::string_view digits = Characters(reply, kSumAt, kSumDigits);
  std::uint16_t sum = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), sum, 16);
  if (digits.size() != kSumDigits || read.ptr != digits.data() + digits.size()) return {};
  return static_cast<std::int16_t>(sum);
}

}  // namespace

VoiceDialogue::VoiceDialogue(Line& line, ProgressFeed& progress, const DeviceInfo& info)
    : line_(line),
      progress_(progress),
      statements_(line, info, [this] { Tell(Progress::Stage::Step, statements_.Sent()); }) {}

LinkFault VoiceDialogue::Write(const ConfAutVoz& list) {
  return Attempts(DialogueKind::VoiceWriting, list.AutVozCount, [&] { return WriteOnce(list); });
}

LinkFault VoiceDialogue::Read(ConfAutVoz& list) {
  LinkFault fault =
      Attempts(DialogueKind::VoiceReading, kVoiceNumbers, [&] { return ReadOnce(list); });
  if (!fault.Ok()) return fault;
  for (int place = list.AutVozCount; place <= kVoiceNumbers; ++place) list.TEL[place].clear();
  return {};
}

LinkFault VoiceDialogue::Attempts(DialogueKind kind, int expected,
                                  const std::function<LinkFault()>& attempt) {
  kind_ = kind;
  expected_ = expected;
  Tell(Progress::Stage::Begun, 0);
  LinkFault fault;
  for (int i = 0; i < kLinkAttempts; ++i) {
    if (i > 0) line_.AwaitQuiet();  // a list that failed may still be coming
    Tell(Progress::Stage::Attempt, 0);
    fault = attempt();
    if (fault.Ok() || !line_.GoesOn()) break;
  }
  Tell(fault.Ok() ? Progress::Stage::Done : Progress::Stage::Failed, expected);
  return fault;
}

LinkFault VoiceDialogue::WriteOnce(const ConfAutVoz& list) {
  statements_.Restart();
  LinkFault fault = Order("#41CLRTEL", "#BE1", kEraseMs);
  if (fault.Ok()) fault = WriteNumbers(list);
  if (fault.Ok()) fault = Order(statements_.Closing(), "#B91");
  if (fault.Ok()) fault = CheckSum(list);
  if (fault.Ok()) fault = WriteMacro(list);
  return fault;
}

LinkFault VoiceDialogue::WriteNumbers(const ConfAutVoz& list) {
  for (int place = 0; place < list.AutVozCount; ++place) {
    if (list.TEL[place].empty()) continue;
    LinkFault fault = statements_.Send("+TEL=" + list.TEL[place]);
    if (!fault.Ok()) return fault;
    line_.Delay(kVoicePauseMs);
  }
  return {};
}

LinkFault VoiceDialogue::WriteMacro(const ConfAutVoz& list) {
  if (list.MACRO < 0) return Order("#41CLRVCAUTMACRO", "#BE1");
  return Order("#41VCAUTMACRO=" + std::to_string(list.MACRO), "#BE1");
}

LinkFault VoiceDialogue::ReadOnce(ConfAutVoz& list) {
  LinkFault fault = line_.AskFor("#4F", "#B00");
  if (!fault.Ok()) return fault;
  ReadNumbers(list);
  if (line_.RxLine.empty()) return line_.WaitFault();
  if (!line_.RxLine.starts_with("#B02")) return line_.FaultNow(Kind::WrongAnswer, 0, line_.RxLine);
  fault = ReadMacro(list);
  if (!fault.Ok()) return fault;
  CalcCRC(list);
  return CheckSum(list);
}

void VoiceDialogue::ReadNumbers(ConfAutVoz& list) {
  int place = 0;
  for (; place <= kVoiceNumbers; ++place) {
    Tell(Progress::Stage::Step, place);
    if (!line_.RxSer(line_.ReplyTimeout) || !line_.RxLine.starts_with(kNumberLine)) break;
    list.TEL[place] = Characters(line_.RxLine, kBehindHead);
  }
  list.AutVozCount = static_cast<std::int16_t>(place);
}

LinkFault VoiceDialogue::ReadMacro(ConfAutVoz& list) {
  if (!line_.RxSer(line_.ReplyTimeout)) return line_.WaitFault();
  if (!line_.RxLine.starts_with(kMacroLine))
    return line_.FaultNow(Kind::WrongAnswer, 0, line_.RxLine);
  list.MACRO = kNoVoiceMacro;
  if (line_.RxLine != kMacroLine) Assign(list.MACRO, NumVal(Characters(line_.RxLine, kBehindHead)));
  return {};
}

LinkFault VoiceDialogue::CheckSum(const ConfAutVoz& list) {
  LinkFault fault = line_.AskFor("#4E", "#B1");
  if (fault.Ok() && SumIn(line_.RxLine) != list.AutVozCrc)
    fault = line_.FaultNow(Kind::SumDiffers, 0, line_.RxLine);
  return fault;
}

LinkFault VoiceDialogue::Order(std::string message, std::string_view head, int extraMs) {
  if (!line_.Ask(std::move(message), extraMs)) return line_.WaitFault();
  if (line_.RxLine.starts_with(head)) return {};
  return line_.FaultNow(Kind::NotTakenOver, 0, line_.RxLine);
}

void VoiceDialogue::Tell(Progress::Stage stage, int step) {
  progress_.Tell({kind_, stage, step, expected_});
}

}  // namespace ostrel
