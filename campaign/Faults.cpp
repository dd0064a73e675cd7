#include "Faults.h"

#include <array>
#include <cmath>
#include <utility>

namespace ostrel::campaign {
namespace {

constexpr double kClean = 1.0 / 16;
constexpr int kMostFaults = 4;
constexpr double kOnce = 0.6;

/// A switch of the logger: the numbers that it strikes at, and for how many ms.
struct LoggerRow {
  std::string_view name;
  int first, last;
  int mostMs = 0;
};

constexpr std::array kLoggerRows{
    LoggerRow{"duplicate", 1, 500},
    LoggerRow{"delay", 1, 500, 4000},
    LoggerRow{"bad-checksum", 1, 500},
    LoggerRow{"carrier-drop", 1, 500},
    LoggerRow{"vanish", 1, 900},
    LoggerRow{"silent", 1, 300},
    LoggerRow{"silent-after-record", 0, 300},
    LoggerRow{"silent-after-statement", 0, 300},
    LoggerRow{"refuse-statement", 0, 300},
    LoggerRow{"torn-refusal", 0, 300, 1500},
    LoggerRow{"wrong-closing", 1, 4},
    LoggerRow{"refuse-command", 1, 6},
    LoggerRow{"silent-after-number", 1, 40},
    LoggerRow{"wrong-sum", 1, 4},
    LoggerRow{"noise", 1, 300},
    LoggerRow{"echo", 1, 300},
    LoggerRow{"refuse-erase", 1, 2},
    LoggerRow{"ready-late", 1, 2, 60'000},
    LoggerRow{"no-alive-mark", 1, 2},
    LoggerRow{"silent-after-octet", 1, 12'000},
    LoggerRow{"refuse-loader", 1, 2},
};

struct DeedRow {
  Deed deed;
  std::string_view name;
  int lastExchange;
};

constexpr std::array kDeedRows{
    DeedRow{Deed::NoPort, "port does not open", 0},
    DeedRow{Deed::PullOut, "adapter pulled out", 900},
    DeedRow{Deed::HoldLine, "line held", 900},
    DeedRow{Deed::FileFails, "change of a file fails", 400},
    DeedRow{Deed::FilesFail, "files fail for good", 900},
    DeedRow{Deed::LedgerFails, "ledger fails", 900},
    DeedRow{Deed::WrongCode, "access code wrong or missing", 0},
    DeedRow{Deed::BreakOff, "operator breaks off", 900},
    DeedRow{Deed::Meddle, "asked for other work in the midst", 900},
    DeedRow{Deed::Kill, "program killed", 900},
};

constexpr std::array<std::string_view, 2> kWays{" to the logger", " to the program"};

constexpr std::size_t kLineKinds = kDamageNames.size() * kWays.size();

void DrawOfLine(Faults& faults, sim::Random& random) {
  const auto damage = static_cast<std::size_t>(random.Next() % kDamageNames.size());
  const bool isToProgram = random.Chance(0.5);
  const int first = DrawPlace(random, 40, 30'000);
  const Faults::Hurt hurt{static_cast<Damage>(damage), isToProgram, first,
                          first * random.Between(1, 3), random.Chance(kOnce)};
  faults.ofLine.push_back(hurt);
  faults.kinds.push_back(damage * kWays.size() + (isToProgram ? 1 : 0));
  faults.words +=
      std::to_string(hurt.first) + "-" + std::to_string(hurt.last) + (hurt.once ? " once" : "");
}

void DrawOfLogger(Faults& faults, sim::Random& random) {
  const auto place = static_cast<std::size_t>(random.Next() % kLoggerRows.size());
  const LoggerRow& row = kLoggerRows.at(place);
  std::string text(row.name);
  text += "@" + std::to_string(row.first == 0 ? DrawPlace(random, 1, row.last) - 1
                                              : DrawPlace(random, row.first, row.last));
  if (row.mostMs > 0) text += ":" + std::to_string(DrawPlace(random, 10, row.mostMs));
  if (random.Chance(kOnce)) text += "!once";
  std::string error;
  faults.ofLogger.push_back(sim::ParseFault(text, error).value());
  faults.kinds.push_back(kLineKinds + place);
  faults.words += text;
}

void DrawDeed(Faults& faults, sim::Random& random) {
  const auto place = static_cast<std::size_t>(random.Next() % kDeedRows.size());
  const DeedRow& row = kDeedRows.at(place);
  const int exchange = row.lastExchange == 0 ? 0 : DrawPlace(random, 1, row.lastExchange);
  faults.deeds.emplace(exchange, row.deed);
  faults.kinds.push_back(kLineKinds + kLoggerRows.size() + place);
  faults.words += "at exchange " + std::to_string(exchange);
}

}  // namespace

const std::vector<std::string>& FaultNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> made;
    for (const std::string_view damage : kDamageNames)
      for (const std::string_view way : kWays) made.push_back(std::string(damage).append(way));
    for (const LoggerRow& row : kLoggerRows) made.emplace_back(row.name);
    for (const DeedRow& row : kDeedRows) made.emplace_back(row.name);
    return made;
  }();
  return names;
}

int DrawPlace(sim::Random& random, int first, int last) {
  const double share = random.Between(0, 10'000) / 10'000.0;
  return static_cast<int>(std::lround(first * std::pow(double(last) / first, share)));
}

Faults DrawFaults(sim::Random& random) {
  Faults faults;
  if (random.Chance(kClean)) return faults;
  for (int count = random.Between(1, kMostFaults); count > 0; --count) {
    const int group = random.Between(0, 2);
    std::string before = std::exchange(faults.words, {});
    (group == 0 ? DrawOfLine : group == 1 ? DrawOfLogger : DrawDeed)(faults, random);
    faults.words = before + (before.empty() ? "" : ", ") + FaultNames().at(faults.kinds.back()) +
                   " " + faults.words;
  }
  return faults;
}

}  // namespace ostrel::campaign
