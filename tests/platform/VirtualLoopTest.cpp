#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/virtual/VirtualLoop.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::ElementsAre;
using testing::HasSubstr;

class VirtualLoopTest : public testing::Test {
 protected:
  EventLoop::Callback Note(const std::string& text) {
    return [this, text] { notes.push_back(text + "@" + std::to_string(Ms())); };
  }
  long Ms() const { return static_cast<long>(loop.Now() / milliseconds(1)); }
  bool WaitFor(Duration span) {
    return loop.RunUntil([] { return false; }, loop.Now() + span);
  }

  VirtualLoop loop;
  std::vector<std::string> notes;
};

TEST_F(VirtualLoopTest, ServesByTimeAndThenByOrderOfSetting) {
  loop.After(milliseconds(20), "c", Note("c"));
  loop.After(milliseconds(10), "a", Note("a"));
  loop.After(milliseconds(10), "b", Note("b"));
  loop.After(milliseconds(30), "at the deadline", Note("d"));
  loop.After(milliseconds(31), "behind it", Note("e"));
  EXPECT_FALSE(WaitFor(milliseconds(30)));
  EXPECT_THAT(notes, ElementsAre("a@10", "b@10", "c@20", "d@30"));
  EXPECT_EQ(Ms(), 30);
}

TEST_F(VirtualLoopTest, WaitEndsWithItsConditionAndSeesItAtTheDeadline) {
  bool flag = false;
  loop.After(milliseconds(7), "flag", [&] { flag = true; });
  EXPECT_TRUE(loop.RunUntil([&] { return flag; }, seconds(40)));
  EXPECT_EQ(Ms(), 7);
  EXPECT_TRUE(loop.RunUntil([] { return true; }, kNever))
      << "a condition that holds needs no event";
  EXPECT_TRUE(loop.RunUntil([&] { return Ms() >= 50; }, milliseconds(50)));
}

TEST_F(VirtualLoopTest, TicksArriveInWaitsOfEarlierTicks) {
  int depth = 0;
  bool waited = false;
  loop.Every(milliseconds(100), "tick", [&] {
    Note("tick" + std::to_string(depth))();
    ++depth;
    if (!std::exchange(waited, true)) WaitFor(milliseconds(250));
    --depth;
  });
  WaitFor(milliseconds(400));
  EXPECT_THAT(notes, ElementsAre("tick0@100", "tick1@200", "tick1@300", "tick0@400"));
}

TEST_F(VirtualLoopTest, TimersOfOneIntervalWakeTogether) {
  loop.Every(milliseconds(100), "first", Note("first"));
  loop.HoldUp(milliseconds(30));
  loop.Every(milliseconds(100), "second", Note("second"));
  loop.Every(milliseconds(70), "other", Note("other"));
  WaitFor(milliseconds(170));
  EXPECT_THAT(notes, ElementsAre("first@100", "second@100", "other@100", "other@170", "first@200",
                                 "second@200"));
  EXPECT_EQ(loop.Wakings(), 3u);
  loop.HoldUp(milliseconds(130));
  loop.Every(milliseconds(100), "late", Note("late"));
  notes.clear();
  WaitFor(milliseconds(75));
  EXPECT_THAT(notes, testing::Contains("late@400")) << "beside those that are late themselves";
}

TEST_F(VirtualLoopTest, MissedTicksDoNotPileUp) {
  loop.Every(milliseconds(100), "tick", Note("tick"));
  loop.HoldUp(milliseconds(350));
  WaitFor(milliseconds(100));
  EXPECT_THAT(notes, ElementsAre("tick@350", "tick@400"));
}

TEST_F(VirtualLoopTest, CallbacksMayCancelAndAddTimers) {
  TimerId victim = 0;
  TimerId self = 0;
  self = loop.Every(milliseconds(10), "self", [&] {
    Note("self")();
    loop.Cancel(self);
    loop.Cancel(victim);
    loop.After(Duration::zero(), "follower", Note("follower"));
    // Grows the table of timers below the running callback.
    for (int i = 0; i < 100; ++i) loop.After(seconds(9), "filler", Note("filler"));
  });
  victim = loop.After(milliseconds(10), "victim", Note("victim"));
  WaitFor(seconds(1));
  EXPECT_THAT(notes, ElementsAre("self@10", "follower@10"));
  loop.Cancel(victim);
  loop.Cancel(0);
  loop.Cancel(~TimerId{0});
  WaitFor(seconds(10));
  EXPECT_EQ(notes.size(), 102u) << "cancelling expired numbers must not hit their successors";
}

TEST_F(VirtualLoopTest, PumpServesWhatIsDueNowAndNotItsOffspring) {
  loop.After(milliseconds(1), "later", Note("later"));
  loop.After(Duration::zero(), "due", [&] {
    Note("due")();
    loop.After(Duration::zero(), "offspring", Note("offspring"));
  });
  loop.PumpEvents();
  EXPECT_THAT(notes, ElementsAre("due@0"));
  loop.PumpEvents();
  EXPECT_THAT(notes, ElementsAre("due@0", "offspring@0"));
}

TEST_F(VirtualLoopTest, StuckWaitsListTheTimers) {
  const auto never = [] { return false; };
  EXPECT_THROW(loop.RunUntil(never, kNever), LoopStuck);
  loop.SetStepLimit(1000);
  loop.Every(milliseconds(250), "heartbeat", [] {});
  loop.After(seconds(3600), "hour", [] {});
  try {
    loop.RunUntil(never, kNever);
    FAIL() << "the wait ended";
  } catch (const LoopStuck& stuck) {
    EXPECT_THAT(stuck.what(), HasSubstr("1000 steps"));
    EXPECT_THAT(stuck.what(), HasSubstr("at 250250.000 ms: heartbeat, every 250.000 ms"));
    EXPECT_THAT(stuck.what(), HasSubstr("at 3600000.000 ms: hour"));
  }
  EXPECT_THROW(while (true) loop.PumpEvents(), LoopStuck);
}

TEST_F(VirtualLoopTest, ExceptionsLeaveTheLoopUsable) {
  loop.After(milliseconds(1), "thrower", [] { throw std::runtime_error("bound"); });
  loop.After(milliseconds(2), "next", Note("next"));
  EXPECT_THROW(WaitFor(seconds(1)), std::runtime_error);
  WaitFor(seconds(1));
  EXPECT_THAT(notes, ElementsAre("next@2"));
}

}  // namespace
}  // namespace ostrel
