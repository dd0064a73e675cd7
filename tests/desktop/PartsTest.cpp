#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "base/Help.h"
#include "desktop/Demo.h"
#include "desktop/FaultWords.h"
#include "desktop/HelpProcesses.h"
#include "desktop/Language.h"
#include "desktop/PortWatch.h"
#include "desktop/QtDialogs.h"
#include "desktop/RecentFiles.h"
#include "desktop/Words.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualLoop.h"
#include "platform/virtual/VirtualProcesses.h"
#include "platform/virtual/VirtualSettings.h"

namespace ostrel {
namespace {

using std::chrono::seconds;
using testing::ElementsAre;

TEST(RecentFiles, KeepTheNewestFirstAndEachOnce) {
  VirtualSettings settings;
  RecentFiles recent(settings);
  EXPECT_THAT(recent.Paths(), ElementsAre());
  for (int i = 0; i < 10; ++i) recent.Add("/f" + std::to_string(i));
  recent.Add("/f5");
  EXPECT_THAT(recent.Paths(), ElementsAre("/f5", "/f9", "/f8", "/f7", "/f6", "/f4", "/f3", "/f2"));
}

TEST(FaultWords, TellEachFaultDifferentlyWithItsNumberAndText) {
  UseLanguage("en");
  std::set<QString> told;
  for (int kind = 1; kind <= static_cast<int>(LinkFault::Kind::PortClosed); ++kind)
    told.insert(FaultWords({static_cast<LinkFault::Kind>(kind), 12, "+TLF=600"}, "/dev/ttyUSB0"));
  EXPECT_EQ(told.size(), static_cast<std::size_t>(LinkFault::Kind::PortClosed));
  EXPECT_FALSE(told.contains(QString()));
  EXPECT_EQ(FaultWords({LinkFault::Kind::Refused, 12, "+TLF=600"}, ""),
            "The logger refused statement 12: +TLF=600");
  EXPECT_TRUE(
      FaultWords({LinkFault::Kind::NoPermission, 0, ""}, "/dev/ttyUSB0").contains("dialout"));
  EXPECT_TRUE(FaultWords({}, "x").isEmpty());
}

TEST(Help, SaysBrieflyWhenThereIsNone) {
  VirtualProcesses real;
  VirtualDialogs dialogs;
  HelpProcesses processes(real);
  processes.dialogs = &dialogs;
  EXPECT_TRUE(ShowHelp(processes, "/opt", "General"));
  EXPECT_TRUE(dialogs.boxes.empty());
  real.fails = true;
  EXPECT_FALSE(ShowHelp(processes, "/opt", "General"));
  ASSERT_EQ(dialogs.boxes.size(), 1u);
  EXPECT_FALSE(processes.Start("other"));
  EXPECT_EQ(dialogs.boxes.size(), 1u);
}

TEST(NameFilters, ComeFromPairs) {
  EXPECT_EQ(NameFilters("OCF (*.ocf)|*.ocf|All (*.*)|*.*"),
            QStringList({"OCF (*.ocf)", "All (*)"}));
}

class Ports : public testing::Test {
 protected:
  struct Silent final : LineDevice {
    void Receive(std::string_view) override {}
    void SetTerminalReady(bool) override {}
  };

  LineEnd& Plug(int number) {
    return port.AddDevice(number, "/dev/tty" + std::to_string(number), "adapter", device);
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const ListRow& row : list.Rows()) names.push_back(row.text);
    return names;
  }

  VirtualLoop loop;
  Silent device;
  LinePort port{loop};
  Form form{"Sample", ""};
  ComboBox list{form, "Puerto"};
};

TEST_F(Ports, ComeAndGoWithoutLosingTheChoice) {
  Plug(3);
  LineEnd& chosen = Plug(40);
  Plug(1);  // could not be opened by the scan
  list.Add("COM3");
  list.Add("COM40");
  list.SetPosition(1);
  PortWatch watch(list, port, loop, [](const std::function<void()>& run) { run(); });
  watch.Start();
  watch.Refresh();
  EXPECT_THAT(Names(), ElementsAre("COM3", "COM40"));
  Plug(33);
  watch.Refresh();
  EXPECT_THAT(Names(), ElementsAre("COM3", "COM33", "COM40"));
  EXPECT_EQ(list.Text(), "COM40");
  EXPECT_EQ(watch.RowText({"COM40", 0}), "COM40 - /dev/tty40 (adapter)");
  chosen.Vanish();
  watch.Refresh();
  EXPECT_THAT(Names(), ElementsAre("COM3", "COM33"));
  EXPECT_EQ(list.Text(), "COM3");
  port.Restore(40);
  watch.Refresh();
  EXPECT_EQ(list.Text(), "COM40");
  EXPECT_EQ(watch.DeviceOf("COM99"), "COM99");
}

TEST_F(Ports, KeepAnotherChoiceWhenTheFormerOneComesBack) {
  LineEnd& first = Plug(3);
  Plug(4);
  Plug(5);
  for (const auto* name : {"COM3", "COM4", "COM5"}) list.Add(name);
  list.SetPosition(0);
  PortWatch watch(list, port, loop, [](const std::function<void()>& run) { run(); });
  watch.Start();
  first.Vanish();
  watch.Refresh();
  list.SetPosition(1);
  port.Restore(3);
  watch.Refresh();
  EXPECT_EQ(list.Text(), "COM5");
}

TEST_F(Ports, OfTheDemonstrationAreTheSixLoggers) {
  AddDemoLoggers(port, loop, VirtualClock());
  std::vector<int> numbers;
  for (const PortEntry& entry : port.Entries()) numbers.push_back(entry.number);
  EXPECT_THAT(numbers, ElementsAre(251, 252, 253, 254, 255, 256));
  port.SetCommPort(255);
  ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
  port.Output("#64;40\r");
  loop.RunFor(seconds(1));
  EXPECT_NE(port.Input().find("Tavro BP"), std::string::npos);
}

}  // namespace
}  // namespace ostrel
