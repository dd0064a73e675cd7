#include "BlockFixture.h"

namespace ostrel {
namespace {

using FlowBlocks = BlockFixture;
using MathBlock = BlockFixture;
using ProbeBlock = BlockFixture;

constexpr const char* kLevelKeys =
    "HABIL( 0)=False\r\nREST( 0)=False\r\nRENV( 0)=False\r\nSMS( 0)=False\r\nVOZ( 0)=False\r\n"
    "GPRS( 0)=False\r\nTEXTO( 0)=\r\nMINIMO( 0)= 0\r\nMAXIMO( 0)= 0\r\nHISTERESIS( 0)= 0\r\n"
    "PERSISTENCIA( 0)= 0\r\nSIEMPRE( 0)=True\r\nINICIO( 0)=0:00:00\r\nFINAL( 0)=0:00:00\r\n"
    "SEMANA( 0)= 127\r\nFLAG( 0)= 0\r\nACTHI( 0 0)= 0\r\nACTLO( 0 0)= 0\r\nACTNO( 0 0)= 0\r\n";

TEST_F(FlowBlocks, ATimeBaseOfZeroMeansOff) {
  Receive("CAUDAL,7,Entrada,m3/h,60,.1");
  const std::string head = "[CAUDAL 7] NOMBRE=Entrada; UNIDAD=m3/h; ";
  EXPECT_EQ(Changes(), head + "INTERFAZ= 6; TIMEBASE= 60; RATIO= .1; ");
  Receive("CAUDAL,7,Entrada,m3/h,0,.1");
  EXPECT_EQ(Changes(), head + "RATIO= .1; ");
  Receive("CAUDAL.ALM,7,3,Fuga,1,2,3,0,86400,127,1,9,4");
  Receive("CAUDAL.ACT,7,3,1,2,3");
  EXPECT_EQ(Changes(),
            head +
                "RATIO= .1; HABIL( 3)=True; SMS( 3)=True; TEXTO( 3)=Fuga; MINIMO( 3)= 1; "
                "MAXIMO( 3)= 2; HISTERESIS( 3)= 3; PERSISTENCIA( 3)= 4; FINAL( 3)=23:59:59; FLAG( "
                "3)= 9; ACTHI( 3 0)= 1; "
                "ACTLO( 3 0)= 3; ACTNO( 3 0)= 2; ");
  EXPECT_THROW(Receive("CAUDAL,10,x"), BoundFailure);
}

TEST_F(FlowBlocks, Statements) {
  Use("Ostrel S100");
  ConfCaudal& meter = conf.Caudal[0];
  meter.NOMBRE = "Entrada";
  meter.UNIDAD = "l/s";
  meter.TIMEBASE = 60;
  meter.TOTALRATIO = 0.1F;
  EXPECT_EQ(Statements(PageId::Caudal)[0], "FLOWCONF0=Entrada,UNIT=l/s,TB=0,RATIO=1");
  meter.INTERFAZ = 6;
  meter.RATIO = 0.05F;
  auto& [alarm, limits] = meter.ALARM[1];
  alarm.HABIL = kTrue;
  alarm.TEXTO = "Fuga";
  limits = {.MINIMO = 1, .MAXIMO = 2.5F, .HISTERESIS = 0.5F, .PERSISTENCIA = 4};
  alarm.ACTNO[0] = 80;
  info.Features = 0x100000;
  const auto statements = Statements(PageId::Caudal);
  EXPECT_EQ(statements.size(), 12U) << "two meters";
  EXPECT_EQ(std::vector(statements.begin(), statements.begin() + 4),
            (std::vector<std::string>{
                "FLOWCONF0=Entrada,UNIT=l/s,TB= 60,REGDAYMIN,RATIO=0.05", "TOTALRATIO0= .1",
                "-ALMFLOW0,INDEX= 0",
                "+ALMFLOW0=Fuga,INDEX= 1,MAX= 2.5,MIN= 1,HIST= .5,P= 4,NOSEND,EQ= 0,ACTHI=,ACTLO=,"
                "ACTNOM= 80"}));
}

TEST_F(FlowBlocks, SamplingIsSentToPressureLoggersAlone) {
  for (const auto& [model, statement] : {std::pair{"Tavro BQ", "SAMPLERATE=0"}, {"Tavro BP", ""}}) {
    Use(model);
    for (const auto& [reported, rate] : {std::pair{"1", 256}, {"0", 64}, {"2", 64}}) {
      Receive(std::string("SRATE,") + reported);
      EXPECT_EQ(conf.SAMPLERATE, rate) << reported;
    }
    info.Features = 0;
    EXPECT_FALSE(Statements(PageId::SampleRate)[0].starts_with("SAMPLERATE"));
    info.Features = 0x80000;
    EXPECT_EQ(Statements(PageId::SampleRate)[0].starts_with(statement), true) << model;
    Receive("TOTALRATIO,1,.5");
    const std::string file = FileText(PageId::SampleRate);
    EXPECT_TRUE(
        file.starts_with("[CAUDAL 0]\r\nTOTALRATIO= 1\r\n[CAUDAL 1]\r\nTOTALRATIO= .5\r\n"));
    EXPECT_EQ(file.ends_with("[GENERAL]\r\nSAMPLERATE= 64"), profile.IsBQ);
  }
}

TEST_F(MathBlock, LinesStatementsAndFile) {
  for (const auto& [reported, code] : {std::pair{"1", 6}, {"2", 6}, {"0", 0}, {"2", 0}}) {
    Receive(std::string("MATH,3,Balance,m3,Q0-Q1,") + reported);
    EXPECT_EQ(conf.Math[3].INTERFAZ, code) << reported;
  }
  Receive("MATH.ALM,3,0,Texto,1,2,3,0,86400,127,1,9,4");
  Receive("MATH.ACT,3,0,1,2,3");
  EXPECT_THROW(Receive("MATH.ALM,3,2,Texto"), BoundFailure);
  EXPECT_TRUE(Statements(PageId::E_Math).empty()) << "a firmware without math";
  info.Features = 0x40;
  conf.Math[2].INTERFAZ = 6;
  EXPECT_EQ(
      Statements(PageId::E_Math),
      (std::vector<std::string>{
          "DISMC0", "-ALMM0,INDEX= 0", "DISMC1", "-ALMM1,INDEX= 0",
          "MCCONF2=,UNIT=,EQ=", "-ALMM2,INDEX= 0", "DISMC3",
          "+ALMM3=Texto,INDEX= 0,MAX= 2,MIN= 1,HIST= 3,P= 4,EQ= 9,ACTHI= 1,ACTLO= 3,ACTNOM= 2"}));
  conf.Math[0].ECUACION = "A0*2";
  EXPECT_TRUE(FileText(PageId::Caudal)
                  .starts_with("[CAUDAL 0]\r\nNOMBRE=\r\nUNIDAD=\r\nINTERFAZ= 0\r\nTIMEBASE= 0\r\n"
                               "RATIO= 1\r\n" +
                               std::string(kLevelKeys)));
  EXPECT_TRUE(
      FileText(PageId::E_Math)
          .starts_with("[MATH 0]\r\nNOMBRE=\r\nUNIDAD=\r\nINTERFAZ= 0\r\nECUACION=A0*2\r\n" +
                       std::string(kLevelKeys)));
}

TEST_F(ProbeBlock, LinesStatementsAndFile) {
  EXPECT_TRUE(Statements(PageId::E_OneWire).empty()) << "a model without probes";
  Use("Ostrel KA1");
  EXPECT_EQ(Statements(PageId::E_OneWire)[0], "DISONEW0");
  conf.OneWire[0].INTERFAZ = 4;
  EXPECT_EQ(Statements(PageId::E_OneWire)[0], "ONEWCONF0=,UNIT=,ONEWADD=0.0,1WTEMP");
  const std::string zeros = ",000,000,000,000,000,000,000,000";
  for (const auto& [mode, code] : {std::pair{"1", 4}, {"3", 4}, {"2", 5}, {"0", 0}, {"2", 5}}) {
    Receive(std::string("ONEWIRE,1,Sonda,C,") + mode + zeros);
    EXPECT_EQ(conf.OneWire[1].INTERFAZ, code) << mode;
  }
  EXPECT_FALSE(conf.OneWire[1].ID);
  Receive("ONEWIRE,0,Sonda,C,1,0,0,0,0,0,0,0,0");
  EXPECT_TRUE(conf.OneWire[0].ID) << "three digits an octet tell of no identity";
  for (const char* halves : {"040,113,000,000,000,000,000,000", "000,000,000,000,000,000,000,011",
                             "040,113,000,000,000,000,000,011"}) {
    conf.OneWire[1].ID = Bool16(false);
    Receive(std::string("ONEWIRE,1,Sonda,C,2,") + halves);
    EXPECT_TRUE(conf.OneWire[1].ID) << halves;
  }
  Receive("ONEWIRE.ALM,1,0,Helada,1,2,3,0,86400,127,1,9,4");
  Receive("ONEWIRE.ACT,1,0,1,2,3");
  EXPECT_EQ(Statements(PageId::E_OneWire)[5],
            "ONEWCONF1=Sonda,UNIT=C,ONEWADD=040.113.000.000.000.000.000.011,1WHUM");
  EXPECT_EQ(Statements(PageId::E_OneWire)[6],
            "+ALMOW1=Helada,INDEX= 0,MAX= 2,MIN= 1,HIST= 3,P= 4,EQ= 9,ACTHI= 1,ACTLO= 3,ACTNOM= 2");
  DeviceConf sent = conf;
  sent.OneWire[1].ADDRESS1 = "40.113.0.0";
  sent.OneWire[1].ADDRESS2 = "0.0.0.12";
  const DeviceConf read = ReadAsSent(conf, sent, {profile, 0});
  EXPECT_EQ(read.OneWire[1].ADDRESS1, "40.113.0.0") << "the same octets";
  EXPECT_EQ(read.OneWire[1].ADDRESS2, "000.000.000.011") << "others";
  FindBlock(PageId::E_OneWire)->clear(conf, profile, translate);
  EXPECT_TRUE(FileText(PageId::E_OneWire)
                  .starts_with("[1WIRE 0]\r\nNOMBRE=\r\nUNIDAD=\r\nINTERFAZ= 0\r\nID=True\r\n"
                               "ADDRESS1=0\r\nADDRESS2=0\r\n"));
}

}  // namespace
}  // namespace ostrel
