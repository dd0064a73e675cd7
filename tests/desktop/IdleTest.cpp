#include <gtest/gtest.h>
#include <sys/resource.h>

#include "WindowWorld.h"
#include "platform/qt/PortMap.h"
#include "platform/qt/PseudoTerminal.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtSerialPort.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

class Idle : public testing::Test, protected WindowWorld<QtEventLoop> {};

/// How often the system has put this process to sleep, which is how often it was woken.
long Sleeps() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_nvcsw;
}

TEST_F(Idle, AnOpenSessionWakesTheProcessTwiceASecondAtMost) {
  StartBefore("Tavro BQ", "1");
  sim::LoggerOptions options = sim::MakeDefaultOptions(sim::Model::BQ);
  PseudoTerminal terminal(
      loop,
      [&](LineEnd& end) {
        auto made = std::make_unique<sim::Logger>(loop, end, options);
        clock.SetNow(made->Clock());
        return made;
      },
      false);
  const PortMap map({{kPort, terminal.SlavePath()}});
  QtSerialPort serial(loop, map);
  VirtualDialogs dialogs;
  Desktop desktop({.loop = loop,
                   .port = serial,
                   .settings = settings,
                   .dialogs = dialogs,
                   .settings = settings,
                   .dialogs = dialogs,
                   .files = files,
                   .processes = processes,
                   .clock = clock},
                  {.programFolder = "/nowhere", .langFile = Path("Lang.txt"), .ticking = true},
                  FromQt(folder.path()));
  desktop.Start("");
  desktop.Window().show();
  SessionFrame& session = desktop.Core().general.Session();
  session.IniCom_Click();
  ASSERT_TRUE(loop.RunUntil([&] { return !session.IniRequest; }, loop.Now() + seconds(20)));
  ASSERT_TRUE(desktop.Core().Connected);
  desktop.Window().GoTo("E_Digital_0");  // a page that refreshes nothing
  const auto rest = [&](Duration span) { loop.RunUntil([] { return false; }, loop.Now() + span); };
  rest(seconds(2));
  const long before = Sleeps();
  rest(seconds(4));
  EXPECT_LE(Sleeps() - before, 2 * 4);
}

}  // namespace
}  // namespace ostrel
