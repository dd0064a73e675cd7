// Whole sessions of a program with a simulated logger, on a clock of their own and with faults at
// random. Each is drawn from its seed alone, so that one which finds something can be run again.

#include <chrono>
#include <cstdio>
#include <exception>

#include "Memory.h"
#include "Options.h"
#include "Session.h"
#include "Workers.h"

namespace {

using namespace ostrel::campaign;

/// Far more than any session needs: what grows with the length of a dialogue would pass it.
constexpr std::size_t kMostOctets = 64U << 20U;

std::vector<std::string> Run(std::uint64_t seed, Tally& tally, bool tells) {
  ForgetMost();
  std::vector<std::string> breaches;
  try {
    breaches = Session(seed, tally, tells).Run();
  } catch (const std::exception& thrown) {
    breaches.push_back(std::string("thrown: ") + thrown.what());
  }
  Raise(tally.mostOctets, MemoryInUse().mostOctets);
  if (MemoryInUse().mostOctets > kMostOctets) breaches.push_back("it needs too much memory");
  return breaches;
}

/// Blocks that a session has left behind.
std::size_t Left(std::uint64_t seed, Tally& tally) {
  const std::size_t before = MemoryInUse().blocks;
  Run(seed, tally, false);
  return MemoryInUse().blocks - before;
}

void Report(std::uint64_t seed, const std::string& what) {
  std::printf("seed %llu: %s\n", static_cast<unsigned long long>(seed), what.c_str());
}

void RunAndJudge(std::uint64_t seed, Tally& tally, Tally& aside, bool tells) {
  const std::size_t before = MemoryInUse().blocks;
  std::size_t found = 0;
  {
    const std::vector<std::string> breaches = Run(seed, tally, tells);
    for (const std::string& breach : breaches) Report(seed, breach);
    found = breaches.size();
  }
  // What is made once for the whole program is no growth: the same session leaves it no second
  // time.
  if (MemoryInUse().blocks != before && Left(seed, aside) != 0) {
    Report(seed, "memory grows");
    ++found;
  }
  tally.breaches += found;
  ++tally.sessions;
}

}  // namespace

int main(int count, char** words) {
  const auto options = ReadOptions(count, words, "sessions", 1000);
  if (!options || !options->rest.empty()) {
    std::fputs("usage: ostrel-campaign [--sessions N] [--seed S] [--processes P] [--tell]\n",
               stderr);
    return 2;
  }
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);  // several processes tell, each whole lines
  Tally& tally = MakeShared<Tally>();
  Tally& aside = MakeShared<Tally>();
  const auto start = std::chrono::steady_clock::now();
  WorkOn(
      {.items = options->count, .processes = options->processes},
      [&](std::uint64_t item) { RunAndJudge(options->seed + item, tally, aside, options->tells); },
      [&](const Death& death) {
        Report(options->seed + death.item, "the program ended: " + death.how);
        ++tally.breaches;
        ++tally.sessions;
      });
  Print(tally, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  return tally.breaches == 0 ? 0 : 1;
}
