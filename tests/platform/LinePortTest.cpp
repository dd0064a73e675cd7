#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/PortSwitch.h"
#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualLoop.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::ElementsAre;

/// Notes what it gets and answers each carriage return with a text.
class EchoDevice final : public LineDevice {
 public:
  void Receive(std::string_view octets) override {
    got += octets;
    if (end && octets.back() == '\r') end->Send(answer);
  }
  void SetTerminalReady(bool ready) override { got += ready ? "<up>" : "<down>"; }

  LineEnd* end = nullptr;
  std::string answer;
  std::string got;
};

class LinePortTest : public testing::Test {
 protected:
  LinePortTest() {
    device.end = &port.AddDevice(7, "echo", "Echo device", device);
    port.SetCommPort(7);
    port.SetInBufferSize(8192);
  }
  bool Await(std::size_t octets, TimePoint deadline) {
    return loop.RunUntil([&] { return port.InBufferCount() >= octets; }, deadline);
  }
  std::string Lines(int count) const {
    std::string text;
    for (int i = 0; i < count; ++i) text += "0123456789ABCD" + std::to_string(i % 10) + "\r";
    return text;
  }

  VirtualLoop loop;
  EchoDevice device;
  LinePort port{loop};
};

TEST_F(LinePortTest, NothingPassesWithinACall) {
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  device.answer = "pong\r";
  port.Output("ping\r");
  EXPECT_EQ(device.got, "<up>");
  EXPECT_TRUE(Await(5, seconds(1)));
  EXPECT_EQ(device.got, "<up>ping\r");
  EXPECT_EQ(loop.Now(), Duration::zero()) << "an unpaced line takes no time";
  port.SetInputLen(1);
  EXPECT_EQ(port.Input(), "p");
  EXPECT_EQ(port.Input(), "o");
  port.SetInputLen(0);
  EXPECT_EQ(port.Input(), "ng\r");
  EXPECT_EQ(port.Input(), "");
  port.Output("bye");
  port.SetPortOpen(false);
  EXPECT_EQ(device.got, "<up>ping\rbye<down>");
}

TEST_F(LinePortTest, PacedOctetsTakeTheirLineTimeBothWays) {
  port.SetPaced(true);
  port.SetPortOpen(true);
  port.Output(Lines(60));
  EXPECT_EQ(port.OutBufferCount(), 960u);
  loop.HoldUp(milliseconds(500));
  EXPECT_EQ(port.OutBufferCount(), 480u);
  EXPECT_TRUE(loop.RunUntil([&] { return port.OutBufferCount() == 0; }, kNever));
  EXPECT_EQ(loop.Now(), seconds(1));
  EXPECT_EQ(device.got, "<up>" + Lines(60));

  device.end->Send(Lines(30));
  device.end->Send(Lines(30));
  EXPECT_FALSE(Await(960, seconds(2) - Duration(1)));
  EXPECT_EQ(port.InBufferCount(), 959u);
  EXPECT_TRUE(Await(960, seconds(3)));
  EXPECT_EQ(loop.Now(), seconds(2));
  EXPECT_EQ(port.Input(), Lines(60));
}

/// Whoever takes with each event loses nothing, however fast it comes; whoever does not finds the
/// latest octets.
TEST_F(LinePortTest, FullBufferLosesTheOldest) {
  const std::string stream = Lines(6000);
  for (const bool paced : {false, true}) {
    port.SetPaced(paced);
    port.SetPortOpen(true);
    device.end->Send(stream);
    std::string got;
    while (Await(1, loop.Now() + seconds(1))) got += port.Input();
    EXPECT_TRUE(got == stream);
    EXPECT_EQ(port.LostOctets(), 0u);
    device.end->Send(stream);
    loop.RunFor(seconds(110));
    EXPECT_EQ(port.InBufferCount(), 8192u);
    EXPECT_EQ(port.LostOctets(), stream.size() - 8192);
    EXPECT_TRUE(port.Input() == stream.substr(stream.size() - 8192));
    port.SetPortOpen(false);
  }
}

