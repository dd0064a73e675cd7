#pragma once

#include <string>
#include <string_view>

#include "model/DeviceConf.h"

namespace ostrel {

/// The text row of a telephone, as the list shows it and the file keeps it: the number, "Prio=" and
/// digits, "PRV" and digits, "MASKMODE" and digits, then a channel token for each mask place that
/// has one; joined by commas.
std::string PhoneRow(const ConfPhone& phone, bool isS100);

/// Reads a row into a slot: an unusable field leaves the slot's value, an absent token empties its
/// mask place.
void ReadPhoneRow(std::string_view row, ConfPhone& phone);

/// Reads a row of the earlier file form, which has no mask mode and names only the twelve channels
/// "D0" to "D7" and "A0" to "A3".
void ReadEarlierPhoneRow(std::string_view row, ConfPhone& phone);

}  // namespace ostrel
