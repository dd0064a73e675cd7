#include <gmock/gmock.h>

#include "sim/LineComposer.h"
#include "sim/Random.h"
#include "sim/SimBench.h"
#include "sim/StatementParser.h"

namespace ostrel::sim {
namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;

constexpr std::uint32_t kAllFeatures = 0xFFFFFFFF;

/// What a statement changes shows in a record.
struct StatementCase {
  Model model;
  const char* statement;
  const char* record;
  std::uint32_t features = kAllFeatures;
  const char* before = "";  ///< a statement that comes first, if any
};

/// What is odd about each kind; what is plain is told by the round trips of whole configurations.
const StatementCase kTaken[] = {
    // Identity and telephones
    {Model::BQ, "ID=Pozo n\xBA 3 = {alto}", "DNAME,Pozo n\xBA 3 = {alto}"},
    {Model::BQ, "RETRYMAX= 5", "RENVN,5"},
    {Model::BQ, "RETRYTIME= 120", "RENVT,120"},
    {Model::BQ,
     "+TLF=+34600,Prio=0,PRV0,MASK= 21 97 61 255 255 255 255 255 255 255 255 255 255 255 255 0,"
     "MASKMODE2",
     "TLF,0,+34600,0,0,257,2,21,97,61,255,255,255,255,255,255,255,255,255,255,255,255,0"},
    {Model::VR200, "+TLF=600123,Prio=1,PRV2", "TLF,0,600123,1,2,65535", 0},
    {Model::VR200, "+TLF=600123,Prio=1,PRV2,A3,D0,D7,A0,D0", "TLF,0,600123,1,2,2433", 0},
    {Model::VR200, "+TLF=600123,Prio=1,PRV2", "TLF,0,600123,1,2,-1", kNoMaskIsMinusOne},
    // Digital and analog inputs, groups and flags
    {Model::VR200, "DINAME7=Puerta,NC", "DIGITAL,7,Puerta,1"},
    {Model::VR200,
     "+ALMD2=,INDEX= 0,PC=-1.25,PO= 1E-07,SREST,RESEND,RING,GPRS,START=8:05:09,STOP=23:59:59,"
     "WEEK=1010001,EQ= 16,ACTCLOSE= 5,ACTOPEN=",
     "DIGITAL.ALM,2,0,,-1.25,0.0000001,29109,86399,69,30,16"},
    {Model::VR200, "+ALMD0=a,INDEX= 1,PC= 0,PO= 0,NOSEND,EQ= 0,ACTCLOSE= 5 42 43 200,ACTOPEN= 7",
     "DIGITAL.ACT,0,1,5,7,42,0,43,0,200,0,0,0,0,0,0,0,0,0"},
    {Model::VR200,
     "AICONF1=Nivel,UNIT=m,CURRENT,BSVAL= 4,FSVAL= 20,BSUNIT=-.5,FSUNIT= 6.25,GROUP= 3",
     "ANALOG,1,Nivel,m,1,3,4,-0.5,20,6.25"},
    {Model::VR200, "AICONF1=,UNIT=,10V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
     "ANALOG,1,,,3,0,0,0,0,0"},
    {Model::VR200,
     "+ALMA0=x,INDEX= 2,MAX= 16777216,MIN=-3,HIST= .1,P= 4,GPRS,EQ= 1,ACTHI= 1,ACTLO= 2,"
     "ACTNOM= 3",
     "ANALOG.ALM,0,2,x,-3,16777216,0.1,0,86400,127,16,1,4"},
    {Model::VR200, "AGRP3= 2,T= 50,V= 24", "GROUP,3,2,24,50"},
    {Model::VR200, "+ALMF15=F,INDEX= 0,RING,ACTHI= 9,ACTLO=", "FLAG.ALM,15,0,F,0,86400,127,2"},
    // Timers
    {Model::KA1, "CT3= 60,EQ= 0,ACT= 5 42", "CTIMER,3,127,0,86400,60,0"},
    {Model::KA1, "CT15= .5,START=8:05:00,STOP=23:59:59,WEEK=1000001,EQ= 16,ACT=",
     "CTIMER,15,65,29100,86399,0.5,16"},
    {Model::KA1, "CT0= 60,EQ= 3,ACT= 43 7", "CTIMER.ACTION,0,43,7,0,0,0,0,0,0"},
    {Model::KA1, "-CT3", "CTIMER,3,0,0,0,0,0", kAllFeatures, "CT3= 60,EQ= 3,ACT= 5"},
    {Model::KA1, "-CT3", "CTIMER.ACTION,3,0,0,0,0,0,0,0,0", kAllFeatures, "CT3= 60,EQ= 3,ACT= 5"},
    {Model::KA1, "LT3= 86400,ACT= 5 42", "LTIMER,3,86400"},
    {Model::KA1, "LT15= 2147472000,ACT= 5 42", "LTIMER.ACTION,15,5,42,0,0,0,0,0,0"},
    {Model::KA1, "-LT3", "LTIMER,3,0", kAllFeatures, "LT3= 86400,ACT= 5"},
    {Model::KA1, "WT2=8:05:00,WEEK=1111100,ACT= 4", "WTIMER,2,31,29100"},
    {Model::KA1, "WT2=0:00:00,WEEK=0000001,ACT= 4", "WTIMER.ACTION,2,4,0,0,0,0,0,0,0"},
    {Model::KA1, "-WT2", "WTIMER,2,0,0", kAllFeatures, "WT2=8:05:00,WEEK=1111100,ACT= 4"},
    {Model::KA1, "MT0=6:00:00,MASK= 16385,ACT= 7", "MTIMER,0,16385,21600"},
    {Model::KA1, "MT15=6:00:00,MASK= 4294967295,ACT= 7", "MTIMER,15,4294967295,21600"},
    {Model::KA1, "MT0=6:00:00,MASK= 2147483648,ACT= 7", "MTIMER.ACTION,0,7,0,0,0,0,0,0,0"},
    {Model::KA1, "-MT0", "MTIMER,0,0,0", kAllFeatures, "MT0=6:00:00,MASK= 1,ACT= 7"},
    // Flow meters
    {Model::BQ, "FLOWCONF1=Caudal,UNIT=m3/h,TB= 60,REGDAYMIN,RATIO=0.25",
     "CAUDAL,1,Caudal,m3/h,60,0.25"},
    {Model::KA1, "FLOWCONF7=,UNIT=,TB= 0,REGDAYMIN,RATIO=-1.5", "CAUDAL,7,,,0,-1.5"},
    {Model::KA1, "TOTALRATIO7= .001", "TOTALRATIO,7,0.001"},
    {Model::KA1,
     "+ALMFLOW0=x,INDEX= 3,MAX= 9,MIN=-3,HIST= .1,P= 4,SREST,GPRS,EQ= 1,ACTHI= 1,ACTLO= 2,ACTNOM= "
     "3",
     "CAUDAL.ALM,0,3,x,-3,9,0.1,0,86400,127,20,1,4", 0},
    // Math channels
    {Model::BP, "DISMC3", "MATH,3,,,,0", kAllFeatures, "MCCONF3=Balance,UNIT=m3,EQ=Q0"},
    {Model::BP,
     "+ALMM1=x,INDEX= 0,MAX= 9,MIN= 3,HIST= 1,P= 4,NOSEND,EQ= 0,ACTHI=,ACTLO= 7,ACTNOM= 8",
     "MATH.ACT,1,0,0,8,7,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0"},
    // Auxiliary inputs
    {Model::KA1, "AUXCONF2=P,UNIT=V,BSVAL= 0,FSVAL= 10,BSUNIT=-1,FSUNIT= 100",
     "AUX,2,P,V,1,,0,-1,10,100"},
    // Probes
    {Model::KA1, "ONEWCONF0=,UNIT=,ONEWADD=0.0,1WHUM",
     "ONEWIRE,0,,,2,000,000,000,000,000,000,000,000"},
    {Model::KA1, "ONEWCONF0=,UNIT=,ONEWADD=1.2.3.4.5.6.7.255",
     "ONEWIRE,0,,,2,001,002,003,004,005,006,007,255", kAllFeatures,
     "ONEWCONF0=x,UNIT=y,ONEWADD=0.0,1WHUM"},
    {Model::KA2, "DISONEW3", "ONEWIRE,3,,,0,000,000,000,000,000,000,000,000", kAllFeatures,
     "ONEWCONF3=x,UNIT=y,ONEWADD=1.2.3.4.5.6.7.8,1WHUM"},
    // MODBUS
    {Model::VR200, "BAUD= 9600", "MODBUS.PRM,9600", kAllFeatures & ~kModbusSlave},
    {Model::VR200, "MBSLAVEADD= 0", "MODBUS.PRM,1200,0,0"},
    {Model::VR200,
     "MBCONF31=Par,UNIT=Nm,SLAVE= 247,REGADD= 400123,FLOAT,CONST=-.5,MASK=-2147483648,NEGATE,"
     "RATIO=0.1",
     "MODBUS,31,Par,Nm,247,400123,0.1,-0.5,-2147483648,1,2"},
    {Model::VR200, "MBCONF0=D,UNIT=,SLAVE= 1,REGADD= 8,32BIT,CONST= 0,MASK= 4,RATIO=0",
     "MODBUS,0,D,,1,8,0,0,4,0,1"},
    {Model::VR200, "MBCONF0=D,UNIT=,SLAVE= 1,REGADD= 8,CONST= 2,MASK= 4,RATIO=3",
     "MODBUS,0,D,,1,8,3,2,4,0", kAllFeatures & ~kModbusFormats},
    {Model::VR200, "MBCONF0=D,UNIT=,SLAVE= 1,REGADD= 8,FLOAT,RATIO=3", "MODBUS,0,D,,1,8,3,0,0,0,2",
     kAllFeatures & ~kModbusConstants},
    {Model::VR200, "MBCONF0=D,UNIT=,SLAVE= 1,REGADD= 8,RATIO=3", "MODBUS,0,D,,1,8,3", 0},
    {Model::VR200, "+ALMMB9=x,INDEX= 0,MAX= 9,MIN= 3,HIST= 1,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
     "MODBUS.ALM,9,0,x,3,9,1,0,86400,127,1,0", kAllFeatures & ~kModbusConstants},
    // Expansion inputs
    {Model::S100, "EXPINPUTDCONF95=Puerta,ADRS= 15,chanel= 7,group= 15,NC",
     "EXPINPUT.D,95,15,7,15,1,Puerta"},
    {Model::S100, "EXPINPUTCCONF0=Cuenta,ADRS= 1,chanel= 2,group= 3,UNIT=m3,RATIO=0.1",
     "EXPINPUT.C,0,1,2,3,Cuenta,m3,0.1"},
    {Model::S100,
     "EXPINPUTACONF0=A,UNIT=m,ADRS= 1,chanel= 2,group= 3,10V,BSVAL= 1,FSVAL= 10,BSUNIT=-5,"
     "FSUNIT= 50,GROUP= 3",
     "EXPINPUT.A,0,1,2,3,A,m,3,1,-5,10,50"},
    {Model::S100, "+ALMEXPINPUTD0=x,INDEX= 0,PC= 5,PO= .5,EQ= 2,ACTCLOSE= 1,ACTOPEN= 2 3",
     "EXPINPUT.D.ACT,0,0,1,2,0,3,0,0,0,0,0,0,0,0,0,0,0,0", kAllFeatures,
     "EXPINPUTDCONF0=,ADRS= 0,chanel= 0,group= 0"},
    {Model::S100,
     "+ALMEXPINPUTA0=x,INDEX= 0,MAX= 9,MIN= 3,HIST= 1,P= 4,EQ= 0,ACTHI= 1,ACTLO= 2,ACTNOM= 3",
     "EXPINPUT.A.ACT,0,0,1,3,2,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0", 0,
     "EXPINPUTACONF0=,UNIT=,ADRS= 0,chanel= 0,group= 0,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,"
     "GROUP= 0"},
    // Macros and equations
    {Model::KA1, "MACRO39={S0=1,W 5,NAME=Bomba}", "MACROS,39,{S0=1,W 5,NAME=Bomba}"},
    {Model::KA1, "F15={D0&D1}", "F,15,{D0&D1}"},
    // GPRS and FTP
    {Model::KA1, "APNSERVER=movil.example", "GPRS,movil.example,,,10,60,120,0,0,0,300,0", kGprs},
    {Model::KA1, "APNPASS=a=b", "GPRS,,a=b,,10,60,120,0,0,0,300,0", kGprs},
    {Model::KA1, "APNUSER=u", "GPRS,,,u,10,60,120,0,0,0,300,0", kGprs},
    {Model::KA1, "APNRETRIES= 3", "GPRS,,,,3,60,120,0,0,0,300,0", kGprs},
    {Model::KA1, "APNRETRYTIME= 5", "GPRS,,,,10,5,120,0,0,0,300,0", kGprs},
    {Model::KA1, "APNTIMEOUT= 7", "GPRS,,,,10,60,7,0,0,0,300,0", kGprs},
    {Model::KA1, "APNALCON=1", "GPRS,,,,10,60,120,1,0,0,300,0", kGprs},
    {Model::KA1, "SERVERIP=10.1.2.3", "GPRS,,,,10,60,120,0,10.1.2.3,0,300,0", kGprs},
    {Model::KA1, "SERVERPORT= 65535", "GPRS,,,,10,60,120,0,0,65535,300,0", kGprs},
    {Model::KA1, "SERVERTIMEOUT= 9", "GPRS,,,,10,60,120,0,0,0,9,0", kGprs},
    {Model::KA1, "GPRSEN", "GPRS,,,,10,60,120,0,0,0,300,1", kGprs},
    {Model::KA1, "GPRSDIS", "GPRS,,,,10,60,120,0,0,0,300,0", kGprs, "GPRSEN"},
    {Model::KA1, "FTPIP=", "GPRS,,,,10,60,120,0,0,0,300,0,,,,,10,60"},
    {Model::KA1, "FTPPATH=/d", "GPRS,,,,10,60,120,0,0,0,300,0,0,/d,,,10,60"},
    {Model::KA1, "FTPUSER=u", "GPRS,,,,10,60,120,0,0,0,300,0,0,,u,,10,60"},
    {Model::KA1, "FTPPASS=p", "GPRS,,,,10,60,120,0,0,0,300,0,0,,,p,10,60"},
    {Model::KA1, "FTPRETRIES= 0", "GPRS,,,,10,60,120,0,0,0,300,0,0,,,,0,60"},
    {Model::KA1, "FTPRETRYTIME= 32767", "GPRS,,,,10,60,120,0,0,0,300,0,0,,,,10,32767"},
};

TEST(SimStatement, ShowsInItsRecord) {
  for (const StatementCase& one : kTaken) {
    const Identity self{one.model, one.features};
    Configuration conf;
    const bool alone = *one.before == '\0';
    EXPECT_EQ(alone ? "" : ApplyStatement(one.before, self, conf), "") << one.before;
    EXPECT_EQ(ApplyStatement(one.statement, self, conf), "") << one.statement;
    EXPECT_THAT(ConfigurationRecords(conf, self), Contains(one.record)) << one.statement;
  }
}

TEST(SimStatement, IsRefusedOrLeavesSomethingSoundWhenItIsDamaged) {
  Random random(77);
  int taken = 0;
  int refused = 0;
  for (int round = 0; round < 6000; ++round) {
    const StatementCase& one = kTaken[random.Next() % std::size(kTaken)];
    std::string statement = one.statement;
    for (int hits = random.Between(1, 3); hits > 0 && !statement.empty(); --hits) {
      const auto at = static_cast<std::size_t>(random.Next() % statement.size());
      const int way = random.Between(0, 2);
      if (way == 0) statement.erase(at, 1);
      if (way == 1) statement[at] = static_cast<char>(random.Between(0, 255));
      if (way == 2) statement.insert(at, 1, random.Pick(std::string_view(", -=+0129.EA#\r{")));
    }
    const Identity self{one.model, one.features};
    Configuration conf;
    if (!ApplyStatement(statement, self, conf).empty()) {
      ++refused;
      continue;
    }
    ++taken;
    for (const std::string& record : ConfigurationRecords(conf, self))
      ASSERT_EQ(record.find_first_of("\r\n"), std::string::npos) << "after " << statement;
  }
  EXPECT_GT(taken, 200);
  EXPECT_GT(refused, 500);
}

const char* const kRefused[] = {
    // Identity, telephones, digital and analog inputs, groups and flags
    "", "ID", "IDx=x", "ID=a,b", "ID=a\tb", "ID=a\x7F", "NONSENSE=1", "RETRYMAX=5", "RETRYMAX= 5.5",
    "RETRYMAX=-1", "RETRYTIME= 99999999999", "+TLF=,Prio=0,PRV0,MASKMODE0",
    "+TLF=600,Prio=9,PRV0,MASKMODE0", "+TLF=600,Prio=1,PRV4,MASKMODE0",
    "+TLF=600,PRV0,Prio=0,MASKMODE0", "+TLF=600,Prio=1,PRV0", "+TLF=600,Prio=1,PRV0,MASKMODE1",
    "+TLF=600,Prio=1,PRV0,MASK= 21 22,MASKMODE1", "+TLF=600,Prio=1,PRV0,D0",
    "+TLF=600,Prio=1,PRV0,MASK= 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1,MASKMODE0",
    "+TLF=600,Prio=1,PRV0,MASK= 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 256,MASKMODE1", "DINAME8=x",
    "DINAME=x", "DINAME 0=x", "DINAME0=x,NO", "-ALMD8,INDEX= 0", "-ALMD0,INDEX= 4",
    "-ALMD0,INDEX=0", "-ALMD0", "+ALMD0=a,b,INDEX= 0,PC= 0,PO= 0,EQ= 0,ACTCLOSE=,ACTOPEN=",
    "AICONF0=x,5V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
    "AICONF0=x,UNIT=m,24V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
    "AICONF0=x,UNIT=m,5V,10V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
    "AICONF0=x,UNIT=m,5V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 4", "DISAI4",
    "+ALMA0=x,INDEX= 0,MIN= 0,MAX= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
    "+ALMA0=x,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
    "+ALMA0=x,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNO=", "AGRP4= 0,T= 0,V= 0",
    "AGRP0= 0,V= 0,T= 0",
    "+ALMF0=x,INDEX= 1,ACTHI=,ACTLO=", "+ALMF0=x,INDEX= 0,EQ= 0,ACTHI=,ACTLO=",
    // Timers
    "CT16= 60,EQ= 0,ACT=", "CT0=60,EQ= 0,ACT=", "CT0= 60,ACT=", "CT0= 60,EQ= 17,ACT=",
    "CT0= 60,EQ= 0", "CT0= 60,EQ= 0,ACT=5",
    "CT0= 60,START=8:00:00,STOP=9:00:00,EQ= 0,ACT=", "CT0= 60,EQ= 0,ACT= 1 2 3 4 5 6 7 8 9",
    "-CT16", "-CT", "LT0=86400,ACT=", "LT0= 2147483648,ACT=", "LT0= 86400",
    "LT0= 60,EQ= 0,ACT=", "-LT16",
    "WT0= 8:00:00,WEEK=1111111,ACT=", "WT0=8:00:00,ACT=", "WT0=8:00:00,WEEK= 127,ACT=",
    "WT0=8:00,WEEK=1111111,ACT=", "WT0=24:00:00,WEEK=1111111,ACT=", "-WT16",
    "MT0=8:00:00,MASK=1,ACT=", "MT0=8:00:00,MASK= 4294967296,ACT=", "MT0=8:00:00,WEEK=1111111,ACT=",
    "-MT16",
    // Flow meters
    "FLOWCONF8=x,UNIT=,TB=0,RATIO=1", "FLOWCONF0=x,TB=0,RATIO=1",
    "FLOWCONF0=x,UNIT=,TB= 60,RATIO=1", "FLOWCONF0=x,UNIT=,TB=0,REGDAYMIN,RATIO=1",
    "FLOWCONF0=x,UNIT=,TB=60,REGDAYMIN,RATIO=1", "FLOWCONF0=x,UNIT=,TB= 32768,REGDAYMIN,RATIO=1",
    "FLOWCONF0=x,UNIT=,TB=0,RATIO= 1", "FLOWCONF0=x,UNIT=,TB=0,RATIO=.5",
    "FLOWCONF0=x,UNIT=,TB=0,RATIO=", "FLOWCONF0=x,UNIT=,TB=0", "FLOWCONF0=x,UNIT=,TB=0,RATIO=1,1",
    "TOTALRATIO0=1", "TOTALRATIO8= 1", "SAMPLERATE=1",
    "+ALMFLOW0=x,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
    "+ALMFLOW0=x,INDEX= 4,MAX= 0,MIN= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
    "+ALMFLOW0=x,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,P= 0,EQ= 0,ACTCLOSE=,ACTOPEN=", "-ALMFLOW0",
    // Math channels
    "MCCONF4=x,UNIT=,EQ=A0", "MCCONF0=x,EQ=A0", "MCCONF0=x,UNIT=", "MCCONF0=x,UNIT=,EQ=A0,A1",
    "DISMC4", "-ALMM0,INDEX= 1",
    "+ALMM0=x,INDEX= 1,MAX= 0,MIN= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
    // MODBUS
    "BAUD=9600", "MBSLAVE= 1", "MBSLAVE=2", "MBSLAVEADD=1", "MBSLAVEADD= 248",
    "MBCONF32=x,UNIT=,SLAVE= 1,REGADD= 8,CONST= 0,MASK= 0,RATIO=1",
    "MBCONF0=x,UNIT=,SLAVE= 248,REGADD= 8,CONST= 0,MASK= 0,RATIO=1",
    "MBCONF0=x,UNIT=,SLAVE= 1,REGADD=-8,CONST= 0,MASK= 0,RATIO=1",
    "MBCONF0=x,UNIT=,SLAVE= 1,REGADD= 8,16BIT,CONST= 0,MASK= 0,RATIO=1",
    "MBCONF0=x,UNIT=,SLAVE= 1,REGADD= 8,32BIT,FLOAT,CONST= 0,MASK= 0,RATIO=1",
    "MBCONF0=x,UNIT=,SLAVE= 1,REGADD= 8,MASK= 0,CONST= 0,RATIO=1",
    "MBCONF0=x,UNIT=,SLAVE= 1,REGADD= 8,CONST= 0,MASK= 2147483648,RATIO=1",
    "MBCONF0=x,UNIT=,SLAVE= 1,REGADD= 8,RATIO=1",
    "MBCONF0=x,UNIT=,SLAVE= 1,REGADD= 8,CONST= 0,MASK= 0,RATIO= 1", "DISMB32", "DISMB",
    "-ALMMB0,INDEX= 1", "+ALMMB0=x,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
    // Macros
    "MACRO56={X}", "MACRO0={X", "MACRO0=X}", "MACRO0 ={X}", "MACRO0={X}Y", "MACRO0={X}}", "F16={X}",
    "CLEARMACRO0",
    // GPRS
    "APNSERVER", "APNSERVER=a,b", "APNRETRIES=3", "APNRETRIES= 32768", "APNALCON= 1", "APNALCON=2",
    "SERVERPORT= 65536", "GPRSEN=1", "GPRS", "FTPRETRIES=3",
    // Voice list
    "+TEL=", "+TEL", "+TEL=600,1", "-TEL=600",
    // What this model lacks
    "DISAUX0", "AUXCONF0=P,UNIT=V,BSVAL= 0,FSVAL= 10,BSUNIT= 0,FSUNIT= 1", "DISONEW0",
    "DISEXPINPUT0", "-ALMEXPINPUTD0,INDEX= 0",
    // What no statement sets
    "OFFTIME= 1", "OFFSAMPLERATE= 3", "AUX1RATIO= 1"};

const char* const kRefusedByS100[] = {
    "DISEXPINPUT96",
    "DISEXPINPUT0,",
    "EXPINPUTDCONF96=x,ADRS= 0,chanel= 0,group= 0",
    "EXPINPUTDCONF0=x,ADRS= 16,chanel= 0,group= 0",
    "EXPINPUTDCONF0=x,ADRS= 0,chanel= 8,group= 0",
    "EXPINPUTDCONF0=x,ADRS= 0,chanel= 0,group= 16",
    "EXPINPUTDCONF0=x,ADRS=0,chanel= 0,group= 0",
    "EXPINPUTDCONF0=x,ADRS= 0,CHANEL= 0,group= 0",
    "EXPINPUTDCONF0=x,chanel= 0,ADRS= 0,group= 0",
    "EXPINPUTDCONF0=x,ADRS= 0,chanel= 0,group= 0,NO",
    "EXPINPUTDCONF0=x",
    "EXPINPUTCCONF0=x,UNIT=m,ADRS= 0,chanel= 0,group= 0,RATIO=1",
    "EXPINPUTCCONF0=x,ADRS= 0,chanel= 0,group= 0,UNIT=m,RATIO= 1",
    "EXPINPUTQCONF0=x,UNIT=l,ADRS= 1,chanel= 2,group= 3,TB=0,RATIO=1",
    "EXPINPUTQCONF0=x,UNIT=l,ADRS= 1,chanel= 2,group= 3,TB= 60,RATIO=1",
    "EXPINPUTACONF0=A,UNIT=m,ADRS= 1,chanel= 2,group= 3,5V,BSVAL= 1,FSVAL= 10,BSUNIT= 0,"
    "FSUNIT= 50,GROUP= 3",
    "EXPINPUTACONF0=A,UNIT=m,ADRS= 1,chanel= 2,group= 3,10V,BSVAL= 1,FSVAL= 10,BSUNIT= 0,"
    "FSUNIT= 50,GROUP= 2",
    "EXPINPUTACONF0=A,UNIT=m,ADRS= 1,chanel= 2,group= 3,10V,BSVAL= 1,FSVAL= 10,BSUNIT= 0,"
    "FSUNIT= 50",
    "-ALMEXPINPUTD0,INDEX= 0",
    "-ALMEXPINPUTC0,INDEX= 0",
    "+ALMEXPINPUTD0=x,INDEX= 0,PC= 5,PO= 5,EQ= 2,ACTCLOSE=,ACTOPEN=",
    "MBCONF0=x",
    "DISMB0"};

const char* const kRefusedByKA1[] = {
    "ONEWCONF4=x,UNIT=,ONEWADD=0.0,1WTEMP",
    "ONEWCONF0=x,UNIT=,1WTEMP,ONEWADD=0.0",
    "ONEWCONF0=x,UNIT=,ONEWADD=,1WTEMP",
    "ONEWCONF0=x,UNIT=,ONEWADD=1.1,1WTEMP",
    "ONEWCONF0=x,UNIT=,ONEWADD=1.2.3.4.5.6.7.8.9,1WTEMP",
    "ONEWCONF0=x,UNIT=,ONEWADD=1.2.3.4.5.6.7.256,1WTEMP",
    "ONEWCONF0=x,UNIT=,ONEWADD=1.2.3.4.5.6.7.0008,1WTEMP",
    "ONEWCONF0=x,UNIT=,ONEWADD=1.2.3.4.5.6.7.8,1WTEMP,1WHUM",
    "DISONEW4",
    "-ALMOW4,INDEX= 0",
    "AUXCONF4=P,UNIT=V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0",
    "AUXCONF0=P,UNIT=V,CURRENT,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0",
    "AUXCONF0=P,UNIT=V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
    "DISAUX4",
    "-ALMAUX0,INDEX= 4",
    "BAUD= 9600",
    "DISAI0",
    "AGRP0= 0,T= 0,V= 0"};

/// The middle of an alarm that is sound at both ends.
const char* const kRefusedFields[] = {"PO= 0,PC= 0,EQ= 0",
                                      "PC= 0,EQ= 0",
                                      "PC= 0,PO= 0.5,EQ= 0",
                                      "PC= 0,PO= 1e99,EQ= 0",
                                      "PC= 0,PO= 1x,EQ= 0",
                                      "PC= 0,PO= 0",
                                      "PC= 0,PO= 0,EQ= 17",
                                      "PC= 0,PO= 0,RESEND,SREST,EQ= 0",
                                      "PC= 0,PO= 0,RING,NOSEND,EQ= 0",
                                      "PC= 0,PO= 0,SMS,EQ= 0",
                                      "PC= 0,PO= 0,START=0:00:00,EQ= 0",
                                      "PC= 0,PO= 0,START=08:00:00,STOP=9:00:00,WEEK=1111111,EQ= 0",
                                      "PC= 0,PO= 0,START=8:00:00,STOP=24:00:00,WEEK=1111111,EQ= 0",
                                      "PC= 0,PO= 0,START=8:00:00,STOP=9:00:00,WEEK=111111,EQ= 0",
                                      "PC= 0,PO= 0,START=8:00:00,STOP=9:00:00,WEEK=1111112,EQ= 0"};

/// The end of one that is sound up to its actions.
const char* const kRefusedActions[] = {"ACTCLOSE= 1 2 3 4 5 6 7 8 9,ACTOPEN=",
                                       "ACTCLOSE= 0,ACTOPEN=",
                                       "ACTCLOSE= 32768,ACTOPEN=",
                                       "ACTCLOSE=5,ACTOPEN=",
                                       "ACTCLOSE= 1",
                                       "ACTHI=,ACTLO="};

TEST(SimStatement, IsRefusedWhenItIsMalformed) {
  const auto expectRefused = [](Model model, const std::string& statement) {
    Configuration conf;
    EXPECT_NE(ApplyStatement(statement, {model, kAllFeatures}, conf), "") << statement;
  };
  const std::string alarm = "+ALMD0=x,INDEX= 0,";
  for (const char* statement : kRefused) expectRefused(Model::VR200, statement);
  for (const char* statement : kRefusedByS100) expectRefused(Model::S100, statement);
  for (const char* statement : kRefusedByKA1) expectRefused(Model::KA1, statement);
  for (const std::string middle : kRefusedFields)
    expectRefused(Model::VR200, alarm + middle + ",ACTCLOSE=,ACTOPEN=");
  for (const std::string end : kRefusedActions)
    expectRefused(Model::VR200, alarm + "PC= 0,PO= 0,EQ= 0," + end);
}

TEST(SimStatement, IsKnownAndToldByItsFirmwareAlone) {
  struct Gate {
    std::uint32_t bit;
    Model model;
    const char* statement;
    const char* record = "";  ///< head of the records that go with the bit, "" for none
    bool otherwise = false;   ///< it is taken without the bit, instead of with it
  };
  const Gate gates[] = {
      {kResendRules, Model::KA1, "RETRYMAX= 3"},
      {kResendRules, Model::KA1, "RETRYTIME= 60"},
      {kExtendedMasks, Model::BP, "+TLF=600,Prio=0,PRV0,MASKMODE0"},
      {kExtendedMasks, Model::BP, "+TLF=600,Prio=0,PRV0,D0,A3", "", true},
      {kNormallyClosed, Model::S100, "DINAME1=x,NC"},
      {kAnalogPersistence, Model::BP,
       "+ALMA0=,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM="},
      {kAnalogPersistence, Model::BP,
       "+ALMA0=,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=", "", true},
      {kFlagAlarms, Model::KA2, "-ALMF0,INDEX= 0"},
      {kFlagAlarms, Model::KA2, "+ALMF0=,INDEX= 0,ACTHI=,ACTLO="},
      {kMonthlyTimers, Model::KA2, "-MT0", "MTIMER,"},
      {kTotalRatio, Model::KA2, "TOTALRATIO0= 1", "TOTALRATIO,"},
      {kSampleRate, Model::BQ, "SAMPLERATE=0"},
      {kMath, Model::VR200, "DISMC0", "MATH,"},
      {kModbusSlave, Model::VR200, "MBSLAVE=0"},
      {kModbusSlave, Model::VR200, "MBSLAVEADD= 1"},
      {kGprs, Model::VR200, "APNSERVER=", "GPRS,"},
      {kGprs, Model::VR200, "FTPIP=10.0.0.1", "GPRS,"},
      {kFtp, Model::VR200, "FTPIP=10.0.0.1"},
      {kMissedCall, Model::VR200, "+TEL=600"},
  };
  for (const Gate& gate : gates) {
    for (const bool with : {true, false}) {
      const Identity self{gate.model, with ? kAllFeatures : ~gate.bit};
      Configuration conf;
      EXPECT_EQ(ApplyStatement(gate.statement, self, conf).empty(), with != gate.otherwise)
          << gate.statement;
      if (*gate.record == '\0') continue;
      const auto records = ConfigurationRecords(conf, self);
      EXPECT_EQ(testing::Value(records, Contains(StartsWith(gate.record))), with) << gate.record;
    }
  }
}

TEST(SimStatement, TakingOutAlarmsAndInputs) {
  const Identity self{Model::VR200, kAllFeatures};
  Configuration conf;
  conf.digitals[1].name = "kept";
  conf.digitals[1].alarms[2] = {.text = "gone", .week = 127};
  conf.analogs[3].name = "gone";
  conf.analogs[3].interface = Interface::Volts5;
  conf.analogs[3].scale.valueAtEnd = 5;
  conf.analogs[3].alarms[0] = {.text = "kept", .week = 1};
  conf.analogs[3].alarms[3] = {.text = "gone", .week = 1};
  conf.flagAlarms[4] = {.text = "gone", .week = 1};
  conf.macros = {"MACRO0={X}"};
  conf.phones[0].number = "600";
  for (const char* statement :
       {"-ALMD1,INDEX= 2", "DISAI3", "-ALMA3,INDEX= 3", "-ALMF4,INDEX= 0", "CLEARMACRO", "CLRTLF"})
    EXPECT_EQ(ApplyStatement(statement, self, conf), "") << statement;
  Configuration rest;
  rest.digitals[1].name = "kept";
  rest.analogs[3].alarms[0] = {.text = "kept", .week = 1};
  EXPECT_EQ(conf, rest);
}

TEST(SimStatement, WhatTheFirmwareCannotSayKeepsItsValue) {
  const Identity old{Model::BP, 0};
  Configuration conf;
  conf.digitals[0].normallyClosed = true;
  conf.analogs[0].alarms[1].persistence = 7;
  conf.analogs[0].interface = Interface::Volts10;
  for (const char* statement :
       {"DINAME0=x", "+ALMA0=y,INDEX= 1,MAX= 0,MIN= 0,HIST= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
        "AICONF0=z,UNIT=,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0"})
    EXPECT_EQ(ApplyStatement(statement, old, conf), "") << statement;
  EXPECT_TRUE(conf.digitals[0].normallyClosed);
  EXPECT_EQ(conf.analogs[0].alarms[1].persistence, 7);
  EXPECT_EQ(conf.analogs[0].interface, Interface::Volts10);
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

TEST(SimRecords, EveryModelReportsWhatItHas) {
  const auto count = [](Model model, std::uint32_t features) {
    return ConfigurationRecords({}, {model, features}).size();
  };
  // General, telephones, and the three kinds of timer that every firmware has.
  const std::size_t always = 6 + 20 + 3 * 32;
  const std::size_t probesAndAux = 4 * 9 + 4 * 9 + 1;
  EXPECT_EQ(count(Model::KA1, 0), always + 8 * 9 + 8 * 9 + probesAndAux);
  EXPECT_EQ(count(Model::KA2, kFlagAlarms), always + 9 * 9 + 8 * 9 + probesAndAux + 32);
  EXPECT_EQ(count(Model::VR200, 0), always + 8 * 9 + 4 * 10 + 8 * 9 + 1 + 32 * 3);
  EXPECT_EQ(count(Model::S100, 0), always + 2 * 9 + 2 * 10 + 2 * 9);
  EXPECT_EQ(count(Model::BP, kMath | kGprs), always + 8 * 9 + 4 * 10 + 8 * 9 + 4 * 3 + 1);
  EXPECT_EQ(count(Model::BQ, kTotalRatio), always + 4 * 9 + 10 + 1 + 2 * 10);
  const auto records = ConfigurationRecords({}, {Model::KA1, 0});
  EXPECT_EQ(records.front(), "DNAME,");
  EXPECT_EQ(records[6], "TLF,0,,0,0,65535");
  EXPECT_THAT(records, Contains("DIGITAL.ALM,7,3,,0,0,0,0,0,0,0"));
  EXPECT_THAT(records, Not(Contains(StartsWith("FLAG"))));
}

/// Programs send these blocks to a Tavro that is chosen behind another model.
TEST(SimStatement, ATavroPassesOverModbusAndProbes) {
  for (const Model model : {Model::BP, Model::BQ}) {
    const Identity self{model, TraitsOf(model).features};
    Configuration conf;
    for (const char* statement : {"BAUD= 9600", "DISMB31", "-ALMMB0,INDEX= 0", "DISONEW0"})
      EXPECT_EQ(ApplyStatement(statement, self, conf), "") << statement;
    EXPECT_EQ(conf, Configuration());
    for (const char* head : {"MODBUS", "ONEWIRE"})
      EXPECT_THAT(ConfigurationRecords(conf, self), Not(Contains(StartsWith(head))));
  }
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
  ExpansionInput counter;
  counter.mode = ExpansionMode::Counter;
  counter.module = 1;
  counter.input = 2;
  counter.group = 3;
  counter.name = "y";
  counter.unit = "m";
  counter.ratio = 2;
  EXPECT_EQ(conf.expansion[4], counter);
  EXPECT_NE(ApplyStatement(alarm, self, conf), "");
  say("DISEXPINPUT4");
  EXPECT_EQ(conf, Configuration());
  EXPECT_THAT(ConfigurationRecords(conf, self), Not(Contains(StartsWith("EXPINPUT"))));
}

TEST(SimStatement, DisabledChannelsKeepTheirAlarms) {
  const struct {
    Model model;
    const char* alarm;
    const char* disable;
  } cases[] = {{Model::BP, "+ALMM0", "DISMC0"},
               {Model::KA1, "+ALMAUX0", "DISAUX0"},
               {Model::KA1, "+ALMOW0", "DISONEW0"},
               {Model::VR200, "+ALMMB0", "DISMB0"},
               {Model::VR200, "+ALMA0", "DISAI0"}};
  for (const auto& [model, alarm, disable] : cases) {
    const Identity self{model, kAllFeatures};
    Configuration conf;
    const std::string statement =
        std::string(alarm) + "=x,INDEX= 0,MAX= 1,MIN= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=";
    EXPECT_EQ(ApplyStatement(statement, self, conf), "") << alarm;
    const Configuration before = conf;
    EXPECT_EQ(ApplyStatement(disable, self, conf), "") << disable;
    EXPECT_EQ(conf, before) << disable;
    EXPECT_NE(conf, Configuration()) << alarm;
  }
}

TEST(SimStatement, MacrosShareAMemoryOf1024Characters) {
  const Identity self{Model::KA1, kAllFeatures};
  Configuration conf;
  const auto add = [&](std::size_t length) {
    return ApplyStatement("F0={" + std::string(length - 5, 'x') + "}", self, conf).empty();
  };
  EXPECT_TRUE(add(1000));
  EXPECT_FALSE(add(25));
  EXPECT_TRUE(add(24)) << "the same number stands twice";
  EXPECT_FALSE(add(5));
  EXPECT_EQ(conf.macros.size(), 2U);
  EXPECT_EQ(ApplyStatement("CLEARMACRO", self, conf), "");
  int lines = 0;
  while (add(5)) ++lines;
  EXPECT_EQ(lines, 56) << "programs hold no more lines";
}

}  // namespace
}  // namespace ostrel::sim
