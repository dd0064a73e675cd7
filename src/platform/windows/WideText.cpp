#include "platform/windows/WideText.h"

#include <windows.h>

namespace ostrel {
namespace {

constexpr std::size_t kLongPath = 240;  // short of the limit, for names that are put behind it
constexpr std::wstring_view kAnyLength = L"\\\\?\\";
constexpr std::wstring_view kAnyLengthShare = L"\\\\?\\UNC\\";

}  // namespace

std::wstring ToWide(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  std::wstring wide(utf8.size(), L'\0');  // never more units than octets
  wide.resize(static_cast<std::size_t>(
      ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), size)));
  return wide;
}

std::string FromWide(std::wstring_view wide) {
  const int size = static_cast<int>(wide.size());
  std::string utf8(wide.size() * 3, '\0');  // never more octets than that
  utf8.resize(static_cast<std::size_t>(
      ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(),
                            static_cast<int>(utf8.size()), nullptr, nullptr)));
  return utf8;
}

std::wstring WholePath(const std::wstring& path) {
  const DWORD size = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring whole(size, L'\0');
  whole.resize(::GetFullPathNameW(path.c_str(), size, whole.data(), nullptr));
  return whole;
}

std::wstring WidePath(const std::string& path) {
  const std::wstring wide = ToWide(path);
  if (wide.size() < kLongPath || wide.starts_with(kAnyLength)) return wide;
  const std::wstring whole = WholePath(wide);
  if (whole.starts_with(L"\\\\")) return std::wstring(kAnyLengthShare) + whole.substr(2);
  return std::wstring(kAnyLength) + whole;
}

std::string SystemWords(unsigned long code) {
  wchar_t* text = nullptr;
  const DWORD size = ::FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, code, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
  std::string words = FromWide({text, size});
  ::LocalFree(text);
  while (!words.empty() && (words.back() == '\n' || words.back() == '\r' || words.back() == '.' ||
                            words.back() == ' '))
    words.pop_back();
  return words.empty() ? "error " + std::to_string(code) : words;
}

}  // namespace ostrel