TEST_F(LinePortTest, CarrierChangesComeAsEventsThroughTheLoop) {
  std::vector<std::string> events;
  port.SetOnComm([&] {
    events.push_back(std::to_string(port.CommEvent()) + (port.CDHolding() ? " on" : " off"));
  });
  device.end->SetCarrier(true);
  port.SetPortOpen(true);
  EXPECT_TRUE(port.CDHolding()) << "seen at opening, without an event";
  device.end->SetCarrier(false);
  device.end->SetCarrier(false);
  device.end->SetCarrier(true);
  EXPECT_TRUE(port.CDHolding() && events.empty());
  loop.RunFor(milliseconds(1));
  EXPECT_THAT(events, ElementsAre("5 off", "5 on"));
  device.end->SetCarrier(false);
  port.SetPortOpen(false);
  loop.RunFor(milliseconds(1));
  EXPECT_EQ(events.size(), 2u) << "a closed port tells nothing";
}

TEST_F(LinePortTest, VanishedDeviceIsLostUntilItIsBack) {
  port.SetPortOpen(true);
  device.end->Send("rest");
  loop.RunFor(milliseconds(1));
  loop.After(milliseconds(5), "pull", [&] { device.end->Vanish(); });
  EXPECT_TRUE(loop.RunUntil([&] { return port.LineLost(); }, seconds(1)));
  EXPECT_TRUE(port.PortOpen());
  EXPECT_EQ(port.InBufferCount(), 0u);
  port.Output("nobody\r");
  device.end->Send("nothing");
  EXPECT_FALSE(Await(1, seconds(1)));
  EXPECT_TRUE(port.Entries().empty());
  port.SetPortOpen(false);
  EXPECT_EQ(port.SetPortOpen(true), PortFault::NoSuchPort);
  EXPECT_EQ(device.got, "<up>");
  port.Restore(7);
  EXPECT_EQ(port.SetPortOpen(true), PortFault::None);
  EXPECT_FALSE(port.LineLost());
  EXPECT_EQ(port.InBufferCount(), 0u);
}

TEST_F(LinePortTest, ProbeAndOpenTellFaults) {
  EchoDevice other;
  port.AddDevice(3, "other", "", other);
  port.SetOpenFault(3, PortFault::Busy);
  EXPECT_EQ(port.Probe(3), PortFault::Busy);
  EXPECT_EQ(port.Probe(4), PortFault::NoSuchPort);
  port.SetOpenFault(3, PortFault::None);
  port.SetPortOpen(true);
  EXPECT_EQ(port.SetPortOpen(true), PortFault::Failed);
  EXPECT_EQ(port.Probe(7), PortFault::None);
  EXPECT_EQ(device.got, "<up>") << "a probe leaves the port in use alone";
  EXPECT_EQ(port.Probe(3), PortFault::None);
  EXPECT_EQ(other.got, "<up><down>");
  port.SetDTREnable(false);
  EXPECT_EQ(device.got, "<up><down>");
}

TEST_F(LinePortTest, SwitchRoutesNumbersAndKeepsProperties) {
  LinePort loggers{loop};
  EchoDevice logger;
  logger.end = &loggers.AddDevice(251, "sim", "", logger);
  loggers.AddDevice(5, "hidden: not in its range", "", logger);
  PortSwitch both;
  both.AddRange(251, 256, loggers);
  both.AddRange(1, 160, port);
  int events = 0;
  both.SetOnComm([&] { ++events; });
  both.SetInputLen(1);
  both.SetDTREnable(false);
  both.SetCommPort(200);
  EXPECT_EQ(both.SetPortOpen(true), PortFault::NoSuchPort);
  both.SetCommPort(251);
  ASSERT_EQ(both.SetPortOpen(true), PortFault::None);
  EXPECT_EQ(logger.got, "") << "DTR is off";
  both.SetDTREnable(true);
  both.SetCommPort(7);
  EXPECT_EQ(both.Probe(251), PortFault::None);
  logger.end->Send("xy");
  logger.end->SetCarrier(true);
  loop.RunFor(milliseconds(1));
  EXPECT_EQ(both.Input(), "x");
  EXPECT_EQ(events, 1);
  both.SetPortOpen(false);
  EXPECT_EQ(logger.got, "<up><down>");
  ASSERT_EQ(both.SetPortOpen(true), PortFault::None);
  EXPECT_EQ(device.got, "<up>");
  std::vector<int> numbers;
  for (const PortEntry& entry : both.Entries()) numbers.push_back(entry.number);
  EXPECT_THAT(numbers, ElementsAre(7, 251));
}

}  // namespace
}  // namespace ostrel
