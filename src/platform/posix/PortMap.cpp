#include "platform/posix/PortMap.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/SerialPort.h"

namespace ostrel {
namespace {

constexpr int kFirstFree = 161;
constexpr int kLastFree = 250;

/// A run of numbers for one kind of device.
struct Row {
  int first;
  int last;
  std::string_view stem;
};

constexpr std::array<Row, 3> kTable = {{
    {1, 32, "/dev/ttyS"},
    {33, 96, "/dev/ttyUSB"},
    {97, 160, "/dev/ttyACM"},
}};

/// Cuts the text up to a separator off the front of `rest`.
std::string_view CutPart(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return part;
}

}  // namespace

PortMap::PortMap(std::map<int, std::string> userList) : userList_(std::move(userList)) {}

PortMap PortMap::FromSettings(const Settings& settings) {
  const std::string text = settings.Get(kMaker, kProduct, "Ports");
  std::map<int, std::string> list;
  for (std::string_view rest = text; !rest.empty();) {
    std::string_view path = CutPart(rest, ';');
    const std::string_view key = CutPart(path, '=');
    int number = 0;
    const auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), number);
    const bool whole = error == std::errc() && end == key.data() + key.size();
    if (whole && number >= kFirstPort && number <= kLastFree && !path.empty()) {
      list[number] = path;
    }
  }
  return PortMap(std::move(list));
}

std::string PortMap::DeviceOf(int number) const {
  if (const auto listed = userList_.find(number); listed != userList_.end()) return listed->second;
  for (const Row& row : kTable) {
    if (number >= row.first && number <= row.last) {
      return std::string(row.stem) + std::to_string(number - row.first);
    }
  }
  return {};
}

int PortMap::Find(const std::string& path) const {
  for (const int number : Numbers()) {
    if (DeviceOf(number) == path) return number;
  }
  return 0;
}

int PortMap::NumberFor(const std::string& path) {
  if (path.empty()) return 0;
  if (const int number = Find(path)) return number;
  std::error_code error;
  const auto target = std::filesystem::canonical(path, error);
  if (const int number = error ? 0 : Find(target.string())) return number;
  // A name of what stands here would else be taken for one in the folder of devices.
  const bool standsHere = !error && path.front() != '/';
  const std::string device = standsHere ? std::filesystem::absolute(path).string() : path;
  for (int number = kFirstFree; number <= kLastFree; ++number) {
    if (userList_.try_emplace(number, device).second) return number;
  }
  return 0;
}

std::vector<int> PortMap::Numbers() const {
  std::vector<int> numbers;
  for (int number = kFirstPort; number <= kLastPort; ++number) {
    if (!DeviceOf(number).empty()) numbers.push_back(number);
  }
  return numbers;
}

}  // namespace ostrel
