#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <iostream>
#include <system_error>

#include "platform/Console.h"

namespace ostrel {
namespace {

/// Keeps the terminal from showing what is typed.
class EchoOff {
 public:
  EchoOff() : works_(tcgetattr(STDIN_FILENO, &former_) == 0) {
    termios silent = former_;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    if (works_) tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
  }
  ~EchoOff() {
    if (works_) tcsetattr(STDIN_FILENO, TCSAFLUSH, &former_);
  }
  EchoOff(const EchoOff&) = delete;
  EchoOff& operator=(const EchoOff&) = delete;

 private:
  termios former_{};
  bool works_;
};

/// Reads octet by octet, so that nothing behind the line is taken.
std::optional<std::string> ReadLine() {
  std::string line;
  for (char octet = 0; read(STDIN_FILENO, &octet, 1) == 1;) {
    if (octet == '\n') return line;
    line += octet;
  }
  return std::nullopt;
}

}  // namespace

FileResult ReadDescriptor(int descriptor, bool lineOnly, std::string& octets) {
  octets.clear();
  std::array<char, 65'536> block{};
  while (octets.size() <= kMostFileOctets) {
    const ssize_t got = read(descriptor, block.data(), lineOnly ? 1 : block.size());
    if (got < 0) return {std::generic_category().message(errno)};
    if (got == 0 || (lineOnly && block.front() == '\n')) return {};
    octets.append(block.data(), static_cast<std::size_t>(got));
  }
  octets.clear();
  return TooLarge(kMostFileOctets);
}

void HoldStandardInput() {
  const bool isClosed = fcntl(STDIN_FILENO, F_GETFD) < 0 && errno == EBADF;
  if (isClosed) open("/dev/null", O_RDONLY);  // the lowest free descriptor is that of the input
}

void PrepareConsole() {}

std::vector<std::string> ArgumentsOf(int argc, char** argv) {
  return {argv + std::min(argc, 1), argv + argc};
}

bool OutIsTerminal() { return isatty(STDOUT_FILENO) == 1; }
bool ErrIsTerminal() { return isatty(STDERR_FILENO) == 1; }
bool HasOperator() { return isatty(STDIN_FILENO) == 1 && ErrIsTerminal(); }

std::optional<std::string> AskOnTerminal(std::string_view prompt, bool echo) {
  std::cerr << prompt << std::flush;
  std::optional<EchoOff> off;
  if (!echo) off.emplace();
  auto line = ReadLine();
  // The line end was not shown either.
  if (!echo || !line) std::cerr << std::endl;
  return line;
}

}  // namespace ostrel
