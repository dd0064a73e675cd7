#include "cli/Prompt.h"

#include <termios.h>
#include <unistd.h>

#include <iostream>

namespace ostrel::cli {
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

bool HasOperator() { return isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1; }

std::optional<std::string> AskOnTerminal(std::string_view prompt, bool echo) {
  std::cerr << prompt << std::flush;
  std::optional<EchoOff> off;
  if (!echo) off.emplace();
  auto line = ReadLine();
  // The line end was not shown either.
  if (!echo || !line) std::cerr << std::endl;
  return line;
}

}  // namespace ostrel::cli
