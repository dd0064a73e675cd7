#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QTimer>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/QtEnvironment.h"
#include "platform/qt/QtEventLoop.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::ElementsAre;

const testing::Environment* const kEnvironment =
    testing::AddGlobalTestEnvironment(new QtEnvironment);

const auto kNo = [] { return false; };

TEST(QtEventLoopTest, ServesTimersByDueTimeAndKeepsTheDeadline) {
  QtEventLoop loop;
  std::vector<std::string> notes;
  loop.After(milliseconds(90), "second", [&] { notes.push_back("second"); });
  loop.After(milliseconds(2), "first", [&] { notes.push_back("first"); });
  const TimerId gone = loop.After(milliseconds(1), "gone", [&] { notes.push_back("gone"); });
  loop.Cancel(gone);
  loop.After(milliseconds(90), "third", [&] { notes.push_back("third"); });
  EXPECT_FALSE(loop.RunUntil(kNo, loop.Now() + milliseconds(200)));
  EXPECT_GE(loop.Now(), milliseconds(200));
  EXPECT_THAT(notes, ElementsAre("first", "second", "third"));
}

TEST(QtEventLoopTest, WaitSleepsInsteadOfPolling) {
  QtEventLoop loop;
  int looks = 0;
  loop.RunUntil([&] { return ++looks < 0; }, loop.Now() + milliseconds(40));
  EXPECT_LT(looks, 8);
}

TEST(QtEventLoopTest, WaitEndsWithTheEventThatFulfilsIt) {
  QtEventLoop loop;
  const TimePoint start = loop.Now();
  // With nothing else to come, a wait that looked one event late would end at its deadline.
  for (const Duration delay : {Duration::zero(), Duration(milliseconds(30))}) {
    bool served = false;
    loop.After(delay, "last event", [&] { served = true; });
    EXPECT_TRUE(loop.RunUntil([&] { return served; }, loop.Now() + seconds(20)));
  }
  EXPECT_LT(loop.Now() - start, seconds(10));
}

TEST(QtEventLoopTest, TimersOfOneIntervalWakeTogether) {
  QtEventLoop loop;
  std::vector<TimePoint> first, second;
  loop.Every(milliseconds(20), "first", [&] { first.push_back(loop.Now()); });
  loop.RunUntil(kNo, loop.Now() + milliseconds(9));
  loop.Every(milliseconds(20), "second", [&] { second.push_back(loop.Now()); });
  loop.RunUntil([&] { return second.size() == 2; }, loop.Now() + seconds(5));
  ASSERT_EQ(first.size(), 2u);
  for (std::size_t i = 0; i < 2; ++i) EXPECT_LT(second[i] - first[i], milliseconds(5));
}

TEST(QtEventLoopTest, TicksArriveInNestedWaitsAndDoNotPileUp) {
  QtEventLoop loop;
  int ticks = 0;
  int nested = 0;
  const TimerId timer = loop.Every(milliseconds(5), "tick", [&] {
    if (++ticks == 1) {
      loop.RunUntil([&] { return ticks == 3; }, loop.Now() + seconds(5));
      nested = ticks;
    }
  });
  loop.RunUntil([&] { return nested > 0; }, loop.Now() + seconds(5));
  EXPECT_EQ(nested, 3);
  const int before = ticks;
  const TimePoint end = loop.Now() + milliseconds(50);
  while (loop.Now() < end) continue;  // holds the loop up
  loop.PumpEvents();
  loop.PumpEvents();
  EXPECT_LE(ticks - before, 2) << "ten intervals have gone by";
  loop.Cancel(timer);
}

TEST(QtEventLoopTest, ExceptionsReachTheWaitOrTheHandlerAndNeverQt) {
  QtEventLoop loop;
  const auto fail = [] { throw std::runtime_error("bound"); };
  loop.After(Duration::zero(), "outer", [&] {
    loop.After(Duration::zero(), "inner", fail);
    EXPECT_THROW(loop.RunUntil(kNo, loop.Now() + seconds(5)), std::runtime_error);
    loop.After(Duration::zero(), "passes through", fail);
    loop.RunUntil(kNo, loop.Now() + seconds(5));
    ADD_FAILURE() << "went on behind an exception";
  });
  EXPECT_THROW(loop.RunUntil(kNo, loop.Now() + seconds(5)), std::runtime_error);

  int handled = 0;
  loop.SetFaultHandler([&](const std::exception_ptr&) {
    ++handled;
    QCoreApplication::quit();
  });
  loop.After(Duration::zero(), "without a wait", fail);
  QTimer::singleShot(seconds(5), [] { QCoreApplication::quit(); });
  QCoreApplication::exec();
  EXPECT_EQ(handled, 1);
}

}  // namespace
}  // namespace ostrel
