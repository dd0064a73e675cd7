#include <gtest/gtest.h>

#include "platform/virtual/VirtualWorld.h"
#include "shell/session/TraceLog.h"

namespace ostrel {
namespace {

TEST(TraceLog, KeepsTheLastTenMinutesWithTheirRealTimes) {
  VirtualWorld world;
  TraceLog log(world.loop, world.clock);
  const auto lines = [&] {
    std::vector<std::string> kept;
    log.ForEach([&](const TraceEntry& entry) { kept.push_back(entry.Line()); });
    return kept;
  };
  log.Add("       12 TxSer: #40");
  world.loop.RunFor(std::chrono::milliseconds(1012));
  log.Add("     1024 RxSer: #BF 17 ok");
  log.Add("     1024 RxSer Checksum error!");
  EXPECT_EQ(lines(), (std::vector<std::string>{"2026-03-02 09:05:07.000 TxSer: #40",
                                               "2026-03-02 09:05:08.012 RxSer: #BF 17 ok",
                                               "2026-03-02 09:05:08.012 RxSer Checksum error!"}));
  world.loop.RunFor(TraceLog::kSpan - std::chrono::milliseconds(500));
  EXPECT_EQ(lines().size(), 2u);
  for (std::size_t i = 0; i < TraceLog::kMost + 5; ++i) log.Add("    99999 TxGsm: AT");
  EXPECT_EQ(lines().size(), TraceLog::kMost);
  TraceKind kind{};
  log.OnAdded = [&](const TraceEntry& entry) { kind = entry.kind; };
  for (const auto& [line, expected] :
       {std::pair{"1 TxSer: #40", TraceKind::Sent}, std::pair{"1 RxSer: #40", TraceKind::Received},
        std::pair{"1 RxGsm: OK", TraceKind::Modem},
        std::pair{"1 RxSer Checksum error!", TraceKind::Remark}}) {
    log.Add(line);
    EXPECT_EQ(kind, expected) << line;
  }
}

}  // namespace
}  // namespace ostrel
