#include "factory/Station.h"

namespace ostrel {
namespace {

constexpr std::string_view kApplication = "TestOstrel";
constexpr std::string_view kStationSection = "Station";
constexpr std::string_view kOperator = "Operator";
constexpr std::string_view kName = "Name";

}  // namespace

Station StoredStation(const Settings& settings, const Station& usual) {
  const auto stored = [&](std::string_view key, const std::string& otherwise) {
    std::string text = settings.Get(kApplication, kStationSection, key);
    return text.empty() ? otherwise : text;
  };
  return {stored(kOperator, usual.operatorName), stored(kName, usual.name), usual.folder};
}

void StoreStation(Settings& settings, const Station& station) {
  settings.Set(kApplication, kStationSection, kOperator, station.operatorName);
  settings.Set(kApplication, kStationSection, kName, station.name);
}

}  // namespace ostrel
