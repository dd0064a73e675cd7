#include <gmock/gmock.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "platform/DevicePort.h"
#include "platform/QtEnvironment.h"
#include "platform/posix/CarrierWatch.h"
#include "platform/posix/NodeWatch.h"
#include "platform/posix/PortMap.h"
#include "platform/posix/PosixSerialDevices.h"
#include "platform/qt/ServedLine.h"
#include "platform/virtual/VirtualLoop.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

const testing::Environment* const kEnvironment =
    testing::AddGlobalTestEnvironment(new QtEnvironment);

class SerialTest : public testing::Test {
 protected:
  bool Await(const EventLoop::Condition& condition) {
    return loop.RunUntil(condition, loop.Now() + seconds(5));
  }

  QtEventLoop loop;
};

TEST_F(SerialTest, ATakenNodeIsNoticedAtOnce) {
  const QTemporaryDir folder;
  const std::string path = folder.filePath("node").toStdString();
  std::ofstream(path) << "x";
  int gone = 0;
  const NodeWatch watch(loop, path, [&gone] { ++gone; });
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  loop.RunUntil([] { return false; }, loop.Now() + milliseconds(5));
  EXPECT_EQ(gone, 0);
  std::filesystem::remove(path);
  EXPECT_TRUE(Await([&] { return gone == 1; }));
}

/// A pipe stands for the driver: an octet is a change of the line.
TEST_F(SerialTest, ACarrierChangeWakesTheLoopAndNothingElseDoes) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  std::vector<bool> seen;
  bool carrier = true;
  const auto await = [fd = ends[0]] {
    char octet = 0;
    return ::read(fd, &octet, 1) == 1 || errno == EINTR;
  };
  auto watch = std::make_unique<CarrierWatch>(
      loop, CarrierLine{[&carrier] { return std::optional(carrier); }, await},
      [&seen](std::optional<bool> now) { seen.push_back(now.value_or(false)); });
  int looks = 0;
  loop.RunUntil([&] { return ++looks < 0; }, loop.Now() + seconds(1));
  EXPECT_LE(looks, 7) << "a look each 100 ms would be ten";
  EXPECT_EQ(seen, std::vector{true}) << "it may have changed before anybody waited";
  const TimePoint start = loop.Now();
  ASSERT_EQ(::write(ends[1], "x", 1), 1);
  EXPECT_TRUE(Await([&] { return seen.size() == 2; }));
  carrier = false;  // while nobody waits, as it were
  EXPECT_TRUE(Await([&] { return seen == std::vector{true, true, false}; }));
  EXPECT_LT(loop.Now() - start, seconds(2));
  watch.reset();
  EXPECT_LT(loop.Now() - start, seconds(4)) << "the wait in the system has ended";

  watch = std::make_unique<CarrierWatch>(
      loop, CarrierLine{[&carrier] { return std::optional(carrier); }, [] { return false; }},
      [&seen](std::optional<bool> now) { seen.push_back(now.value_or(false)); });
  EXPECT_TRUE(Await([&] { return seen.size() == 6; })) << "it is looked at now and then";
  EXPECT_LT(loop.Now() - start, seconds(20));
  for (const int end : ends) ::close(end);
}

/// A queue that flow control holds costs next to nothing, and is seen to move at once.
TEST(DrainWatch, LooksMoreAndMoreSeldomAtAQueueThatDoesNotMove) {
  VirtualLoop clock;
  std::size_t queued = 7;
  DrainWatch watch(clock, [&queued] { return queued; });
  watch.Start();
  auto before = clock.Wakings();
  clock.RunFor(seconds(10));
  EXPECT_LE(clock.Wakings() - before, 20U) << "each 20 ms would be 500";
  before = clock.Wakings();
  watch.Start();
  queued = 6;
  EXPECT_TRUE(
      clock.RunUntil([&] { return clock.Wakings() > before; }, clock.Now() + milliseconds(25)));
  queued = 0;
  clock.RunFor(seconds(2));
  before = clock.Wakings();
  clock.RunFor(seconds(10));
  EXPECT_EQ(clock.Wakings(), before);
}

TEST_F(SerialTest, OnlyNodesThatExistAreEntriesAndOnlyTerminalsOpen) {
  const auto line = ServeDevice(
      loop,
      [](LineEnd&) {
        struct Deaf final : LineDevice {
          void Receive(std::string_view) override {}
          void SetTerminalReady(bool) override {}
        };
        return std::make_unique<Deaf>();
      },
      false);
  PosixSerialDevices devices(loop, PortMap({{200, line->Path()}, {201, "/dev/null"}}));
  bool found = false;
  int last = 0;
  for (const PortEntry& entry : devices.Entries()) {
    EXPECT_GT(entry.number, last);
    last = entry.number;
    EXPECT_TRUE(std::filesystem::exists(entry.device));
    found = found || (entry.number == 200 && entry.device == line->Path());
  }
  EXPECT_TRUE(found);
  DevicePort port(loop, devices);
  EXPECT_EQ(port.Probe(200), PortFault::None);
  EXPECT_EQ(port.Probe(96), PortFault::NoSuchPort);
  EXPECT_EQ(port.Probe(201), PortFault::Failed) << "no terminal";
  const QTemporaryDir folder;
  const std::string link = folder.filePath("logger").toStdString();
  EXPECT_EQ(line->FindAs(link), "");
  EXPECT_EQ(devices.NumberFor(link), 200);
  EXPECT_NE(line->FindAs("/nowhere/logger"), "");
  EXPECT_FALSE(std::filesystem::is_symlink(link)) << "it has one name at a time";
}

}  // namespace
}  // namespace ostrel
