#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <system_error>

#include "platform/Console.h"
#include "platform/windows/WideText.h"

namespace ostrel {
namespace {

bool IsConsole(DWORD stream) {
  DWORD mode = 0;
  return ::GetConsoleMode(::GetStdHandle(stream), &mode) != 0;
}

/// The code page that the console had for texts before this program.
UINT formerCodePage = 0;

/// Keeps the console from showing what is typed.
class EchoOff {
 public:
  EchoOff() : works_(::GetConsoleMode(input_, &former_) != 0) {
    if (works_) ::SetConsoleMode(input_, former_ & ~static_cast<DWORD>(ENABLE_ECHO_INPUT));
  }
  ~EchoOff() {
    if (works_) ::SetConsoleMode(input_, former_);
  }
  EchoOff(const EchoOff&) = delete;
  EchoOff& operator=(const EchoOff&) = delete;

 private:
  HANDLE input_ = ::GetStdHandle(STD_INPUT_HANDLE);
  DWORD former_ = 0;
  bool works_;
};

std::optional<std::string> ReadConsoleLine() {
  std::wstring line;
  while (!line.ends_with(L'\n')) {
    std::array<wchar_t, 512> part{};
    DWORD got = 0;
    const bool ok = ::ReadConsoleW(::GetStdHandle(STD_INPUT_HANDLE), part.data(), part.size(), &got,
                                   nullptr) != 0;
    // Ctrl+C ends a reading with nothing; Ctrl+Z is the end of the input.
    if (!ok || got == 0 || part.front() == L'\x1A') return std::nullopt;
    line.append(part.data(), got);
  }
  while (line.ends_with(L'\n') || line.ends_with(L'\r')) line.pop_back();
  return FromWide(line);
}

}  // namespace

void HoldStandardInput() {
  if (::_get_osfhandle(::_fileno(stdin)) < 0) std::freopen("NUL", "rb", stdin);
}

void PrepareConsole() {
  for (std::FILE* stream : {stdin, stdout, stderr}) ::_setmode(::_fileno(stream), _O_BINARY);
  if (!IsConsole(STD_OUTPUT_HANDLE) && !IsConsole(STD_ERROR_HANDLE)) return;
  formerCodePage = ::GetConsoleOutputCP();
  if (::SetConsoleOutputCP(CP_UTF8)) std::atexit([] { ::SetConsoleOutputCP(formerCodePage); });
}

std::vector<std::string> ArgumentsOf(int, char**) {
  // The words that `main` gets are in the code page of the machine.
  int count = 0;
  wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(FromWide(words[i]));
  ::LocalFree(words);
  return arguments;
}

bool OutIsTerminal() { return IsConsole(STD_OUTPUT_HANDLE); }
bool ErrIsTerminal() { return IsConsole(STD_ERROR_HANDLE); }
bool HasOperator() { return IsConsole(STD_INPUT_HANDLE) && ErrIsTerminal(); }

std::optional<std::string> AskOnTerminal(std::string_view prompt, bool echo) {
  std::cerr << prompt << std::flush;
  std::optional<EchoOff> off;
  if (!echo) off.emplace();
  auto line = ReadConsoleLine();
  // The line end was not shown either.
  if (!echo || !line) std::cerr << std::endl;
  return line;
}

FileResult ReadDescriptor(int descriptor, bool lineOnly, std::string& octets) {
  octets.clear();
  std::array<char, 65'536> block{};
  while (octets.size() <= kMostFileOctets) {
    const int got =
        ::_read(descriptor, block.data(), static_cast<unsigned>(lineOnly ? 1 : block.size()));
    if (got < 0) return {std::generic_category().message(errno)};
    if (got == 0 || (lineOnly && block.front() == '\n')) {
      if (lineOnly && octets.ends_with('\r')) octets.pop_back();
      return {};
    }
    octets.append(block.data(), static_cast<std::size_t>(got));
  }
  octets.clear();
  return TooLarge(kMostFileOctets);
}

}  // namespace ostrel
