#include "cli/Descriptors.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace ostrel::cli {

void HoldStandardInput() {
  const bool isClosed = fcntl(STDIN_FILENO, F_GETFD) < 0 && errno == EBADF;
  if (isClosed) open("/dev/null", O_RDONLY);  // the lowest free descriptor is that of the input
}

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
  return {"it is larger than 16 MB"};
}

}  // namespace ostrel::cli
