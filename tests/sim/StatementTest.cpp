#include <gmock/gmock.h>

#include "sim/LineComposer.h"
#include "sim/SimBench.h"
#include "sim/StatementParser.h"

namespace ostrel::sim {
namespace {

using testing::Contains;
using testing::Not;

constexpr std::uint32_t kEveryFeature = 0xFFFFFFFF;

/// What a statement changes shows in a record.
struct StatementCase {
  const char* statement;
  const char* record;
};

void ExpectTaken(const std::vector<StatementCase>& cases, const Identity& self) {
  for (const auto& [statement, record] : cases) {
    Configuration conf;
    EXPECT_EQ(ApplyStatement(statement, self, conf), "") << statement;
    EXPECT_THAT(ConfigurationRecords(conf, self), Contains(record)) << statement;
  }
}

TEST(SimStatement, GeneralStatementsAndTheirRecords) {
  ExpectTaken(
      {{"ID=Pozo n\xBA 3 = {alto}", "DNAME,Pozo n\xBA 3 = {alto}"},
       {"ID=", "DNAME,"},
       {"CSM=+34609090909", "SMC,+34609090909"},
       {"PTLF=600111222", "PTLF,600111222"},
       {"REST=normal", "REST,normal"},
       {"RETRYMAX= 5", "RENVN,5"},
       {"RETRYTIME= 120", "RENVT,120"},
       {"+TLF=600,Prio=8,PRV3,MASKMODE0",
        "TLF,0,600,8,3,-1,0,255,255,255,255,255,255,255,255,255,255,255,255,255,255,255,255"},
       {"+TLF=+34600,Prio=0,PRV0,MASK= 21 97 61 255 255 255 255 255 255 255 255 255 255 255 255 0,"
        "MASKMODE2",
        "TLF,0,+34600,0,0,257,2,21,97,61,255,255,255,255,255,255,255,255,255,255,255,255,0"}},
      {Model::BQ, kEveryFeature});
}

TEST(SimStatement, OldFirmwareHoldsMasksAsBits) {
  ExpectTaken({{"+TLF=600123,Prio=1,PRV2", "TLF,0,600123,1,2,65535"},
               {"+TLF=600123,Prio=1,PRV2,A3,D0,D7,A0,D0", "TLF,0,600123,1,2,2433"}},
              {Model::VR200, 0});
  ExpectTaken({{"+TLF=600123,Prio=1,PRV2", "TLF,0,600123,1,2,-1"}},
              {Model::VR200, kNoMaskIsMinusOne});
}

TEST(SimStatement, ChannelStatementsAndTheirRecords) {
  ExpectTaken(
      {{"DINAME7=Puerta,NC", "DIGITAL,7,Puerta,1"},
       {"DINAME0=Puerta", "DIGITAL,0,Puerta,0"},
       {"+ALMD2=Abierta,INDEX= 3,PC= 5,PO= .5,EQ= 0,ACTCLOSE=,ACTOPEN=",
        "DIGITAL.ALM,2,3,Abierta,5,0.5,0,86400,127,1,0"},
       {"+ALMD2=,INDEX= 0,PC=-1.25,PO= 1E-07,SREST,RESEND,RING,GPRS,START=8:05:09,STOP=23:59:59,"
        "WEEK=1010001,EQ= 16,ACTCLOSE= 5,ACTOPEN=",
        "DIGITAL.ALM,2,0,,-1.25,0.0000001,29109,86399,69,30,16"},
       {"+ALMD0=a,INDEX= 1,PC= 0,PO= 0,NOSEND,EQ= 0,ACTCLOSE= 5 42 43 200,ACTOPEN= 7",
        "DIGITAL.ACT,0,1,5,7,42,0,43,0,200,0,0,0,0,0,0,0,0,0"},
       {"+ALMD0=a,INDEX= 1,PC= 0,PO= 0,NOSEND,EQ= 0,ACTCLOSE=,ACTOPEN=",
        "DIGITAL.ALM,0,1,a,0,0,0,86400,127,0,0"},
       {"AICONF1=Nivel,UNIT=m,CURRENT,BSVAL= 4,FSVAL= 20,BSUNIT=-.5,FSUNIT= 6.25,GROUP= 3",
        "ANALOG,1,Nivel,m,1,3,4,-0.5,20,6.25"},
       {"AICONF1=,UNIT=,PRESSURE,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 10,GROUP= 0",
        "ANALOG,1,,,4,0,0,0,0,10"},
       {"AICONF1=,UNIT=,10V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
        "ANALOG,1,,,3,0,0,0,0,0"},
       {"+ALMA0=x,INDEX= 2,MAX= 16777216,MIN=-3,HIST= .1,P= 4,GPRS,EQ= 1,ACTHI= 1,ACTLO= 2,"
        "ACTNOM= 3",
        "ANALOG.ALM,0,2,x,-3,16777216,0.1,0,86400,127,16,1,4"},
       {"+ALMA0=x,INDEX= 2,MAX= 1,MIN= 1,HIST= 1,P= 4,EQ= 1,ACTHI= 1,ACTLO= 2,ACTNOM= 3 4",
        "ANALOG.ACT,0,2,1,3,2,0,4,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0"},
       {"AGRP3= 2,T= 50,V= 24", "GROUP,3,2,24,50"},
       {"+ALMF15=F,INDEX= 0,RING,ACTHI= 9,ACTLO=", "FLAG.ALM,15,0,F,0,86400,127,2"},
       {"+ALMF15=F,INDEX= 0,ACTHI= 9,ACTLO= 8 7", "FLAG.ACT,15,0,9,8,0,7,0,0,0,0,0,0,0,0,0,0,0,0"}},
      {Model::VR200, kEveryFeature});
}

TEST(SimStatement, TakingOutAlarmsAndInputs) {
  const Identity self{Model::VR200, kEveryFeature};
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

TEST(SimStatement, WhatIsMalformedIsRefused) {
  const char* const refused[] = {
      "",
      "id=x",
      "ID",
      "IDx=x",
      "ID=a,b",
      "ID=a\tb",
      "ID=a\x7F",
      "NONSENSE=1",
      "RETRYMAX=5",
      "RETRYMAX=  5",
      "RETRYMAX= 05",
      "RETRYMAX= 5.5",
      "RETRYMAX=-1",
      "RETRYTIME= 99999999999",
      "CLRTLF=",
      "+TLF=,Prio=0,PRV0,MASKMODE0",
      "+TLF=600,Prio=9,PRV0,MASKMODE0",
      "+TLF=600,Prio= 1,PRV0,MASKMODE0",
      "+TLF=600,Prio=1,PRV4,MASKMODE0",
      "+TLF=600,PRV0,Prio=0,MASKMODE0",
      "+TLF=600,Prio=1,PRV0",
      "+TLF=600,Prio=1,PRV0,MASKMODE1",
      "+TLF=600,Prio=1,PRV0,MASK= 21 22,MASKMODE1",
      "+TLF=600,Prio=1,PRV0,D0",
      "+TLF=600,Prio=1,PRV0,MASK= 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1,MASKMODE0",
      "+TLF=600,Prio=1,PRV0,MASK= 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 256,MASKMODE1",
      "DINAME8=x",
      "DINAME=x",
      "DINAME 0=x",
      "DINAME00=x",
      "DINAME0=x,NO",
      "DINAME0=x,NCX",
      "-ALMD8,INDEX= 0",
      "-ALMD0,INDEX= 4",
      "-ALMD0,INDEX=0",
      "-ALMD0",
      "-ALMD0,INDEX= 0,",
      "+ALMD0=a,b,INDEX= 0,PC= 0,PO= 0,EQ= 0,ACTCLOSE=,ACTOPEN=",
      "AICONF4=x,UNIT=m,5V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
      "AICONF0=x,5V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
      "AICONF0=x,UNIT=m,24V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
      "AICONF0=x,UNIT=m,5V,10V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 0",
      "AICONF0=x,UNIT=m,5V,BSVAL= 0,BSUNIT= 0,FSVAL= 0,FSUNIT= 0,GROUP= 0",
      "AICONF0=x,UNIT=m,5V,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 0,GROUP= 4",
      "DISAI4",
      "DISAI0,INDEX= 0",
      "+ALMA0=x,INDEX= 0,MIN= 0,MAX= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
      "+ALMA0=x,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=",
      "+ALMA0=x,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTNOM=,ACTLO=",
      "+ALMA0=x,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNO=",
      "AGRP4= 0,T= 0,V= 0",
      "AGRP0= 0,V= 0,T= 0",
      "AGRP0= .5,T= 0,V= 0",
      "+ALMF16=x,INDEX= 0,ACTHI=,ACTLO=",
      "+ALMF0=x,INDEX= 1,ACTHI=,ACTLO=",
      "+ALMF0=x,INDEX= 0,EQ= 0,ACTHI=,ACTLO=",
      "-ALMF0,INDEX= 1",
  };
  // The middle of an alarm that is sound at both ends.
  const char* const fields[] = {"PO= 0,PC= 0,EQ= 0",
                                "PC= 0,EQ= 0",
                                "PC= 0,PO= 0.5,EQ= 0",
                                "PC= 0,PO= ,EQ= 0",
                                "PC= 0,PO= 1e99,EQ= 0",
                                "PC= 0,PO= inf,EQ= 0",
                                "PC= 0,PO= 1x,EQ= 0",
                                "PC= 0,PO=--1,EQ= 0",
                                "PC= 0,PO= 0",
                                "PC= 0,PO= 0,EQ= 17",
                                "PC= 0,PO= 0,RESEND,SREST,EQ= 0",
                                "PC= 0,PO= 0,RING,NOSEND,EQ= 0",
                                "PC= 0,PO= 0,SMS,EQ= 0",
                                "PC= 0,PO= 0,START=0:00:00,EQ= 0",
                                "PC= 0,PO= 0,START=08:00:00,STOP=9:00:00,WEEK=1111111,EQ= 0",
                                "PC= 0,PO= 0,START=8:0:00,STOP=9:00:00,WEEK=1111111,EQ= 0",
                                "PC= 0,PO= 0,START=8:00:00,STOP=24:00:00,WEEK=1111111,EQ= 0",
                                "PC= 0,PO= 0,START=8:00:00,STOP=9:60:00,WEEK=1111111,EQ= 0",
                                "PC= 0,PO= 0,START=8:00:00,STOP=9:00:00,WEEK=111111,EQ= 0",
                                "PC= 0,PO= 0,START=8:00:00,STOP=9:00:00,WEEK=1111112,EQ= 0"};
  // The end of one that is sound up to its actions.
  const char* const actions[] = {"ACTCLOSE= 1 2 3 4 5 6 7 8 9,ACTOPEN=",
                                 "ACTCLOSE= 0,ACTOPEN=",
                                 "ACTCLOSE= 32768,ACTOPEN=",
                                 "ACTCLOSE=5,ACTOPEN=",
                                 "ACTCLOSE= 1",
                                 "ACTHI=,ACTLO="};
  const auto expectRefused = [](const std::string& statement) {
    Configuration conf;
    EXPECT_NE(ApplyStatement(statement, {Model::VR200, kEveryFeature}, conf), "") << statement;
  };
  const std::string alarm = "+ALMD0=x,INDEX= 0,";
  for (const char* statement : refused) expectRefused(statement);
  for (const std::string middle : fields) expectRefused(alarm + middle + ",ACTCLOSE=,ACTOPEN=");
  for (const std::string end : actions) expectRefused(alarm + "PC= 0,PO= 0,EQ= 0," + end);
}

TEST(SimStatement, TheFirmwareDecidesWhatIsKnown) {
  struct Gate {
    std::uint32_t bit;
    Model model;
    const char* statement;
    bool otherwise;  ///< whether it is taken without the bit, instead of with it
  };
  const Gate gates[] = {
      {kResendRules, Model::KA1, "RETRYMAX= 3", false},
      {kResendRules, Model::KA1, "RETRYTIME= 60", false},
      {kExtendedMasks, Model::BP, "+TLF=600,Prio=0,PRV0,MASKMODE0", false},
      {kExtendedMasks, Model::BP, "+TLF=600,Prio=0,PRV0,D0,A3", true},
      {kNormallyClosed, Model::S100, "DINAME1=x,NC", false},
      {kAnalogPersistence, Model::BP,
       "+ALMA0=,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,P= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=", false},
      {kAnalogPersistence, Model::BP,
       "+ALMA0=,INDEX= 0,MAX= 0,MIN= 0,HIST= 0,EQ= 0,ACTHI=,ACTLO=,ACTNOM=", true},
      {kFlagAlarms, Model::KA2, "-ALMF0,INDEX= 0", false},
      {kFlagAlarms, Model::KA2, "+ALMF0=,INDEX= 0,ACTHI=,ACTLO=", false},
  };
  for (const Gate& gate : gates) {
    Configuration conf;
    const bool with = ApplyStatement(gate.statement, {gate.model, kEveryFeature}, conf).empty();
    const bool without = ApplyStatement(gate.statement, {gate.model, ~gate.bit}, conf).empty();
    EXPECT_EQ(with, !gate.otherwise) << gate.statement;
    EXPECT_EQ(without, gate.otherwise) << gate.statement;
  }
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
  EXPECT_THAT(records, Not(Contains(testing::StartsWith("FLAG"))));
}

}  // namespace
}  // namespace ostrel::sim
