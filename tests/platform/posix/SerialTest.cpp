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
#include "platform/posix/PortMap.h"
#include "platform/posix/PosixSerialDevices.h"
#include "platform/posix/PseudoTerminal.h"
#include "platform/virtual/VirtualLoop.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

const testing::Environment* const kEnvironment =
    testing::AddGlobalTestEnvironment(new QtEnvironment);

/// Notes what it gets, and at a carriage return sends all of it back behind an equals sign.
class AnsweringDevice final : public LineDevice {
 public:
  explicit AnsweringDevice(LineEnd& end) : end_(end) {}
  void Receive(std::string_view octets) override {
    got += octets;
    if (octets.back() == '\r') end_.Send("=" + got);
  }
  void SetTerminalReady(bool ready) override { got += ready ? "<up>" : "<down>"; }

  std::string got;

 private:
  LineEnd& end_;
};

class SerialTest : public testing::Test {
 protected:
  void Start(bool paced) {
    terminal = std::make_unique<PseudoTerminal>(
        loop,
        [this](LineEnd& end) {
          auto made = std::make_unique<AnsweringDevice>(end);
          device = made.get();
          return made;
        },
        paced);
    devices.Map() = PortMap({{200, terminal->SlavePath()}});
    port.SetCommPort(200);
    port.SetSettings("9600,N,8,1");
    port.SetInBufferSize(8192);
    port.SetHandshaking(PortHandshaking::RtsCts);
    port.SetRTSEnable(false);
    port.SetDTREnable(true);
  }
  bool Await(const EventLoop::Condition& condition) {
    return loop.RunUntil(condition, loop.Now() + seconds(5));
  }
  bool AwaitInUse(bool inUse) {
    return Await([&, inUse] { return terminal->InUse() == inUse; });
  }

  QtEventLoop loop;
  std::unique_ptr<PseudoTerminal> terminal;
  AnsweringDevice* device = nullptr;
  PosixSerialDevices devices{loop, PortMap()};
  DevicePort port{loop, devices};
};

TEST_F(SerialTest, RoundTripsOfAllOctetsThroughRepeatedOpenings) {
  Start(false);
  std::string all;
  for (int octet = 0; octet < 256; ++octet) all += static_cast<char>(octet);
  all += '\r';
  for (int pass = 0; pass < 3; ++pass) {
    SCOPED_TRACE(pass);
    device->got.clear();
    ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
    EXPECT_EQ(port.SetPortOpen(true), PortFault::Failed);
    ASSERT_TRUE(AwaitInUse(true));
    port.Output(all);
    const std::string expected = "=<up>" + all;
    EXPECT_TRUE(Await([&] { return port.InBufferCount() >= expected.size(); }));
    EXPECT_GT(port.OutBufferCount(), 0u) << "a terminal takes all at once, a line does not";
    port.DiscardOutput();
    EXPECT_EQ(port.OutBufferCount(), 0u);
    port.SetInputLen(1);
    EXPECT_EQ(port.Input(), "=");
    port.SetInputLen(0);
    EXPECT_EQ(port.Input(), expected.substr(1));
    port.SetPortOpen(false);
    EXPECT_TRUE(AwaitInUse(false));
    EXPECT_EQ(device->got, "<up>" + all + "<down>");
  }
}

TEST_F(SerialTest, LargeTransfersPassWhole) {
  Start(false);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  std::string text(100'000, 'x');
  text += '\r';
  port.Output(text);
  EXPECT_GT(port.OutBufferCount(), 0u);
  std::string got;
  Await([&] {
    got += port.Input();
    return got.size() >= text.size() + 5;
  });
  EXPECT_EQ(got.size(), text.size() + 5);
}

TEST_F(SerialTest, WhatNobodyReadsIsBounded) {
  Start(false);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  ASSERT_TRUE(AwaitInUse(true));
  static_cast<LineEnd&>(*terminal).Send(std::string(100'000, 'x') + "the end");
  loop.RunUntil([] { return false; }, loop.Now() + milliseconds(100));
  EXPECT_EQ(port.LostOctets(), 0u) << "a reader that is late for once finds everything";
  EXPECT_TRUE(Await([&] { return port.LostOctets() + port.InBufferCount() == 100'007; }));
  EXPECT_EQ(port.InBufferCount(), 8192u);
  port.SetInputLen(0);
  EXPECT_TRUE(port.Input().ends_with("xthe end"));
}

TEST_F(SerialTest, HangUpIsNoticedAtOnceAndDoesNotSpin) {
  Start(false);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  ASSERT_TRUE(AwaitInUse(true));
  const TimePoint start = loop.Now();
  terminal->Vanish();
  EXPECT_TRUE(Await([&] { return port.LineLost(); }));
  EXPECT_LT(loop.Now() - start, milliseconds(100));
  EXPECT_TRUE(port.PortOpen());
  port.Output("into nothing");
  int looks = 0;
  loop.RunUntil([&] { return ++looks < 0; }, loop.Now() + milliseconds(30));
  EXPECT_LT(looks, 10);
  port.SetPortOpen(false);
  EXPECT_FALSE(port.LineLost());
}

TEST_F(SerialTest, WhileNoOctetMovesNothingWakesTheLoop) {
  Start(true);
  const auto wakings = [this] {
    loop.PumpEvents();
    int looks = 0;
    loop.RunUntil([&] { return ++looks < 0; }, loop.Now() + milliseconds(200));
    return looks - 3;  // at the start, at the deadline and at the end
  };
  EXPECT_LE(wakings(), 1) << "closed";
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  ASSERT_TRUE(AwaitInUse(true));
  EXPECT_LE(wakings(), 1) << "open";
  port.SetPortOpen(false);
  ASSERT_TRUE(AwaitInUse(false));
  EXPECT_LE(wakings(), 1) << "closed again";
}

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

TEST_F(SerialTest, PacedTerminalKeepsLineSpeedBothWays) {
  Start(true);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  ASSERT_TRUE(AwaitInUse(true));
  const TimePoint start = loop.Now();
  port.Output(std::string(95, 'x') + '\r');
  const std::size_t expected = 96 + 5;
  EXPECT_TRUE(Await([&] { return port.InBufferCount() == expected; }));
  EXPECT_GE(loop.Now() - start, LineTime(96) + LineTime(expected));
}

TEST_F(SerialTest, ProbeAndOpenTellFaults) {
  Start(false);
  DevicePort other(loop, devices);
  other.SetCommPort(200);
  EXPECT_EQ(port.Probe(200), PortFault::None);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  EXPECT_EQ(port.Probe(200), PortFault::None) << "the port in use";
  EXPECT_EQ(other.Probe(200), PortFault::Busy);
  EXPECT_EQ(other.SetPortOpen(true), PortFault::Busy);
  EXPECT_FALSE(other.PortOpen());
  EXPECT_EQ(other.Probe(96), PortFault::NoSuchPort);
  EXPECT_EQ(other.Probe(256), PortFault::NoSuchPort);
  devices.Map() = PortMap({{201, "/dev/null"}});
  EXPECT_EQ(other.Probe(201), PortFault::Failed) << "no terminal";
}

TEST_F(SerialTest, EntriesAreTheNodesThatExist) {
  Start(false);
  bool found = false;
  int last = 0;
  for (const PortEntry& entry : port.Entries()) {
    EXPECT_GT(entry.number, last);
    last = entry.number;
    EXPECT_TRUE(std::filesystem::exists(entry.device));
    found = found || (entry.number == 200 && entry.device == terminal->SlavePath());
  }
  EXPECT_TRUE(found);
}

}  // namespace
}  // namespace ostrel
