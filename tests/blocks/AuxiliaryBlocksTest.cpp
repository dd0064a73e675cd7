#include "BlockFixture.h"

namespace ostrel {
namespace {

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
