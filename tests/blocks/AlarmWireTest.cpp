#include "BlockFixture.h"

namespace ostrel {
namespace {

/// The common ground of alarms, on the lines and statements of analog inputs.
class AlarmWire : public BlockFixture {
 protected:
  AlarmBlock& Cell(int channel, int config) { return conf.Analog[channel].ALARM[config].common; }
};

TEST_F(AlarmWire, TheCommonGroup) {
  struct Case {
    const char* group;
    bool habil, siempre;
    int start, stop, week;
  };
  for (const Case& c :
       {Case{"0,86400,127,0", true, true, 0, 86399, 127},
        Case{"0,86399,255,0", true, true, 0, 86399, 255},
        Case{"0,86398,127,0", true, false, 0, 86398, 127},
        Case{"3600,7200,3,0", true, false, 3600, 7200, 3},
        Case{"0,86400,0,0", false, false, 0, 86399, 0}, Case{"90000,-5,1,0", true, false, 0, 0, 1},
        Case{"1,2,300,0", true, true, 1, 2, 127}, Case{",,,", false, false, 0, 0, 0}}) {
    Use("Tavro BP");
    Receive(std::string("ANALOG.ALM,1,3,Texto,1,2,3,") + c.group + ",4,5");
    const AlarmBlock& alarm = Cell(1, 3);
    EXPECT_EQ(bool(alarm.HABIL), c.habil) << c.group;
    EXPECT_EQ(alarm.valid,
              (ValidityRange{Bool16(c.siempre), {c.start}, {c.stop}, std::uint8_t(c.week)}))
        << c.group;
    EXPECT_EQ(alarm.TEXTO, "Texto");
    EXPECT_EQ(alarm.FLAG, 4);
    EXPECT_EQ(conf.Analog[1].ALARM[3].thresholds, (LevelThresholds{1, 2, 3, 5}));
    EXPECT_EQ(Cell(1, 2), (Cell(0, 0))) << "the others stay";
  }
}

TEST_F(AlarmWire, NotificationBitsOnlySet) {
  Cell(1, 0).GPRS = kTrue;
  FindBlock(PageId::E_Analog)->clear(conf, profile, translate);
  Receive("ANALOG.ALM,1,0,,0,0,0,0,0,1,6,16");
  const AlarmBlock& alarm = Cell(1, 0);
  EXPECT_TRUE(!alarm.SMS && alarm.VOZ && alarm.REST && !alarm.RENV);
  EXPECT_TRUE(alarm.GPRS) << "neither clearing nor reading resets it";
  Receive("ANALOG.ALM,1,0,,0,0,0,0,0,1,25,0");
  EXPECT_TRUE(alarm.SMS && alarm.RENV);
}

TEST_F(AlarmWire, IndicesBeyondTheRecordAreBoundFailures) {
  Receive("ANALOG.ALM,4,4,spare,0,0,0,0,0,1,0,0");
  EXPECT_EQ(conf.Analog[4].ALARM[4].common.TEXTO, "spare");
  const DeviceConf before = conf;
  for (const char* line : {"ANALOG.ALM,5,0,x", "ANALOG.ALM,-1,0,x", "ANALOG.ALM,0,5,x",
                           "ANALOG.ALM,0,-1,x", "ANALOG.ACT,99999999999,0,1", "ANALOG.ACT,0,7,1",
                           "ANALOG,5,x", "DIGITAL,10,x,0", "GROUP,5,1,24,150", "FLAG.ALM,17,0,x",
                           "FLAG.ALM,0,2,x", "FLAG.ACT,-1,0,1", "TLF,21,600", "TLF,-1,600"})
    EXPECT_THROW(Receive(line), BoundFailure) << line;
  EXPECT_EQ(conf, before);
}

TEST_F(AlarmWire, ActionsComePlaceByPlace) {
  Cell(0, 1).ACTHI[8] = 9;
  Cell(0, 1).ACTLO[7] = 5;
  Receive("ANALOG.ACT,0,1,1,2,3,4,5,6,70000,8,9");
  Receive("DIGITAL.ACT,8,2,1,2,0,0,5,6");
  // What is outside the width is left, and a missing field is 0.
  EXPECT_EQ(Changes(),
            "[ANALOG 0] ACTHI( 1 0)= 1; ACTLO( 1 0)= 3; ACTNO( 1 0)= 2; ACTHI( 1 1)= 4; "
            "ACTLO( 1 1)= 6; ACTNO( 1 1)= 5; ACTLO( 1 2)= 9; ACTNO( 1 2)= 8; "
            "[DIGITAL 8] ACTHI( 2 0)= 1; ACTLO( 2 0)= 2; ACTHI( 2 2)= 5; ACTLO( 2 2)= 6; ");
  EXPECT_EQ(Cell(0, 1).ACTHI[8], 9);
}

TEST_F(AlarmWire, Statements) {
  AlarmBlock& alarm = Cell(2, 1);
  alarm.HABIL = alarm.REST = alarm.RENV = alarm.VOZ = alarm.GPRS = kTrue;
  alarm.TEXTO = "Nivel alto";
  alarm.valid = {kFalse, {9 * 3600 + 5}, {86399}, 0x85};
  alarm.FLAG = 3;
  alarm.ACTHI[1] = 5;
  alarm.ACTHI[3] = 12;
  alarm.ACTHI[4] = -1;
  conf.Analog[2].ALARM[1].thresholds = {-1.5F, 20, 0.25F, 3};
  Cell(2, 2).HABIL = kTrue;
  Cell(2, 3).HABIL = Cell(2, 3).SMS = kTrue;
  const std::vector<std::string> all = Statements(PageId::E_Analog);
  EXPECT_EQ(std::vector<std::string>(all.begin() + 10, all.begin() + 15),
            (std::vector<std::string>{
                "DISAI2", "-ALMA2,INDEX= 0",
                "+ALMA2=Nivel alto,INDEX= 1,MAX= 20,MIN=-1.5,HIST= .25,SREST,RESEND,RING,GPRS,"
                "START=9:00:05,STOP=23:59:59,WEEK=1010000,EQ= 3,ACTHI= 5 12,ACTLO=,ACTNOM=",
                "+ALMA2=,INDEX= 2,MAX= 0,MIN= 0,HIST= 0,NOSEND,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
                "+ALMA2=,INDEX= 3,MAX= 0,MIN= 0,HIST= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM="}));
  info.Features = 0x8;
  EXPECT_TRUE(Statements(PageId::E_Analog)[12].find("HIST= .25,P= 3,SREST") != std::string::npos);
}

TEST_F(AlarmWire, AFileWithoutKeysReadsAsEmptyTexts) {
  Cell(0, 0).ACTHI[0] = 5;
  Cell(0, 0).GPRS = kTrue;
  Restore(PageId::E_Analog, "[ANALOG 0]\r\nTEXTO( 0)=hola");
  AlarmBlock expected;
  expected.TEXTO = "hola";
  EXPECT_EQ(Cell(0, 0), expected) << "the times keep what emptying gave them";
}

}  // namespace
}  // namespace ostrel
