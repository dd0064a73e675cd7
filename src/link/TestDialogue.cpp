#include "link/TestDialogue.h"

#include <utility>

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

}  // namespace

bool OrderTest(Line& line, std::string message) {
  return AskBoard(line, std::move(message), "#BE1");
}

bool ReadTestFrame(Line& line, double scale, TestFrame& frame) {
  if (!AskBoard(line, "#F4", "#0B")) return false;
  LineReader reader(line.RxLine);
  reader.Into(frame.InputBits);
  reader.Skip(1);
  for (float* analog : {&frame.A0, &frame.A1, &frame.A2, &frame.A3})
    Assign(*analog, reader.Number() * scale);
  reader.Skip(1);
  reader.Into(frame.BatteryVolts);
  reader.Into(frame.GsmState);
  return true;
}

}  // namespace ostrel
