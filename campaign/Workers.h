#pragma once

#include <sys/mman.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <new>
#include <string>
#include <system_error>

namespace ostrel::campaign {

/// An item of work that ended its process.
struct Death {
  std::uint64_t item = 0;
  std::string how;  ///< "signal 11", "exit code 1"
};

/// How items are worked on: in so many processes at a time, none of them for longer.
struct WorkPlan {
  std::uint64_t items = 0;
  unsigned processes = 1;
  std::chrono::seconds longest{60};  ///< computing time of one item
};

/// Works on each item in one of several processes, so that one which crashes, hangs or throws ends
/// no more than itself. Its process is started anew behind it, and `onDeath` is told.
void WorkOn(const WorkPlan& plan, const std::function<void(std::uint64_t item)>& work,
            const std::function<void(const Death&)>& onDeath);

/// As many processes as the machine runs at a time.
unsigned UsualProcesses();

/// Something that all processes share which are started from here on; for the rest of the program.
template <class T>
T& MakeShared() {
  void* const room =
      mmap(nullptr, sizeof(T), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (room == MAP_FAILED) throw std::system_error(errno, std::generic_category(), "mmap");
  return *new (room) T;
}

}  // namespace ostrel::campaign
