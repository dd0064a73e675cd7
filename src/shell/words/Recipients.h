#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "blocks/Configuration.h"

namespace ostrel {

/// The token of a channel in the masks of telephones; empty for what no mask can name.
std::string MaskTokenOf(const AlarmPlace& place, bool isS100);

/// Whether a telephone gets the alarms of a channel, as the firmware in question keeps its mask;
/// without features as one that can do everything.
bool Admits(const ConfPhone& phone, const std::string& token, bool isS100,
            std::optional<std::int32_t> features);

/// The numbers of the telephones that get the alarms of a channel, in their order in the list.
std::vector<std::string> RecipientsOf(const DeviceConf& conf, const AlarmPlace& place, bool isS100,
                                      std::optional<std::int32_t> features);

}  // namespace ostrel
