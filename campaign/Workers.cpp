#include "Workers.h"

#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <thread>

namespace ostrel::campaign {
namespace {

constexpr unsigned kMostProcesses = 64;

/// What the processes agree on: the next item that nobody has, and who has which.
struct Desk {
  std::atomic<std::uint64_t> next;
  std::array<std::atomic<std::uint64_t>, kMostProcesses> underWay;
};

/// Ends the process when it has computed for so long: a machine with much else to do is no hang.
void AllowTime(std::chrono::seconds longest) {
  const itimerval once{.it_interval = {}, .it_value = {.tv_sec = longest.count(), .tv_usec = 0}};
  setitimer(ITIMER_PROF, &once, nullptr);
}

[[noreturn]] void BeWorker(Desk& desk, unsigned place, const WorkPlan& plan,
                           const std::function<void(std::uint64_t)>& work) {
  std::set_terminate([] {
    try {
      if (std::current_exception()) std::rethrow_exception(std::current_exception());
    } catch (const std::exception& thrown) {
      std::fprintf(stderr, "thrown: %s\n", thrown.what());
    } catch (...) {
      std::fputs("thrown: something\n", stderr);
    }
    std::abort();
  });
  for (std::uint64_t item = 0; (item = desk.next++) < plan.items;) {
    desk.underWay.at(place) = item;
    AllowTime(plan.longest);
    work(item);
  }
  AllowTime({});
  std::exit(EXIT_SUCCESS);
}

pid_t Start(Desk& desk, unsigned place, const WorkPlan& plan,
            const std::function<void(std::uint64_t)>& work) {
  std::fflush(nullptr);
  const pid_t made = fork();
  if (made < 0) throw std::system_error(errno, std::generic_category(), "fork");
  // What is thrown must end the process there: nothing below this is the worker's to unwind.
  if (made == 0) [&]() noexcept { BeWorker(desk, place, plan, work); }();
  return made;
}

std::string EndOf(int status) {
  if (WIFSIGNALED(status)) {
    const int signal = WTERMSIG(status);
    return signal == SIGPROF ? "it came to no end" : "signal " + std::to_string(signal);
  }
  return "exit code " + std::to_string(WEXITSTATUS(status));
}

}  // namespace

unsigned UsualProcesses() { return std::max(1U, std::thread::hardware_concurrency()); }

void WorkOn(const WorkPlan& plan, const std::function<void(std::uint64_t item)>& work,
            const std::function<void(const Death&)>& onDeath) {
  Desk& desk = MakeShared<Desk>();
  std::map<pid_t, unsigned> places;
  const unsigned processes = std::clamp(plan.processes, 1U, kMostProcesses);
  for (unsigned place = 0; place < processes; ++place)
    places[Start(desk, place, plan, work)] = place;
  while (!places.empty()) {
    int status = 0;
    const pid_t ended = wait(&status);
    const auto found = places.find(ended);
    if (found == places.end()) continue;
    const unsigned place = found->second;
    places.erase(found);
    if (WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS) continue;
    onDeath({desk.underWay.at(place), EndOf(status)});
    if (desk.next < plan.items) places[Start(desk, place, plan, work)] = place;
  }
  munmap(&desk, sizeof desk);
}

}  // namespace ostrel::campaign
