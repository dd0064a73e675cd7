#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "host/System.h"
#include "platform/DevicePort.h"
#include "platform/QtEnvironment.h"
#include "platform/qt/ServedLine.h"
#include "platform/virtual/VirtualSettings.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

const testing::Environment* const kEnvironment =
    testing::AddGlobalTestEnvironment(new QtEnvironment);

/// Notes what it gets, and at a carriage return sends all of it back behind an equals sign.
class AnsweringDevice final : public LineDevice {
 public:
  explicit AnsweringDevice(LineEnd& nearEnd) : end(nearEnd) {}
  void Receive(std::string_view octets) override {
    got += octets;
    if (octets.back() == '\r') end.Send("=" + got);
  }
  void SetTerminalReady(bool ready) override {
    got += ready ? "<up>" : "<down>";
    isUp = ready;
  }

  std::string got;
  bool isUp = false;
  LineEnd& end;
};

/// The machine's own serial port, at a line that this system offers for a device of a program.
class MachineLine : public testing::Test {
 protected:
  void Start(bool paced) {
    line = ServeDevice(
        loop,
        [this](LineEnd& end) {
          auto made = std::make_unique<AnsweringDevice>(end);
          device = made.get();
          return made;
        },
        paced);
    port.SetCommPort(devices->NumberFor(line->Path()));
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
    return Await([&, inUse] { return device->isUp == inUse; });
  }

  QtEventLoop loop;
  VirtualSettings settings;
  std::unique_ptr<ServedLine> line;
  AnsweringDevice* device = nullptr;
  std::unique_ptr<SerialDevices> devices = MachineDevices(loop, settings);
  DevicePort port{loop, *devices};
};

TEST_F(MachineLine, RoundTripsOfAllOctetsThroughRepeatedOpenings) {
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

TEST_F(MachineLine, LargeTransfersPassWhole) {
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

TEST_F(MachineLine, WhatNobodyReadsIsBounded) {
  Start(false);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  ASSERT_TRUE(AwaitInUse(true));
  device->end.Send(std::string(100'000, 'x') + "the end");
  loop.RunUntil([] { return false; }, loop.Now() + milliseconds(100));
  EXPECT_EQ(port.LostOctets(), 0u) << "a reader that is late for once finds everything";
  EXPECT_TRUE(Await([&] { return port.LostOctets() + port.InBufferCount() == 100'007; }));
  EXPECT_EQ(port.InBufferCount(), 8192u);
  port.SetInputLen(0);
  EXPECT_TRUE(port.Input().ends_with("xthe end"));
}

TEST_F(MachineLine, HangUpIsNoticedAtOnceAndDoesNotSpin) {
  Start(false);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  ASSERT_TRUE(AwaitInUse(true));
  const TimePoint start = loop.Now();
  device->end.Vanish();
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

TEST_F(MachineLine, WhileNoOctetMovesNothingWakesTheLoop) {
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

TEST_F(MachineLine, APacedLineKeepsLineSpeedBothWays) {
  Start(true);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  ASSERT_TRUE(AwaitInUse(true));
  const TimePoint start = loop.Now();
  port.Output(std::string(95, 'x') + '\r');
  const std::size_t expected = 96 + 5;
  EXPECT_TRUE(Await([&] { return port.InBufferCount() == expected; }));
  EXPECT_GE(loop.Now() - start, LineTime(96) + LineTime(expected));
}

TEST_F(MachineLine, ProbeAndOpenTellFaults) {
  Start(false);
  const int number = devices->NumberFor(line->Path());
  DevicePort other(loop, *devices);
  other.SetCommPort(number);
  EXPECT_EQ(port.Probe(number), PortFault::None);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  EXPECT_EQ(port.Probe(number), PortFault::None) << "the port in use";
  EXPECT_EQ(other.Probe(number), PortFault::Busy);
  EXPECT_EQ(other.SetPortOpen(true), PortFault::Busy);
  EXPECT_FALSE(other.PortOpen());
  EXPECT_EQ(other.Probe(249), PortFault::NoSuchPort);
  EXPECT_EQ(devices->DeviceOf(257), "");
  EXPECT_TRUE(devices->Inspect(number).exists);
  EXPECT_FALSE(devices->Inspect(249).exists);
}

}  // namespace
}  // namespace ostrel
