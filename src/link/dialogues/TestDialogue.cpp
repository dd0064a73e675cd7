#include "link/dialogues/TestDialogue.h"

#include <utility>

#include "base/Numbers.h"
#include "link/LineReader.h"
#include "link/LinkTimes.h"

namespace ostrel {
namespace {

/// Sends a message and awaits an answer that starts with `head`.
bool AskBoard(Line& line, std::string message, std::string_view head) {
  line.RxLine.clear();  // a closed port leaves it alone, and an old line is no answer
  line.ExpectAnswer(true);
  line.TxSer(message, kTestReplyMs);
  line.ExpectAnswer(false);
  return line.RxLine.starts_with(head);
}

/// Assigns a number to a field; false where it cannot hold it, and stays as it was.
bool Take(std::int16_t& field, double number) {
  const auto taken = RoundToEven<std::int16_t>(number);
  field = taken.value_or(field);
  return taken.has_value();
}
bool Take(float& field, double number) {
  const auto taken = ToFloat(number);
  field = taken.value_or(field);
  return taken.has_value();
}

}  // namespace

bool OrderTest(Line& line, std::string message) {
  return AskBoard(line, std::move(message), "#BE1");
}

TestFrameCame ReadTestFrame(Line& line, double scale, TestFrame& frame) {
  TestFrameCame came;
  if (!AskBoard(line, "#F4", "#0B")) return came;
  LineReader reader(line.RxLine);
  came.InputBits = Take(frame.InputBits, reader.Number());
  reader.Skip(1);
  came.A0 = Take(frame.A0, reader.Number() * scale);
  came.A1 = Take(frame.A1, reader.Number() * scale);
  came.A2 = Take(frame.A2, reader.Number() * scale);
  came.A3 = Take(frame.A3, reader.Number() * scale);
  reader.Skip(1);
  came.BatteryVolts = Take(frame.BatteryVolts, reader.Number());
  came.GsmState = Take(frame.GsmState, reader.Number());
  return came;
}

}  // namespace ostrel
