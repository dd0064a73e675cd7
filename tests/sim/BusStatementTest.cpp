#include "sim/StatementBench.h"

namespace ostrel::sim {
namespace {

TEST(SimStatement, OfTheBus) {
  const char* const digital = "MBCONF0=D,UNIT=,SLAVE= 1,REGADD= 8,CONST= 2,MASK= 4,RATIO=3";
  ExpectTaken({
      {Model::VR200, "BAUD= 9600", "MODBUS.PRM,9600", kAllFeatures & ~kModbusSlave},
      {Model::VR200, "MBSLAVEADD= 0", "MODBUS.PRM,1200,0,0"},
      {Model::VR200,
       "MBCONF31=Par,UNIT=Nm,SLAVE= 247,REGADD= 400123,FLOAT,CONST=-.5,MASK=-2147483648,NEGATE,"
       "RATIO=0.1",
       "MODBUS,31,Par,Nm,247,400123,0.1,-0.5,-2147483648,1,2"},
      {Model::VR200, digital, "MODBUS,0,D,,1,8,3,2,4,0", kAllFeatures & ~kModbusFormats},
      {Model::VR200, "MBCONF0=D,UNIT=,SLAVE= 1,REGADD= 8,FLOAT,RATIO=3",
       "MODBUS,0,D,,1,8,3,0,0,0,2", kAllFeatures & ~kModbusConstants},
      {Model::VR200, "MBCONF0=D,UNIT=,SLAVE= 1,REGADD= 8,RATIO=3", "MODBUS,0,D,,1,8,3", 0},
      {Model::VR200, "+ALMMB9=x,INDEX= 0,MAX= 9,MIN= 3,HIST= 1,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
       "MODBUS.ALM,9,0,x,3,9,1,0,86400,127,1,0", kAllFeatures & ~kModbusConstants},
  });
  ExpectRefused(Model::VR200,
                "BAUD=9600;MBSLAVE= 1;MBSLAVE=2;MBSLAVEADD= 248;DISMB32;-ALMMB0,INDEX= 1");
  ExpectRefused(Model::VR200,
                "32=x,UNIT=,SLAVE= 1,REGADD= 8;0=x,UNIT=,SLAVE= 248,REGADD= 8;"
                "0=x,UNIT=,SLAVE= 1,REGADD=-8;0=x,UNIT=,SLAVE= 1,REGADD= 8,16BIT;"
                "0=x,UNIT=,SLAVE= 1,REGADD= 8,32BIT,FLOAT",
                "MBCONF", ",CONST= 0,MASK= 0,RATIO=1");
  ExpectRefused(Model::VR200, "CONST= 0,MASK= 2147483648,RATIO=1;RATIO=1;CONST= 0,MASK= 0,RATIO= 1",
                "MBCONF0=x,UNIT=,SLAVE= 1,REGADD= 8,");
  ExpectRefused(Model::S100, "MBCONF0=x;DISMB0");
  ExpectRefused(Model::KA1, "BAUD= 9600");
}

TEST(SimStatement, OfExpansionInputs) {
  ExpectTaken({
      {Model::S100, "EXPINPUTDCONF95=Puerta,ADRS= 15,chanel= 7,group= 15,NC",
       "EXPINPUT.D,95,15,7,15,1,Puerta"},
      {Model::S100, "EXPINPUTCCONF0=Cuenta,ADRS= 1,chanel= 2,group= 3,UNIT=m3,RATIO=0.1",
       "EXPINPUT.C,0,1,2,3,Cuenta,m3,0.1"},
      {Model::S100, "+ALMEXPINPUTD0=x,INDEX= 0,PC= 5,PO= .5,EQ= 2,ACTCLOSE= 1,ACTOPEN= 2 3",
       "EXPINPUT.D.ACT,0,0,1,2,0,3,0,0,0,0,0,0,0,0,0,0,0,0", kAllFeatures,
       "EXPINPUTDCONF0=,ADRS= 0,chanel= 0,group= 0"},
      {Model::S100,
       "+ALMEXPINPUTA0=x,INDEX= 0,MAX= 9,MIN= 3,HIST= 1,P= 4,EQ= 0,ACTHI= 1,ACTLO= 2,ACTNOM= 3",
       "EXPINPUT.A.ACT,0,0,1,3,2,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0", 0,
       "EXPINPUTACONF0=,UNIT=,ADRS= 0,chanel= 0,group= 0,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,"
       "GROUP= 0"},
  });
  ExpectRefused(Model::S100,
                "96=x,ADRS= 0,chanel= 0,group= 0;0=x,ADRS= 16,chanel= 0,group= 0;"
                "0=x,ADRS= 0,chanel= 8,group= 0;0=x,ADRS= 0,chanel= 0,group= 16;"
                "0=x,ADRS= 0,chanel= 0,group= 0,NO;0=x,chanel= 0,ADRS= 0,group= 0;0=x",
                "EXPINPUTDCONF");
  ExpectRefused(Model::S100,
                "CCONF0=x,UNIT=m,ADRS= 0,chanel= 0,group= 0,RATIO=1;"
                "QCONF0=x,UNIT=l,ADRS= 0,chanel= 0,group= 0,TB=0,RATIO=1",
                "EXPINPUT");
  ExpectRefused(Model::S100,
                "5V,BSVAL= 1,FSVAL= 10,BSUNIT= 0,FSUNIT= 50,GROUP= 0;"
                "10V,BSVAL= 1,FSVAL= 10,BSUNIT= 0,FSUNIT= 50,GROUP= 2",
                "EXPINPUTACONF0=A,UNIT=m,ADRS= 0,chanel= 0,group= 0,");
  ExpectRefused(Model::S100,
                "DISEXPINPUT96;-ALMEXPINPUTD0,INDEX= 0;-ALMEXPINPUTC0,INDEX= 0;"
                "+ALMEXPINPUTD0=x,INDEX= 0,PC= 5,PO= 5,EQ= 2,ACTCLOSE=,ACTOPEN=");
  ExpectRefused(Model::VR200, "DISEXPINPUT0;-ALMEXPINPUTD0,INDEX= 0");
}

TEST(SimStatement, AnExpansionInputForgetsWhatItsFormerModeHeld) {
  const Identity self{Model::S100, kAllFeatures};
  Configuration conf;
  const auto say = [&](const char* statement) {
    EXPECT_EQ(ApplyStatement(statement, self, conf), "") << statement;
  };
  const char* const digital = "EXPINPUTDCONF4=x,ADRS= 1,chanel= 2,group= 3,NC";
  const char* const alarm = "+ALMEXPINPUTD4=a,INDEX= 0,PC= 5,PO= 5,EQ= 2,ACTCLOSE=,ACTOPEN=";
  say(digital);
  say(alarm);
  say(digital);
  EXPECT_EQ(conf.expansion[4].alarms[0].text, "a") << "the mode is the same";
  say("EXPINPUTCCONF4=y,ADRS= 1,chanel= 2,group= 3,UNIT=m,RATIO=2");
  const ExpansionInput counter{.mode = ExpansionMode::Counter,
                               .module = 1,
                               .input = 2,
                               .group = 3,
                               .name = "y",
                               .unit = "m",
                               .ratio = 2,
                               .scale = {},
                               .alarms = {}};
  EXPECT_EQ(conf.expansion[4], counter);
  EXPECT_NE(ApplyStatement(alarm, self, conf), "");
  say("DISEXPINPUT4");
  EXPECT_EQ(conf, Configuration());
  EXPECT_THAT(ConfigurationRecords(conf, self),
              testing::Not(testing::Contains(testing::StartsWith("EXPINPUT"))));
}

}  // namespace
}  // namespace ostrel::sim
