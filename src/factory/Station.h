#pragma once

#include <string>

#include "platform/Settings.h"

namespace ostrel {

/// Who tests where, and where the station keeps its counter and its records.
struct Station {
  std::string operatorName;
  std::string name;
  std::string folder;  ///< shared by stations that must not give the same serial numbers
};

/// The station as it was stored last; what was never stored is as in `usual`, and so is the folder,
/// which whoever starts the program chooses.
Station StoredStation(const Settings& settings, const Station& usual);
/// Stores who tests where.
void StoreStation(Settings& settings, const Station& station);

}  // namespace ostrel
