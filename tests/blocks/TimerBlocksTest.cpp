#include "BlockFixture.h"

namespace ostrel {
namespace {

constexpr std::int32_t kMonthly = 0x800;

class TimerBlocks : public BlockFixture {
 protected:
  std::string Sent(PageId page, std::size_t timer) { return Statements(page).at(timer); }
  void Act(std::string_view kind, int timer) {
    Receive(std::string(kind) + ".ACTION," + std::to_string(timer) + ",5,0,42,0,0,0,0,7");
  }
};

/// A line of a timer, and what it goes back as.
struct Kept {
  std::string line, statement;
};

TEST_F(TimerBlocks, LinesGoBackAsStatements) {
  info.Features = kMonthly;
  for (const auto& [page, kind, cases] :
       std::vector<std::tuple<PageId, std::string, std::vector<Kept>>>{
           {PageId::CTimer,
            "CTIMER",
            {{"127,0,86400,60,3", "CT3= 60,EQ= 3,ACT= 5 42 7"},
             {"127,0,86399,.5,0", "CT3= .5,EQ= 0,ACT= 5 42 7"},
             {"95,0,86400,60,0",
              "CT3= 60,START=0:00:00,STOP=23:59:59,WEEK=1111101,EQ= 0,ACT= 5 42 7"},
             {"127,29100,72000,60,16",
              "CT3= 60,START=8:05:00,STOP=20:00:00,WEEK=1111111,EQ= 16,ACT= 5 42 7"},
             {"0,0,86400,60,0", "-CT3"},
             {"127,0,86400,0,0", "-CT3"}}},
           {PageId::LTimer,
            "LTIMER",
            {{"90000", "LT3= 86400,ACT= 5 42 7"},
             {"2147472000", "LT3= 2147472000,ACT= 5 42 7"},
             {"1", "LT3= 0,ACT= 5 42 7"},
             {"0", "-LT3"}}},
           {PageId::WTimer,
            "WTIMER",
            {{"31,29100", "WT3=8:05:00,WEEK=1111100,ACT= 5 42 7"},
             {"64,86400", "WT3=23:59:59,WEEK=0000001,ACT= 5 42 7"},
             {"0,3600", "-WT3"}}},
           {PageId::MTimer,
            "MTIMER",
            {{"16385,21600", "MT3=6:00:00,MASK= 16385,ACT= 5 42 7"},
             {"2147483648,0", "MT3=0:00:00,MASK= 2147483648,ACT= 5 42 7"},
             {"4294967295,0", "MT3=0:00:00,MASK= 4294967295,ACT= 5 42 7"},
             {"0,0", "-MT3"}}}}) {
    Act(kind, 3);
    for (const auto& [line, statement] : cases) {
      Receive(kind + ",3," + line);
      EXPECT_EQ(Sent(page, 3), statement) << kind << " " << line;
    }
    EXPECT_EQ(Statements(page).size(), 16U);
    EXPECT_EQ(Sent(page, 15), std::string("-") + kind[0] + "T15");
    EXPECT_THROW(Receive(kind + ",17,1,1"), BoundFailure);
    EXPECT_THROW(Receive(kind + ".ACTION,17,1"), BoundFailure);
  }
  info.Features = 0;
  EXPECT_TRUE(Statements(PageId::MTimer).empty()) << "a firmware without monthly timers";
}

TEST_F(TimerBlocks, WhatALineOfADisabledTimerSaysIsKept) {
  for (const char* line : {"CTIMER,3,0,60,86400,60,2", "WTIMER,1,0,3600"}) Receive(line);
  EXPECT_EQ(Changes(),
            "[CTIMER 3] PERIOD= 60; SIEMPRE=False; INICIO=0:01:00; FINAL=23:59:59; SEMANA= 0; "
            "EQ= 2; [WTIMER 1] INICIO=1:00:00; SEMANA= 0; ");
  Receive("CTIMER,3,127,0,86399,0,0");
  EXPECT_EQ(conf.CTimer[3].valid.SIEMPRE, kTrue);
}

TEST_F(TimerBlocks, AWeekThatFitsNoMaskEnablesNothing) {
  Receive("CTIMER,3,256,0,86400,60,2");
  Receive("WTIMER,1,1e9,3600");
  EXPECT_FALSE(conf.CTimer[3].HABIL);
  EXPECT_FALSE(conf.WTimer[1].HABIL);
  Receive("WTIMER,1,255,3600");
  EXPECT_TRUE(conf.WTimer[1].HABIL);
}

TEST_F(TimerBlocks, SectionsOfAFile) {
  conf.CTimer[0] = {kTrue, 60.5F, {kFalse, {29'100}, {72'000}, 31}, 3, {}};
  conf.CTimer[0].ACT[7] = 12;
  conf.MTimer[15] = {kTrue, {60}, 2'147'483'649.0, {}};
  const std::string actions =
      "ACT( 0)= 0\r\nACT( 1)= 0\r\nACT( 2)= 0\r\nACT( 3)= 0\r\n"
      "ACT( 4)= 0\r\nACT( 5)= 0\r\nACT( 6)= 0\r\nACT( 7)= ";
  const auto starts = [&](PageId page, const std::string& text) {
    EXPECT_EQ(FileText(page).substr(0, text.size()), text);
  };
  starts(PageId::CTimer,
         "[CTIMER 0]\r\nHABIL=True\r\nPERIOD= 60.5\r\nSIEMPRE=False\r\n"
         "INICIO=8:05:00\r\nFINAL=20:00:00\r\nSEMANA= 31\r\nEQ= 3\r\n" +
             actions + "12\r\n");
  starts(PageId::LTimer, "[LTIMER 0]\r\nHABIL=False\r\nPERIOD= 0\r\n" + actions + "0\r\n");
  starts(PageId::WTimer,
         "[WTIMER 0]\r\nHABIL=False\r\nINICIO=0:00:00\r\nSEMANA= 127\r\n" + actions + "0\r\n");
  EXPECT_TRUE(FileText(PageId::MTimer)
                  .ends_with("[MTIMER 15]\r\nHABIL=True\r\nINICIO=0:01:00\r\nMES= 2147483649\r\n" +
                             actions + "0"));
  Restore(PageId::WTimer, "[WTIMER 2]\r\nHABIL=true\r\nINICIO=99:00\r\nACT( 3)= 4");
  EXPECT_EQ(conf.WTimer[2].HABIL, kFalse);
  EXPECT_EQ(conf.WTimer[2].INICIO, TimeOfDay{});
  EXPECT_EQ(conf.WTimer[2].SEMANA, 0) << "a missing key is an empty one";
  EXPECT_EQ(conf.WTimer[2].ACT[3], 4);
}

TEST_F(TimerBlocks, ALongPeriodEndsTheMakingOfAnUpload) {
  const auto fault = [&](std::int16_t days) {
    conf.LTimer[5] = {kTrue, days, {}};
    return ComposeUpload(conf, {profile, 0}).Fault();
  };
  EXPECT_TRUE(fault(24'855).Ok());
  for (const auto days : std::vector<std::int16_t>{24'856, 32'767, -24'856}) {
    EXPECT_EQ(fault(days).kind, LinkFault::Kind::PeriodTooLong) << days;
    EXPECT_EQ(fault(days).number, 5);
  }
  conf.LTimer[5].HABIL = kFalse;
  EXPECT_TRUE(ComposeUpload(conf, {profile, 0}).Fault().Ok());
}

}  // namespace
}  // namespace ostrel
