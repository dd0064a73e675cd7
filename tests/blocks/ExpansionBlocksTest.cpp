#include "BlockFixture.h"

namespace ostrel {
namespace {

class ExpansionBlocks : public BlockFixture {
 protected:
  ExpansionBlocks() { Use("Ostrel S100"); }
};

TEST_F(ExpansionBlocks, EachModeHasItsLines) {
  Receive("EXPINPUT.D,127,15,7,12,1,Puerta");
  Receive("EXPINPUT.Q,1,2,3,4,Caudal,l/s,60,0.25");
  Receive("EXPINPUT.C,2,2,3,4,Contador,m3,0.1");
  EXPECT_EQ(Changes(),
            "[MINPUT 1] MODO= 2; DIR= 2; ENTRADA= 3; GRUPO= 4; [MINPUT.Q 1] NOMBRE=Caudal; "
            "UNIDAD=l/s; TIMEBASE= 60; RATIO= .25; [MINPUT 2] MODO= 3; DIR= 2; ENTRADA= 3; "
            "GRUPO= 4; [MINPUT.C 2] NOMBRE=Contador; UNIDAD=m3; RATIO= .1; "
            "[MINPUT 127] MODO= 1; DIR= 15; ENTRADA= 7; GRUPO= 12; [MINPUT.D 127] NOMBRE=Puerta; "
            "NC=True; ");
  Receive("EXPINPUT.D,128,0,0,0,0,spare");
  EXPECT_EQ(conf.Modulo[128].D.NOMBRE, "spare");
  for (const auto& [reported, code] : {std::pair{"1", 1}, {"2", 3}, {"0", 3}}) {
    Receive(std::string("EXPINPUT.A,3,2,3,4,Nivel,m,") + reported + ",4,0,20,6.5");
    EXPECT_EQ(conf.Modulo[3].A.INTERFAZ, code) << reported;
  }
  const ModuloAnalog& analog = conf.Modulo[3].A;
  EXPECT_EQ(std::vector({analog.IE, analog.EqIE, analog.FE, analog.EqFE}),
            (std::vector{4.F, 0.F, 20.F, 6.5F}));
  EXPECT_THROW(Receive("EXPINPUT.D,129,0,0,0"), BoundFailure);
  EXPECT_THROW(Receive("EXPINPUT.A.ALM,1,2,Texto"), BoundFailure);
}

TEST_F(ExpansionBlocks, EachModeHasItsAlarm) {
  Receive("EXPINPUT.D.ALM,95,0,Abierta,5,7,0,86400,127,1,3");
  Receive("EXPINPUT.D.ACT,95,0,1,2,3,4");
  Receive("EXPINPUT.Q.ALM,95,0,Fuga,1,2,3,0,86400,127,1,4,6");
  Receive("EXPINPUT.Q.ACT,95,0,1,2,3");
  Receive("EXPINPUT.A.ALM,95,0,Bajo,4,5,6,0,86400,127,2,4,7");
  Receive("EXPINPUT.A.ACT,95,0,7,8,9");
  const char* const address = ",ADRS= 15,chanel= 0,group= 9";
  ConfModulo& input = conf.Modulo[95];
  input.DIR = 15;
  input.GRUPO = 9;
  input.D.NC = kTrue;
  input.Q.NOMBRE = "Q";
  input.Q.UNIDAD = "l/s";
  input.Q.TIMEBASE = 60;
  input.Q.RATIO = 0.25F;
  input.C = {"C", "m3", 1.5F};
  input.A.NOMBRE = "A";
  input.A.UNIDAD = "m";
  input.A.FE = 20;
  input.A.EqFE = 6.5F;
  input.A.GRUPO = 3;
  const auto last = [&](ExpansionMode mode) {
    input.MODO = mode;
    const auto all = Statements(PageId::E_Modular);
    EXPECT_EQ(all[94], "DISEXPINPUT94");
    return std::vector(all.begin() + 95, all.end());
  };
  using Lines = std::vector<std::string>;
  EXPECT_EQ(last(kModeOff), (Lines{"DISEXPINPUT95"})) << "no alarm statement";
  EXPECT_EQ(last(kModeDigital),
            (Lines{std::string("EXPINPUTDCONF95=") + address + ",NC",
                   "+ALMEXPINPUTD95=Abierta,INDEX= 0,PC= 5,PO= 7,EQ= 3,ACTCLOSE= 1 3,"
                   "ACTOPEN= 2 4"}));
  EXPECT_EQ(
      last(kModeFlow),
      (Lines{std::string("EXPINPUTQCONF95=Q,UNIT=l/s") + address + ",TB= 60,REGDAYMIN,RATIO=0.25",
             "+ALMEXPINPUTQ95=Fuga,INDEX= 0,MAX= 2,MIN= 1,HIST= 3,P= 6,EQ= 4,ACTHI= 1,"
             "ACTLO= 3,ACTNOM= 2"}));
  EXPECT_EQ(last(kModeCounter),
            (Lines{std::string("EXPINPUTCCONF95=C") + address + ",UNIT=m3,RATIO=1.5"}));
  for (const auto& [code, token] : {std::pair{1, ",CURRENT"}, {3, ",10V"}, {0, ""}, {2, ""}}) {
    input.A.INTERFAZ = static_cast<std::int16_t>(code);
    EXPECT_EQ(last(kModeAnalog)[0], std::string("EXPINPUTACONF95=A,UNIT=m") + address + token +
                                        ",BSVAL= 0,FSVAL= 20,BSUNIT= 0,FSUNIT= 6.5,GROUP= 9");
  }
  input.A.ALARM[0].common.HABIL = kFalse;
  EXPECT_EQ(last(kModeAnalog)[1], "-ALMEXPINPUTA95,INDEX= 0");
  EXPECT_TRUE(last(static_cast<ExpansionMode>(5)).empty());
}

TEST_F(ExpansionBlocks, AlarmsAreThoseOfTheModeInForce) {
  for (auto* alarm : {&conf.Modulo[7].D.ALARM[0].common, &conf.Modulo[7].A.ALARM[0].common})
    alarm->HABIL = kTrue;
  std::string seen;
  conf.Modulo[7].MODO = kModeAnalog;
  VisitAlarms(conf, {profile, kEveryFeature},
              [&](const AlarmPlace& place, const AlarmBlock& alarm) {
                if (alarm.HABIL) seen += SectionName(*place.section, place.channel) + ";";
              });
  EXPECT_EQ(seen, "MINPUT.A 7;");
}

TEST_F(ExpansionBlocks, AFileHoldsEveryModeOf128Inputs) {
  conf.Modulo[127].MODO = kModeFlow;
  conf.Modulo[127].A.GRUPO = 5;
  const std::string file = FileText(PageId::E_Modular);
  EXPECT_TRUE(
      file.starts_with("[MINPUT 0]\r\nMODO= 0\r\nDIR= 0\r\nENTRADA= 0\r\nGRUPO= 0\r\n"
                       "[MINPUT.D 0]\r\nNOMBRE=\r\nNC=False\r\nHABIL( 0)=False\r\n"));
  for (const auto* part :
       {"ACTHI( 0 7)= 0\r\nACTLO( 0 7)= 0\r\n[MINPUT.Q 0]\r\nNOMBRE=\r\nUNIDAD=\r\nTIMEBASE= 0\r\n"
        "RATIO= 1\r\nHABIL( 0)=",
        "[MINPUT.C 0]\r\nNOMBRE=\r\nUNIDAD=\r\nRATIO= 1\r\n[MINPUT.A 0]\r\nNOMBRE=\r\n",
        "EqFE= 0\r\nGRUPO= 5\r\nHABIL( 0)="})
    EXPECT_NE(file.find(part), std::string::npos) << part;
}

}  // namespace
}  // namespace ostrel
