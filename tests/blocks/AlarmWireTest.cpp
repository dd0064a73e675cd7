#include "BlockFixture.h"

namespace ostrel {
namespace {

/// The common ground of alarms, on the lines and statements of analog inputs.
class AlarmWire : public BlockFixture {
 protected:
  AlarmBlock& Cell(int channel, int config) { return conf.Analog[channel].ALARM[config].common; }
};

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
  for (const char* line : {"CAUDAL,10,x", "MODBUS,33,x", "MODBUS.ALM,5,2,x", "MATH.ALM,3,2,x",
                           "EXPINPUT.D,129,0", "EXPINPUT.A.ALM,1,2,x", "CTIMER,17,1,1",
                           "LTIMER.ACTION,17,1", "WTIMER,17,1,1", "MTIMER,17,1,1"})
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
