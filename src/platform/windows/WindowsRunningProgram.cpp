#include <windows.h>

#include <array>
#include <charconv>
#include <cstdint>

#include "platform/RunningProgram.h"
#include "platform/windows/Handle.h"
#include "platform/windows/WideText.h"

namespace ostrel {
namespace {

/// When a process began, in steps of 100 ns since 1601; empty where there is none.
std::string StartOf(const std::string& process) {
  DWORD number = 0;
  std::from_chars(process.data(), process.data() + process.size(), number);
  const Handle handle(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, number));
  DWORD code = 0;
  FILETIME began{}, ended{}, kernel{}, user{};
  const bool runs = handle && ::GetExitCodeProcess(handle.Get(), &code) && code == STILL_ACTIVE &&
                    ::GetProcessTimes(handle.Get(), &began, &ended, &kernel, &user);
  if (!runs) return {};
  return std::to_string(std::uint64_t{began.dwHighDateTime} << 32U | began.dwLowDateTime);
}

std::string NameOfUser() {
  std::array<wchar_t, 257> name{};
  DWORD size = name.size();
  return ::GetUserNameW(name.data(), &size) ? FromWide(name.data()) : std::string();
}

}  // namespace

RunningProgram ThisProgram() {
  // A start is a moment, so that of the machine adds nothing to it.
  return {.user = NameOfUser(), .nameOf = [](const std::string& process) {
            return "windows/" + process + "/" + StartOf(process);
          }};
}

bool ShowDocument(const std::string& path) {
  constexpr INT_PTR kLastFault = 32;
  const auto result = reinterpret_cast<INT_PTR>(
      ::ShellExecuteW(nullptr, L"open", ToWide(path).c_str(), nullptr, nullptr, SW_SHOWNORMAL));
  return result > kLastFault;
}

}  // namespace ostrel
