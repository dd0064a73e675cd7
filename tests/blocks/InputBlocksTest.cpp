#include "BlockFixture.h"

namespace ostrel {
namespace {

using InputBlocks = BlockFixture;

TEST_F(InputBlocks, DigitalInputs) {
  for (const auto& [field, closed] :
       {std::pair{" 1", true}, {"-1", true}, {"0", false}, {"", false}}) {
    Receive(std::string("DIGITAL,8,Puerta,") + field);
    EXPECT_EQ(bool(conf.Digital[8].NC), closed) << field;
  }
  EXPECT_EQ(conf.Digital[8].NOMBRE, "Puerta");
  Receive("DIGITAL.ALM,8,2,Abierta,5.5,7,0,86400,127,3,9");
  const auto& [read, readLimits] = conf.Digital[8].ALARM[2];
  EXPECT_EQ(readLimits, (ContactThresholds{5.5F, 7}));
  EXPECT_TRUE(read.valid.SIEMPRE && read.SMS && read.VOZ);
  EXPECT_EQ(read.FLAG, 9);
  profile.DigitalCount = 2;
  conf.Digital[1].NOMBRE = "Bomba";
  conf.Digital[1].NC = kTrue;
  auto& [alarm, limits] = conf.Digital[1].ALARM[0];
  alarm.HABIL = alarm.SMS = kTrue;
  alarm.TEXTO = "Paro";
  limits = {.PERSIST = 5, .REARM = 0.5F};
  alarm.ACTHI[1] = 7;
  alarm.ACTLO[0] = 43;
  EXPECT_EQ(Statements(PageId::E_Digital)[5], "DINAME1=Bomba");
  info.Features = 0x80;
  EXPECT_EQ(
      Statements(PageId::E_Digital),
      (std::vector<std::string>{"DINAME0=", "-ALMD0,INDEX= 0", "-ALMD0,INDEX= 1", "-ALMD0,INDEX= 2",
                                "-ALMD0,INDEX= 3", "DINAME1=Bomba,NC",
                                "+ALMD1=Paro,INDEX= 0,PC= 5,PO= .5,EQ= 0,ACTCLOSE= 7,ACTOPEN= 43",
                                "-ALMD1,INDEX= 1", "-ALMD1,INDEX= 2", "-ALMD1,INDEX= 3"}));
  EXPECT_TRUE(FileText(PageId::E_Digital)
                  .starts_with("[DIGITAL 0]\r\nNOMBRE=\r\nNC=False\r\nHABIL( 0)=False\r\n"
                               "REST( 0)=False\r\n"));
}

TEST_F(InputBlocks, AnalogInputs) {
  for (const auto& [reported, code] :
       {std::pair{"1", 1}, {"2", 2}, {"3", 3}, {"4", 7}, {"5", 7}, {"0", 0}, {"7", 0}}) {
    Receive(std::string("ANALOG,3,Nivel,m,") + reported + ",2,4,0,20,10.5");
    EXPECT_EQ(conf.Analog[3].INTERFAZ, code) << reported;
  }
  EXPECT_EQ(Changes(), "[ANALOG 3] NOMBRE=Nivel; UNIDAD=m; IE= 4; FE= 20; EqFE= 10.5; GRUPO= 2; ");
  profile.AnalogCount = 1;
  ConfAnalog& input = conf.Analog[0];
  EXPECT_EQ(Statements(PageId::E_Analog)[0], "DISAI0");
  input.NOMBRE = "Depósito";
  input.UNIDAD = "m";
  input.IE = 4;
  input.FE = 20;
  input.EqIE = 1;
  input.EqFE = 5;
  input.GRUPO = 1;
  for (const auto& [code, token] :
       {std::pair{1, ",CURRENT"}, {2, ",5V"}, {3, ",10V"}, {7, ",PRESSURE"}, {5, ""}}) {
    input.INTERFAZ = static_cast<std::int16_t>(code);
    EXPECT_EQ(Statements(PageId::E_Analog)[0],
              std::string("AICONF0=Depósito,UNIT=m") + token +
                  ",BSVAL= 4,FSVAL= 20,BSUNIT= 1,FSUNIT= 5,GROUP= 1");
  }
  EXPECT_TRUE(FileText(PageId::E_Analog)
                  .starts_with("[ANALOG 0]\r\nNOMBRE=Depósito\r\nUNIDAD=m\r\nINTERFAZ= 5\r\n"
                               "IE= 4\r\nFE= 20\r\nEqIE= 1\r\nEqFE= 5\r\nGRUPO= 1\r\n"
                               "HABIL( 0)=False\r\n"));
}

TEST_F(InputBlocks, APressureLoggerStartsInBar) {
  translate = [](std::string_view text) { return "<" + std::string(text) + ">"; };
  Use("Tavro BQ");
  EXPECT_EQ(conf.Analog[0].UNIDAD, "<bar>");
  EXPECT_EQ(conf.Analog[0].EqFE, 10);
  EXPECT_EQ(conf.Analog[1].UNIDAD, "");
}

TEST_F(InputBlocks, GroupsAreSentForAsManyAsThereAreInputs) {
  Receive("GROUP,3,1,24,150");
  EXPECT_EQ(conf.Grupo[3], (ConfGrupo{1, 24, 150}));
  EXPECT_EQ(Statements(PageId::Grupos).at(3), "AGRP3= 1,T= 150,V= 24");
  for (const int count : {4, 2, 0}) {
    profile.AnalogCount = static_cast<std::int16_t>(count);
    EXPECT_EQ(Statements(PageId::Grupos).size(), std::size_t(count));
  }
  EXPECT_TRUE(
      FileText(PageId::Grupos).ends_with("[GRUPO 3]\r\nSALIDA= 1\r\nVOLTAJE= 24\r\nPERIOD= 150"));
}

TEST_F(InputBlocks, FlagsHaveOneConfigurationAndNoCondition) {
  Receive("FLAG.ALM,15,0,Texto,0,86400,127,8");
  Receive("FLAG.ACT,15,0,1,2");
  EXPECT_TRUE(Statements(PageId::Flags).empty());
  info.Features = 0x4;
  const auto statements = Statements(PageId::Flags);
  EXPECT_EQ(statements.size(), 16U);
  EXPECT_EQ(statements[0], "-ALMF0,INDEX= 0");
  EXPECT_EQ(statements[15], "+ALMF15=Texto,INDEX= 0,RESEND,NOSEND,ACTHI= 1,ACTLO= 2");
  const std::string file = FileText(PageId::Flags);
  EXPECT_TRUE(file.starts_with("[FLAG 0]\r\nHABIL( 0)=False\r\n"));
  for (const char* absent : {"FLAG(", "ACTNO(", "( 1)"})
    EXPECT_EQ(file.find(absent), std::string::npos) << absent;
}

}  // namespace
}  // namespace ostrel
