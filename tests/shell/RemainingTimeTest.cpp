#include <gtest/gtest.h>

#include "shell/session/RemainingTime.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

TEST(RemainingTime, FollowsTheSpeedAndStartsAnewWithEachAttempt) {
  RemainingTime time;
  time.Start(seconds(10), 100);
  time.Step(seconds(10), 5);
  EXPECT_FALSE(time.Left(seconds(10)));
  time.Step(seconds(20), 25);
  EXPECT_EQ(time.Left(seconds(20)), seconds(30));
  EXPECT_EQ(time.Left(seconds(24)), seconds(26));
  EXPECT_EQ(time.Left(seconds(99)), seconds(0));
  time.Step(seconds(100), 1);
  EXPECT_FALSE(time.Left(seconds(100)));
  time.Step(seconds(110), 130);
  EXPECT_FALSE(time.Left(seconds(110))) << "more than expected: the end is not known";
}

TEST(RemainingTime, IsToldInMinutesAndInHours) {
  EXPECT_EQ(DurationText(std::chrono::milliseconds(64'001)), "1:05");
  EXPECT_EQ(DurationText(std::chrono::hours(2)), "2:00:00");
}

}  // namespace
}  // namespace ostrel
