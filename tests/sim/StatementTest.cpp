#include "sim/StatementBench.h"

namespace ostrel::sim {
namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;

TEST(SimStatement, OfAnAlarmIsRefusedWhenItIsMalformed) {
  const std::string head = "+ALMD0=x,INDEX= 0,";
  ExpectRefused(
      Model::VR200,
      "PO= 0,PC= 0,EQ= 0;PC= 0,EQ= 0;PC= 0,PO= 0.5,EQ= 0;PC= 0,PO= 1e99,EQ= 0;PC= 0,PO= 0;"
      "PC= 0,PO= 1x,EQ= 0;PC= 0,PO= 0,EQ= 17;PC= 0,PO= 0,RESEND,SREST,EQ= 0;"
      "PC= 0,PO= 0,RING,NOSEND,EQ= 0;PC= 0,PO= 0,SMS,EQ= 0",
      head, ",ACTCLOSE=,ACTOPEN=");
  ExpectRefused(Model::VR200,
                "0:00:00;08:00:00,STOP=9:00:00,WEEK=1111111;8:00:00,STOP=24:00:00,WEEK=1111111;"
                "8:00:00,STOP=9:00:00,WEEK=111111;8:00:00,STOP=9:00:00,WEEK=1111112",
                head + "PC= 0,PO= 0,START=", ",EQ= 0,ACTCLOSE=,ACTOPEN=");
  ExpectRefused(Model::VR200,
                "ACTCLOSE= 1 2 3 4 5 6 7 8 9,ACTOPEN=;ACTCLOSE= 0,ACTOPEN=;ACTCLOSE= 1;"
                "ACTCLOSE= 32768,ACTOPEN=;ACTCLOSE=5,ACTOPEN=;ACTHI=,ACTLO=",
                head + "PC= 0,PO= 0,EQ= 0,");
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

}  // namespace
}  // namespace ostrel::sim
