#include "BlockFixture.h"

namespace ostrel {
namespace {

class ExpansionBlocks : public BlockFixture {
 protected:
  ExpansionBlocks() { Use("Ostrel S100"); }
};

TEST_F(ExpansionBlocks, EachModeHasItsLines) {
  Receive("EXPINPUT.D,128,15,7,12,1,Puerta");
  Receive("EXPINPUT.Q,1,2,3,4,Caudal,l/s,60,0.25");
  Receive("EXPINPUT.C,2,2,3,4,Contador,m3,0.1");
  EXPECT_EQ(conf.Modulo[128].MODO, kModeDigital);
  EXPECT_EQ(conf.Modulo[128].DIR, 15);
  EXPECT_EQ(conf.Modulo[128].ENTRADA, 7);
  EXPECT_EQ(conf.Modulo[128].GRUPO, 12);
  EXPECT_EQ(conf.Modulo[128].D.NOMBRE, "Puerta");
  EXPECT_TRUE(conf.Modulo[128].D.NC);
  EXPECT_EQ(conf.Modulo[1].MODO, kModeFlow);
  EXPECT_EQ(conf.Modulo[1].Q.TIMEBASE, 60);
  EXPECT_EQ(conf.Modulo[1].Q.RATIO, 0.25F);
  EXPECT_EQ(conf.Modulo[2].MODO, kModeCounter);
  EXPECT_EQ(conf.Modulo[2].C, (ModuloCounter{"Contador", "m3", 0.1F}));
  for (const auto& [reported, code] : {std::pair{"1", 1}, {"2", 3}, {"0", 3}}) {
    Receive(std::string("EXPINPUT.A,3,2,3,4,Nivel,m,") + reported + ",4,0,20,6.5");
    EXPECT_EQ(conf.Modulo[3].A.INTERFAZ, code) << reported;
  }
  const ModuloAnalog& analog = conf.Modulo[3].A;
  EXPECT_EQ(std::vector({analog.IE, analog.EqIE, analog.FE, analog.EqFE}),
            (std::vector{4.F, 0.F, 20.F, 6.5F}));
  EXPECT_EQ(conf.Modulo[0].MODO, kModeOff) << "what is not reported stays off";
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
  conf.Modulo[128].D.NOMBRE = "spare";
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
  EXPECT_EQ(file.find("spare"), std::string::npos);
  const DeviceConf saved = conf;
  conf.Modulo[127] = {};
  Restore(PageId::E_Modular, file);
  EXPECT_EQ(conf, saved);
}

using AuxiliaryBlocks = BlockFixture;

TEST_F(AuxiliaryBlocks, InputsGoOutWhereAModelHasThem) {
  for (const auto& [mode, code] : {std::pair{"1", 6}, {"2", 6}, {"0", 0}, {"1", 6}}) {
    Receive(std::string("AUX,2,P,V,") + mode + ",,0,0,10,100");
    EXPECT_EQ(conf.Aux[2].INTERFAZ, code) << mode;
  }
  EXPECT_EQ(conf.Aux[2].FE, 10);
  EXPECT_EQ(conf.Aux[2].EqFE, 100);
  Receive("AUX.ALM,0,3,Texto,1,2,3,0,86400,127,1,4,6");
  Receive("AUX.ACT,0,3,1,2,3");
  EXPECT_TRUE(Statements(PageId::E_Aux).empty());
  profile.AuxCount = 3;
  const auto sent = Statements(PageId::E_Aux);
  ASSERT_EQ(sent.size(), 15U);
  EXPECT_EQ(sent[0], "DISAUX0");
  EXPECT_EQ(sent[4],
            "+ALMAUX0=Texto,INDEX= 3,MAX= 2,MIN= 1,HIST= 3,P= 6,EQ= 4,ACTHI= 1,ACTLO= 3,ACTNOM= 2");
  EXPECT_EQ(sent[10], "AUXCONF2=P,UNIT=V,BSVAL= 0,FSVAL= 10,BSUNIT= 0,FSUNIT= 100");
  EXPECT_EQ(sent[11], "-ALMAUX2,INDEX= 0");
  EXPECT_TRUE(FileText(PageId::E_Aux)
                  .starts_with("[AUX 0]\r\nNOMBRE=\r\nUNIDAD=\r\nINTERFAZ= 0\r\nIE= 0\r\nFE= 0\r\n"
                               "EqIE= 0\r\nEqFE= 0\r\nHABIL( 0)=False\r\n"));
}

TEST_F(AuxiliaryBlocks, OffMeasurementsAreReadAndNeverSent) {
  EXPECT_EQ(conf.Katodex, (ConfKatodex{1, 3, 0}));
  Receive("KTX,2,30,0.5");
  FindBlock(PageId::Katodex)->clear(conf, profile, translate);
  EXPECT_EQ(conf.Katodex, (ConfKatodex{2, 30, 0.5F})) << "emptying leaves it";
  EXPECT_TRUE(Statements(PageId::Katodex).empty());
  EXPECT_EQ(FileText(PageId::Katodex), "[KTX]\r\nOFFTIME= 2\r\nSAMPLERATE= 30\r\nAUX1RATIO= .5");
}

}  // namespace
}  // namespace ostrel
