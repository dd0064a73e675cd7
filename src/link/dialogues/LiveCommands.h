#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "link/Line.h"
#include "link/dialogues/LiveRequests.h"
#include "platform/Clock.h"

namespace ostrel {

/// Asks for the totals until the answer is one.
LinkFault FetchTotals(Line& line, TotalCounts& totals);

/// Asks each request once. What is missing or wrong leaves the values as they were; a fault tells
/// only that the line did not last to the end.
LinkFault FetchEach(Line& line, const std::vector<LiveRequest>& requests);

/// The same, but the answer that carries the masks has to come. Notes which answers came and when.
LinkFault FetchLive(Line& line, const std::vector<LiveRequest>& requests, const Clock& clock);

/// Sets outputs 0 to `count` less 1 by a mask, one bit each. Answers are not looked at.
LinkFault SwitchOutputs(Line& line, std::uint16_t mask, int count);
LinkFault SwitchOutput(Line& line, int index, bool on);

/// The message that sets a total; `command` tells whose.
std::string TotalMessage(std::string_view command, int index, std::int32_t value);

/// Sends a setting, which the logger confirms by exactly this answer.
LinkFault Confirm(Line& line, std::string message, std::string_view answer);

}  // namespace ostrel
