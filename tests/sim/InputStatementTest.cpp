#include "sim/StatementBench.h"

namespace ostrel::sim {
namespace {

TEST(SimStatement, OfGeneralSettingsAndTelephones) {
  ExpectTaken({
      {Model::BQ, "ID=Pozo n\xBA 3 = {alto}", "DNAME,Pozo n\xBA 3 = {alto}"},
      {Model::BQ,
       "+TLF=+34600,Prio=0,PRV0,MASK= 21 97 61 255 255 255 255 255 255 255 255 255 255 255 255 0,"
       "MASKMODE2",
       "TLF,0,+34600,0,0,257,2,21,97,61,255,255,255,255,255,255,255,255,255,255,255,255,0"},
      {Model::VR200, "+TLF=600123,Prio=1,PRV2", "TLF,0,600123,1,2,65535", 0},
      {Model::VR200, "+TLF=600123,Prio=1,PRV2,A3,D0,D7,A0,D0", "TLF,0,600123,1,2,2433", 0},
      {Model::VR200, "+TLF=600123,Prio=1,PRV2", "TLF,0,600123,1,2,-1", kNoMaskIsMinusOne},
  });
  ExpectRefused(Model::VR200,
                "ID;IDx=x;ID=a,b;ID=a\tb;ID=a\x7F;NONSENSE=1;RETRYMAX=5;RETRYMAX= 5.5;"
                "RETRYMAX=-1;RETRYTIME= 99999999999;"
                "+TLF=,Prio=0,PRV0,MASKMODE0;+TLF=600,PRV0,Prio=0,MASKMODE0");
  ExpectRefused(Model::VR200,
                "9,PRV0,MASKMODE0;1,PRV4,MASKMODE0;1,PRV0;1,PRV0,MASKMODE1;"
                "1,PRV0,MASK= 21 22,MASKMODE1;1,PRV0,D0",
                "+TLF=600,Prio=");
}

TEST(SimStatement, OfInputsAndTheirAlarms) {
  ExpectTaken({
      {Model::VR200,
       "+ALMD2=,INDEX= 0,PC=-1.25,PO= 1E-07,SREST,RESEND,RING,GPRS,START=8:05:09,STOP=23:59:59,"
       "WEEK=1010001,EQ= 16,ACTCLOSE= 5,ACTOPEN=",
       "DIGITAL.ALM,2,0,,-1.25,0.0000001,29109,86399,69,30,16"},
      {Model::VR200, "+ALMD0=a,INDEX= 1,PC= 0,PO= 0,NOSEND,EQ= 0,ACTCLOSE= 5 42 43 200,ACTOPEN= 7",
       "DIGITAL.ACT,0,1,5,7,42,0,43,0,200,0,0,0,0,0,0,0,0,0"},
      {Model::VR200,
       "+ALMA0=x,INDEX= 2,MAX= 16777216,MIN=-3,HIST= .1,P= 4,GPRS,EQ= 1,ACTHI= 1,ACTLO= 2,"
       "ACTNOM= 3",
       "ANALOG.ALM,0,2,x,-3,16777216,0.1,0,86400,127,16,1,4"},
      {Model::VR200, "+ALMF15=F,INDEX= 0,RING,ACTHI= 9,ACTLO=", "FLAG.ALM,15,0,F,0,86400,127,2"},
      {Model::KA1, "AUXCONF2=P,UNIT=V,BSVAL= 0,FSVAL= 10,BSUNIT=-1,FSUNIT= 100",
       "AUX,2,P,V,1,,0,-1,10,100"},
  });
  ExpectRefused(Model::VR200,
                "DINAME8=x;DINAME 0=x;DINAME0=x,NO;-ALMD8,INDEX= 0;-ALMD0,INDEX= 4;"
                "-ALMD0,INDEX=0;DISAI4;"
                "+ALMA0=x,INDEX= 0,MIN= 0,MAX= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=;"
                "AGRP4= 0,T= 0,V= 0;AGRP0= 0,V= 0,T= 0;+ALMF0=x,INDEX= 1,ACTHI=,ACTLO=;DISAUX0");
  ExpectRefused(Model::VR200, "x,5V,;x,UNIT=m,5V,10V,",
                "AICONF0=", "BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0");
  ExpectRefused(Model::KA1, "4=P,UNIT=V;0=P,UNIT=V,CURRENT", "AUXCONF",
                ",BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0");
  ExpectRefused(Model::KA1, "DISAUX4;-ALMAUX0,INDEX= 4;DISAI0;AGRP0= 0,T= 0,V= 0");
}

TEST(SimStatement, OfFlowMetersMathAndProbes) {
  ExpectTaken({
      {Model::KA1, "FLOWCONF7=,UNIT=,TB= 0,REGDAYMIN,RATIO=-1.5", "CAUDAL,7,,,0,-1.5"},
      {Model::KA1, "TOTALRATIO7= .001", "TOTALRATIO,7,0.001"},
      {Model::BP, "DISMC3", "MATH,3,,,,0", kAllFeatures, "MCCONF3=Balance,UNIT=m3,EQ=Q0"},
      {Model::KA1, "ONEWCONF0=,UNIT=,ONEWADD=0.0,1WHUM",
       "ONEWIRE,0,,,2,000,000,000,000,000,000,000,000"},
      {Model::KA1, "ONEWCONF0=,UNIT=,ONEWADD=1.2.3.4.5.6.7.255",
       "ONEWIRE,0,,,2,001,002,003,004,005,006,007,255", kAllFeatures,
       "ONEWCONF0=x,UNIT=y,ONEWADD=0.0,1WHUM"},
      {Model::KA2, "DISONEW3", "ONEWIRE,3,,,0,000,000,000,000,000,000,000,000", kAllFeatures,
       "ONEWCONF3=x,UNIT=y,ONEWADD=1.2.3.4.5.6.7.8,1WHUM"},
  });
  ExpectRefused(Model::VR200,
                "8=x,UNIT=,TB=0,RATIO=1;0=x,UNIT=,TB= 60,RATIO=1;"
                "0=x,UNIT=,TB=0,REGDAYMIN,RATIO=1;0=x,UNIT=,TB= 32768,REGDAYMIN,RATIO=1;"
                "0=x,UNIT=,TB=0,RATIO= 1;0=x,UNIT=,TB=0,RATIO=.5;0=x,UNIT=,TB=0",
                "FLOWCONF");
  ExpectRefused(Model::VR200,
                "TOTALRATIO8= 1;SAMPLERATE=1;MCCONF4=x,UNIT=,EQ=A0;MCCONF0=x,UNIT=,EQ=A0,A1;"
                "DISMC4;-ALMM0,INDEX= 1;DISONEW0");
  ExpectRefused(Model::KA1,
                "4=x,UNIT=,ONEWADD=0.0,1WTEMP;0=x,UNIT=,1WTEMP,ONEWADD=0.0;"
                "0=x,UNIT=,ONEWADD=1.1,1WTEMP;0=x,UNIT=,ONEWADD=1.2.3.4.5.6.7.8.9,1WTEMP;"
                "0=x,UNIT=,ONEWADD=1.2.3.4.5.6.7.256,1WTEMP;"
                "0=x,UNIT=,ONEWADD=1.2.3.4.5.6.7.8,1WTEMP,1WHUM",
                "ONEWCONF");
  ExpectRefused(Model::KA1, "DISONEW4;-ALMOW4,INDEX= 0");
}

TEST(SimStatement, TheListHasTwentySlots) {
  const Identity self{Model::KA1, 0};
  Configuration conf;
  conf.phones[3].number = "600";
  int taken = 0;
  while (ApplyStatement("+TLF=60" + std::to_string(taken) + ",Prio=0,PRV0", self, conf).empty())
    ++taken;
  EXPECT_EQ(taken, 19);
  EXPECT_EQ(conf.phones[2].number, "602");
  EXPECT_EQ(conf.phones[3].number, "600");
  EXPECT_EQ(conf.phones[4].number, "603");
}

}  // namespace
}  // namespace ostrel::sim
