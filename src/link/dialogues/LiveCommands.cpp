#include "link/dialogues/LiveCommands.h"

#include "link/LinkTimes.h"

namespace ostrel {
namespace {

LinkFault Fetch(Line& line, const LiveRequest& request) {
  LinkFault fault = line.AskFor(request.message, request.head);
  if (!fault.Ok()) return fault;
  LineReader reader(line.RxLine);
  request.fill(reader);
  return {};
}

/// No fault as long as the line is there.
LinkFault EndOf(const Line& line) { return line.GoesOn() ? LinkFault{} : line.WaitFault(); }

}  // namespace

LinkFault FetchTotals(Line& line, TotalCounts& totals) {
  const LiveRequest request = TotalsRequest(totals);
  LinkFault fault = line.WaitFault();
  for (int attempt = 0; attempt < kLinkAttempts && line.GoesOn(); ++attempt) {
    fault = Fetch(line, request);
    if (fault.Ok()) break;
  }
  return fault;
}

LinkFault FetchEach(Line& line, const std::vector<LiveRequest>& requests) {
  for (const LiveRequest& request : requests) Fetch(line, request);
  return EndOf(line);
}

LinkFault FetchLive(Line& line, const std::vector<LiveRequest>& requests, const Clock& clock) {
  LinkFault ofMasks;
  for (const LiveRequest& request : requests) {
    LinkFault fault = Fetch(line, request);
    // What was cut short says nothing about the logger.
    if (line.GivesWay() && !fault.Ok()) break;
    if (request.read) request.read->Note(fault.Ok(), clock.LocalTime());
    if (request.message == kMasksRequest) ofMasks = std::move(fault);
    if (line.GivesWay()) break;
  }
  const LinkFault end = EndOf(line);
  return end.Ok() ? ofMasks : end;
}

LinkFault SwitchOutputs(Line& line, std::uint16_t mask, int count) {
  for (int i = 0; i < count; ++i) SwitchOutput(line, i, (mask >> i & 1) != 0);
  return EndOf(line);
}

LinkFault SwitchOutput(Line& line, int index, bool on) {
  line.Ask((on ? "#47" : "#48") + std::to_string(index));
  return EndOf(line);
}

std::string TotalMessage(std::string_view command, int index, std::int32_t value) {
  return std::string(command) + std::to_string(index) + "=" + std::to_string(value);
}

LinkFault Confirm(Line& line, std::string message, std::string_view answer) {
  if (!line.Ask(std::move(message))) return line.WaitFault();
  if (line.RxLine == answer) return {};
  return line.FaultNow(LinkFault::Kind::NotTakenOver, 0, line.RxLine);
}

}  // namespace ostrel
