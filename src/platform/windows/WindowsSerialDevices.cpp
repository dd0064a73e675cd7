#include "platform/windows/WindowsSerialDevices.h"

#include <setupapi.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <optional>
#include <utility>

#include "platform/windows/Handle.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsSerialDevice.h"

namespace ostrel {
namespace {

constexpr std::string_view kDevicePrefix = "\\\\.\\";
constexpr std::string_view kPipePrefix = "\\\\.\\pipe\\";
constexpr DWORD kShortestWaitMs = 1;
constexpr int kLastPipe = kLastPort - 6;  // those behind it are kept for simulated loggers
/// The class of serial and parallel ports.
constexpr GUID kPortClass = {
    0x4D36E978, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};

PortFault FaultOf(DWORD code) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DEV_NOT_EXIST:
      return PortFault::NoSuchPort;
    case ERROR_ACCESS_DENIED:  // a port in use is refused so, and ports have no permissions
    case ERROR_SHARING_VIOLATION:
    case ERROR_BUSY:
    case ERROR_PIPE_BUSY:
      return PortFault::Busy;
    default:
      return PortFault::Failed;
  }
}

/// The number of "COM7"; nothing for other names.
std::optional<int> NumberOf(std::string_view name) {
  if (name.starts_with(kDevicePrefix)) name.remove_prefix(kDevicePrefix.size());
  constexpr std::string_view kCom = "COM";
  if (name.size() <= kCom.size()) return {};
  for (std::size_t i = 0; i < kCom.size(); ++i)
    if ((name[i] & ~0x20) != kCom[i]) return {};
  name.remove_prefix(kCom.size());
  int number = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
  const bool isWhole = error == std::errc() && end == name.data() + name.size();
  if (!isWhole || number < kFirstPort || number > kLastPort) return {};
  return number;
}

/// Opens a device for overlapped use. Every number is opened by its device path: the short names
/// end at COM9.
Handle OpenDevice(const std::string& name) {
  const std::wstring path =
      ToWide(name.starts_with(kDevicePrefix) ? name : std::string(kDevicePrefix) + name);
  return Handle(::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                              FILE_FLAG_OVERLAPPED, nullptr));
}

/// The port numbers of the registry.
std::map<int, std::string> RegisteredPorts() {
  std::map<int, std::string> ports;
  HKEY key = nullptr;
  if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DEVICEMAP\\SERIALCOMM", 0, KEY_READ, &key) !=
      ERROR_SUCCESS)
    return ports;
  for (DWORD i = 0;; ++i) {
    std::array<wchar_t, 256> name{};
    std::array<wchar_t, 256> value{};
    DWORD nameSize = name.size();
    DWORD valueSize = sizeof value - sizeof(wchar_t);
    DWORD type = 0;
    const LSTATUS code = ::RegEnumValueW(key, i, name.data(), &nameSize, nullptr, &type,
                                         reinterpret_cast<BYTE*>(value.data()), &valueSize);
    if (code != ERROR_SUCCESS) break;
    if (type != REG_SZ) continue;
    if (const auto number = NumberOf(FromWide(value.data()))) ports[*number] = {};
  }
  ::RegCloseKey(key);
  return ports;
}

/// The name of a device's port, from its own part of the registry.
std::optional<int> PortOf(HDEVINFO devices, SP_DEVINFO_DATA& device) {
  const HKEY key =
      ::SetupDiOpenDevRegKey(devices, &device, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_READ);
  if (key == INVALID_HANDLE_VALUE) return {};
  std::array<wchar_t, 256> name{};
  DWORD size = sizeof name - sizeof(wchar_t);
  const LSTATUS code = ::RegQueryValueExW(key, L"PortName", nullptr, nullptr,
                                          reinterpret_cast<BYTE*>(name.data()), &size);
  ::RegCloseKey(key);
  if (code != ERROR_SUCCESS) return {};
  return NumberOf(FromWide(name.data()));
}

/// Adds the names that the device manager shows.
void AddFriendlyNames(std::map<int, std::string>& ports) {
  const HDEVINFO devices = ::SetupDiGetClassDevsW(&kPortClass, nullptr, nullptr, DIGCF_PRESENT);
  if (devices == INVALID_HANDLE_VALUE) return;
  SP_DEVINFO_DATA device{};
  device.cbSize = sizeof device;
  for (DWORD i = 0; ::SetupDiEnumDeviceInfo(devices, i, &device); ++i) {
    const std::optional<int> number = PortOf(devices, device);
    std::array<wchar_t, 256> name{};
    if (number && ::SetupDiGetDeviceRegistryPropertyW(devices, &device, SPDRP_FRIENDLYNAME, nullptr,
                                                      reinterpret_cast<BYTE*>(name.data()),
                                                      sizeof name - sizeof(wchar_t), nullptr))
      ports[*number] = FromWide(name.data());
  }
  ::SetupDiDestroyDeviceInfoList(devices);
}

}  // namespace

std::string WindowsSerialDevices::DeviceOf(int number) const {
  if (const auto pipe = pipes_.find(number); pipe != pipes_.end()) return pipe->second;
  return number >= kFirstPort && number <= kLastPort ? "COM" + std::to_string(number) : "";
}

int WindowsSerialDevices::NumberFor(const std::string& path) {
  if (!path.starts_with(kPipePrefix)) return NumberOf(path).value_or(0);
  const auto known = std::ranges::find(pipes_, path, &std::pair<const int, std::string>::second);
  if (known != pipes_.end()) return known->first;
  const std::map<int, std::string> ports = RegisteredPorts();
  int number = kLastPipe;
  while (number >= kFirstPort && (pipes_.contains(number) || ports.contains(number))) --number;
  if (number < kFirstPort) return 0;
  pipes_[number] = path;
  return number;
}

std::vector<PortEntry> WindowsSerialDevices::Entries() {
  std::map<int, std::string> ports = RegisteredPorts();
  AddFriendlyNames(ports);
  std::vector<PortEntry> entries;
  for (const auto& [number, name] : ports) entries.push_back({number, DeviceOf(number), name});
  return entries;
}

PortFacts WindowsSerialDevices::Inspect(int number) {
  PortFacts facts{.device = DeviceOf(number)};
  facts.exists = pipes_.contains(number) || RegisteredPorts().contains(number);
  facts.isPermitted = facts.exists;
  return facts;
}

PortFault WindowsSerialDevices::Try(const std::string& path) {
  // To open a pipe would begin a session at its other end.
  if (path.starts_with(kPipePrefix)) {
    if (::WaitNamedPipeW(ToWide(path).c_str(), kShortestWaitMs)) return PortFault::None;
    return ::GetLastError() == ERROR_SEM_TIMEOUT ? PortFault::Busy : FaultOf(::GetLastError());
  }
  return OpenDevice(path) ? PortFault::None : FaultOf(::GetLastError());
}

PortFault WindowsSerialDevices::Open(const std::string& path, const DeviceOpening& how,
                                     DeviceEvents events, std::unique_ptr<SerialDevice>& opened) {
  Handle handle = OpenDevice(path);
  if (!handle) return FaultOf(::GetLastError());
  auto device = std::make_unique<WindowsSerialDevice>(loop_, std::move(handle), std::move(events));
  const PortFault fault = device->Start(how);
  if (fault == PortFault::None) opened = std::move(device);
  return fault;
}

}  // namespace ostrel
