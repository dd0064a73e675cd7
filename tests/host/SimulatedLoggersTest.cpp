#include <gmock/gmock.h>

#include "host/SimulatedLoggers.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualLoop.h"

namespace ostrel {
namespace {

using namespace std::chrono_literals;

struct SimulatedPorts : testing::Test {
  /// What a logger answers to "who is there" within a time.
  std::string Hello(int number, Duration wait) {
    LinePort& port = loggers.Port();
    port.SetCommPort(number);
    EXPECT_EQ(port.SetPortOpen(true), PortFault::None) << number;
    port.Output("#64;40\r");
    loop.RunFor(wait);
    const std::string answer = port.Input();
    port.SetPortOpen(false);
    return answer;
  }

  VirtualLoop loop;
  VirtualClock clock{{2026, 3, 2, 9, 5, 7}, loop};
  SimulatedLoggers loggers{loop, clock};
};

TEST_F(SimulatedPorts, AreOneOfEachModelAtTheLastSixNumbers) {
  std::vector<std::string> entries;
  for (const PortEntry& entry : loggers.Port().Entries())
    entries.push_back(std::to_string(entry.number) + " " + entry.device + " " + entry.description);
  EXPECT_THAT(entries,
              testing::ElementsAre(
                  "251 sim:KA1 simulated Ostrel KA1", "252 sim:KA2 simulated Ostrel KA2",
                  "253 sim:VR200 simulated Ostrel VR200", "254 sim:S100 simulated Ostrel S100",
                  "255 sim:BP simulated Tavro BP", "256 sim:BQ simulated Tavro BQ"));
  for (int number = 251; number <= 256; ++number) {
    const std::string name = loggers.ModelAt(number);
    EXPECT_EQ(loggers.NumberOf(name), number);
    EXPECT_THAT(Hello(number, 100ms), testing::HasSubstr(name));
  }
  EXPECT_EQ(loggers.ModelAt(250) + loggers.ModelAt(257), "");
  EXPECT_EQ(loggers.NumberOf("sim"), 0);
  EXPECT_EQ(loggers.LoggerOf(sim::Model::BQ).Clock(), clock.LocalNow());
}

TEST_F(SimulatedPorts, MayBeAsSlowAsACable) {
  EXPECT_NE(Hello(255, 10ms), "");
  loggers.Port().SetPaced(true);
  EXPECT_EQ(Hello(255, 10ms), "");
  EXPECT_THAT(Hello(255, 100ms), testing::HasSubstr("Tavro BP"));
}

}  // namespace
}  // namespace ostrel
