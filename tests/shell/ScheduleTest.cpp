#include <gtest/gtest.h>

#include "blocks/timers/EnabledTimers.h"
#include "shell/schedule/ScheduleWords.h"

namespace ostrel {
namespace {

constexpr DateTime kSunday{2026, 3, 1, 23, 0, 0};  // the last of February is the day before

std::string English(const Phrase& phrase) { return Filled(phrase); }

/// The firings of the one timer of a configuration, a line for each day.
std::string FiringsOf(const DeviceConf& conf, const DateTime& from = kSunday) {
  const Schedule schedule = MakeSchedule(conf, {{}, kEveryFeature}, from);
  EXPECT_EQ(schedule.timers.size(), 1U);
  std::string text;
  for (const std::string& line : MomentLines(schedule.timers.at(0).firings, English))
    text += line + "\n";
  return text;
}

std::string CyclicFirings(float period, const ValidityRange& valid) {
  DeviceConf conf;
  conf.CTimer[3] = {kTrue, period, valid, 0, {}};
  return FiringsOf(conf);
}

std::string MonthlyFirings(double days, const DateTime& from) {
  DeviceConf conf;
  conf.MTimer[0] = {kTrue, {6 * 3600}, days, {}};
  return FiringsOf(conf, from);
}

TEST(Schedule, CyclicTimersKeepCountingOutsideTheirRange) {
  EXPECT_EQ(CyclicFirings(86'400, kAlways),
            "Mo 2026-03-02: 23:00:00\nTu 2026-03-03: 23:00:00\nWe 2026-03-04: 23:00:00\n"
            "Th 2026-03-05: 23:00:00\nFr 2026-03-06: 23:00:00\nSa 2026-03-07: 23:00:00\n"
            "Su 2026-03-08: 23:00:00\n");
  EXPECT_EQ(CyclicFirings(2500, {kFalse, {8 * 3600}, {9 * 3600}, 0b100'0001}),
            "Mo 2026-03-02: 8:01:40, 8:43:20\nSu 2026-03-08: 8:28:20\n");
  EXPECT_EQ(CyclicFirings(1800, {kFalse, {22 * 3600}, {3600}, 0b000'0011}),
            "Mo 2026-03-02: 0:00:00, 0:30:00, 1:00:00, 22:00:00, 22:30:00, 23:00:00, 23:30:00\n"
            "Tu 2026-03-03: 0:00:00, 0:30:00, 1:00:00\n")
      << "a range over midnight";
  EXPECT_EQ(CyclicFirings(.25F, {kFalse, {60}, {61}, 1}), "Mo 2026-03-02: 0:01:00, 0:01:01\n");
  EXPECT_EQ(CyclicFirings(60, {kFalse, {0}, {86'399}, 0}), "") << "on no day";
  EXPECT_EQ(CyclicFirings(0, kAlways), "");
  EXPECT_EQ(CyclicFirings(1e30F, kAlways), "");
}

TEST(Schedule, LongAndWeeklyTimersFireOnTheirDays) {
  DeviceConf conf;
  conf.LTimer[0] = {kTrue, 3, {}};
  EXPECT_EQ(FiringsOf(conf), "We 2026-03-04: 23:00:00\nSa 2026-03-07: 23:00:00\n");
  conf = {};
  conf.WTimer[15] = {kTrue, {23 * 3600}, 0b110'0000, {}};
  EXPECT_EQ(FiringsOf(conf), "Sa 2026-03-07: 23:00:00\nSu 2026-03-08: 23:00:00\n")
      << "the moment itself has gone by";
}

TEST(Schedule, MonthlyTimersKnowTheLastOfEachMonth) {
  constexpr double kLast = 2'147'483'648.0;
  EXPECT_EQ(MonthlyFirings(kLast + 1, {2026, 2, 25, 0, 0, 0}),
            "Sa 2026-02-28: 6:00:00\nSu 2026-03-01: 6:00:00\n");
  EXPECT_EQ(MonthlyFirings(kLast, {2028, 2, 25, 0, 0, 0}), "Tu 2028-02-29: 6:00:00\n");
  EXPECT_EQ(MonthlyFirings(kLast / 2, {2026, 4, 25, 0, 0, 0}), "") << "April has no 31st";
  DeviceConf conf;
  conf.MTimer[0].HABIL = kTrue;
  EXPECT_TRUE(MakeSchedule(conf, {{}, 0}, kSunday).timers.empty()) << "older firmware has none";
}

TEST(Schedule, MacrosStartWithEachOfTheirTimersInOrder) {
  DeviceConf conf;
  conf.CTimer[1] = {kTrue, 7200, kAlways, 0, {}};
  conf.WTimer[2] = {kTrue, {1800}, kAllDays, {}};
  conf.CTimer[1].ACT[0] = conf.WTimer[2].ACT[4] = 39;
  conf.WTimer[2].ACT[0] = 40;
  const Schedule schedule = MakeSchedule(conf, {{}, 0}, kSunday);
  ASSERT_EQ(schedule.macros.size(), 1U);
  EXPECT_EQ(schedule.macros[0].number, 38);
  EXPECT_EQ(schedule.macros[0].starts.size(), kFiringsTold);
  EXPECT_EQ(StartLines(schedule.macros[0], English)[0].substr(0, 89),
            "Mo 2026-03-02: 0:30:00 (weekly timer 2), 1:00:00 (cyclic timer 1), 3:00:00 (cyclic "
            "timer ");
}

TEST(Schedule, RulesReadAsSentences) {
  for (const auto& [record, text] : std::vector<std::pair<TimerRecord, std::string>>{
           {ConfCTimer{kTrue, .5F, kAlways, 0, {}}, "every .5 s"},
           {ConfCTimer{kTrue, 60, {kFalse, {3600}, {7200}, 3}, 0, {}},
            "every 60 s, from 1:00:00 to 2:00:00, on Mo Tu"},
           {ConfLTimer{kTrue, 1, {}}, "every day"},
           {ConfLTimer{kTrue, 30, {}}, "every 30 days"},
           {ConfWTimer{kTrue, {60}, 127, {}}, "every day at 0:01:00"},
           {ConfWTimer{kTrue, {60}, 0, {}}, "on no day at 0:01:00"},
           {ConfMTimer{kTrue, {60}, 2'147'483'650.0, {}}, "on 2, last at 0:01:00"}})
    EXPECT_EQ(
        RuleText({.section = &CyclicTimers::kSection, .number = 0, .record = record}, English),
        text);
}

}  // namespace
}  // namespace ostrel
