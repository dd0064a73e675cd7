#include "BlockFixture.h"

namespace ostrel {
namespace {

/// What is odd about some kinds of record.
using OddRecords = BlockFixture;

TEST_F(OddRecords, ASectionOfAFileHoldsItsKeysInOrder) {
  Receive("ANALOG,3,Depósito,m,2,1,4,1,20,10.5");
  const std::string file = FileText(PageId::E_Analog);
  const std::string section =
      "[ANALOG 3]\r\nNOMBRE=Depósito\r\nUNIDAD=m\r\nINTERFAZ= 2\r\nIE= 4\r\nFE= 20\r\nEqIE= 1\r\n"
      "EqFE= 10.5\r\nGRUPO= 1\r\nHABIL( 0)=False\r\nREST( 0)=False\r\nRENV( 0)=False\r\n"
      "SMS( 0)=False\r\nVOZ( 0)=False\r\nGPRS( 0)=False\r\nTEXTO( 0)=\r\nMINIMO( 0)= 0\r\n"
      "MAXIMO( 0)= 0\r\nHISTERESIS( 0)= 0\r\nPERSISTENCIA( 0)= 0\r\nSIEMPRE( 0)=True\r\n"
      "INICIO( 0)=0:00:00\r\nFINAL( 0)=0:00:00\r\nSEMANA( 0)= 127\r\nFLAG( 0)= 0\r\n"
      "ACTHI( 0 0)= 0\r\nACTLO( 0 0)= 0\r\nACTNO( 0 0)= 0\r\nACTHI( 0 1)= 0\r\n";
  EXPECT_EQ(file.substr(file.find("[ANALOG 3]"), section.size()), section);
}

TEST_F(OddRecords, APressureLoggerStartsInBar) {
  translate = [](std::string_view text) { return "<" + std::string(text) + ">"; };
  Use("Tavro BQ");
  EXPECT_EQ(conf.Analog[0].UNIDAD, "<bar>");
  EXPECT_EQ(conf.Analog[0].EqFE, 10);
  EXPECT_EQ(conf.Analog[1].UNIDAD, "");
}

TEST_F(OddRecords, AnIdentityOfAProbeIsKeptAsItWasTyped) {
  Use("Ostrel KA1");
  EXPECT_EQ(Statements(PageId::E_OneWire)[0], "DISONEW0");
  for (const auto& [halves, isThere] :
       {std::pair{"000,000,000,000,000,000,000,000", false},
        {"0,0,0,0,0,0,0,0", true},  // three digits an octet tell of no identity
        {"040,113,000,000,000,000,000,000", true},
        {"000,000,000,000,000,000,000,011", true}}) {
    Receive(std::string("ONEWIRE,1,Sonda,C,2,") + halves);
    EXPECT_EQ(bool(conf.OneWire[1].ID), isThere) << halves;
  }
  DeviceConf sent = conf;
  sent.OneWire[1].ADDRESS1 = "0.0.0.12";
  sent.OneWire[1].ADDRESS2 = "0.0.0.11";
  const DeviceConf read = ReadAsSent(conf, sent, {profile, 0});
  EXPECT_EQ(read.OneWire[1].ADDRESS1, "000.000.000.000") << "others";
  EXPECT_EQ(read.OneWire[1].ADDRESS2, "0.0.0.11") << "the same octets";
}

TEST_F(OddRecords, InputsOfCathodicProtectionReachNoFile) {
  Use("Ostrel KA1");
  for (const auto& [mode, code] : {std::pair{"1", 6}, {"2", 6}, {"0", 0}, {"1", 6}}) {
    Receive(std::string("AUX,2,P,V,") + mode + ",,1,2,10,100");
    EXPECT_EQ(conf.Aux[2].INTERFAZ, code) << mode;
  }
  Receive("AUX.ALM,0,3,Texto,1,2,3,0,86400,127,1,4,6");
  Receive("AUX.ACT,0,3,1,2,3");
  profile.AuxCount = 3;
  const auto sent = Statements(PageId::E_Aux);
  ASSERT_EQ(sent.size(), 15U);
  EXPECT_EQ(sent[0], "DISAUX0");
  EXPECT_EQ(sent[4],
            "+ALMAUX0=Texto,INDEX= 3,MAX= 2,MIN= 1,HIST= 3,P= 6,EQ= "
            "4,ACTHI= 1,ACTLO= 3,ACTNOM= 2");
  EXPECT_EQ(sent[10], "AUXCONF2=P,UNIT=V,BSVAL= 1,FSVAL= 10,BSUNIT= 2,FSUNIT= 100");
  EXPECT_EQ(conf.Katodex, (ConfKatodex{1, 3, 0}));
  Receive("KTX,2,30,0.5");
  FindBlock(PageId::Katodex)->clear(conf, profile, translate);
  EXPECT_EQ(conf.Katodex, (ConfKatodex{2, 30, 0.5F})) << "emptying leaves it";
  EXPECT_TRUE(Statements(PageId::Katodex).empty());
  EXPECT_EQ(FileText(PageId::Katodex), "[KTX]\r\nOFFTIME= 2\r\nSAMPLERATE= 30\r\nAUX1RATIO= .5");
}

TEST_F(OddRecords, ATimerInAFileMayLackKeys) {
  Restore(PageId::WTimer, "[WTIMER 2]\r\nHABIL=true\r\nINICIO=99:00\r\nACT( 3)= 4");
  EXPECT_EQ(conf.WTimer[2].HABIL, kFalse);
  EXPECT_EQ(conf.WTimer[2].INICIO, TimeOfDay{});
  EXPECT_EQ(conf.WTimer[2].SEMANA, 0) << "a missing key is an empty one";
  EXPECT_EQ(conf.WTimer[2].ACT[3], 4);
}

TEST_F(OddRecords, ALongPeriodEndsTheMakingOfAnUpload) {
  const auto fault = [&](std::int16_t days) {
    conf.LTimer[5] = {kTrue, days, {}};
    return ComposeUpload(conf, {profile, 0}).Fault();
  };
  EXPECT_TRUE(fault(24'855).Ok());
  for (const auto days : std::vector<std::int16_t>{24'856, 32'767, -24'856}) {
    EXPECT_EQ(fault(days).kind, LinkFault::Kind::PeriodTooLong) << days;
    EXPECT_EQ(fault(days).number, 5);
  }
  conf.LTimer[5].HABIL = kFalse;
  EXPECT_TRUE(ComposeUpload(conf, {profile, 0}).Fault().Ok());
}

class BusBlocks : public BlockFixture {
 protected:
  BusBlocks() { Use("Ostrel VR200"); }
};

TEST_F(BusBlocks, AFileWithoutARoleIsOfAMasterWithoutAnAddress) {
  EXPECT_EQ(conf.ModbusBus, (ConfModbusBus{1200, kTrue, 1}));
  Restore(PageId::CONF_MODBUS, "[MODBUS]\r\nBAUD= 19200\r\nSLAVE_ADDRESS= 9");
  EXPECT_EQ(conf.ModbusBus, (ConfModbusBus{19'200, kTrue, 0}));
  Restore(PageId::CONF_MODBUS, "[MODBUS]\r\nMASTER=False\r\nSLAVE_ADDRESS= 9");
  EXPECT_EQ(conf.ModbusBus, (ConfModbusBus{0, kFalse, 9}));
}

TEST_F(BusBlocks, AnAnalogChannelIsSentWithItsMultiplier) {
  constexpr std::int32_t kConstants = 0x20;
  ConfModbus& channel = conf.Modbus[5];
  EXPECT_EQ(Statements(PageId::E_MODBUS)[10], "DISMB5");
  channel.MULT = 0.25F;
  for (const auto& [features, isAnalog, ratio] :
       {std::tuple{0, kFalse, "0.25"}, {kConstants, kFalse, "0"}, {kConstants, kTrue, "0.25"}}) {
    info.Features = features;
    channel.ANALOG_MODE = isAnalog;
    EXPECT_TRUE(Statements(PageId::E_MODBUS)[10].ends_with(std::string(",RATIO=") + ratio));
  }
}

TEST_F(BusBlocks, AReadingTakesTheFormOfWhatWasSent) {
  constexpr std::int32_t kConstants = 0x20;
  ConfModbus& sent = conf.Modbus[6];
  sent.NOMBRE = "Bomba";
  sent.MULT = 5;
  sent.MASCARA = 4;
  DeviceConf read = conf;
  read.Modbus[6].MULT = 0;
  const auto taken = [&](std::int32_t features) {
    return ReadAsSent(read, conf, {profile, features}).Modbus[6];
  };
  EXPECT_EQ(taken(kConstants), sent) << "a digital channel is reported without a multiplier";
  EXPECT_EQ(taken(0).MULT, 0) << "without the constant it is sent all the same";
  sent.ANALOG_MODE = kTrue;
  EXPECT_EQ(taken(kConstants).MULT, 0);
  read.Modbus[6].MASCARA = 0;
  read.Modbus[6].NOMBRE = "Pozo";
  EXPECT_EQ(taken(kConstants).MASCARA, 0);
  EXPECT_EQ(taken(0).MASCARA, 4) << "a mask that the firmware does not know";
  EXPECT_EQ(taken(kConstants).NOMBRE, "Pozo");
}

TEST_F(BusBlocks, ARangeThatCoversAllIsReadAsAlways) {
  ValidityRange& alarm = conf.Modbus[2].ALARM[0].common.valid;
  ValidityRange& timer = conf.CTimer[2].valid;
  DeviceConf read = conf;
  read.Modbus[2].ALARM[0].common.valid.SIEMPRE = read.CTimer[2].valid.SIEMPRE = kTrue;
  for (const auto& [stop, days, same] :
       {std::tuple{86'399, 127, true}, {86'399, 126, false}, {86'398, 127, false}}) {
    alarm = timer = {kFalse, {}, {stop}, static_cast<std::uint8_t>(days)};
    const DeviceConf taken = ReadAsSent(read, conf, {profile, 0});
    EXPECT_EQ(!taken.Modbus[2].ALARM[0].common.valid.SIEMPRE, same) << stop << ' ' << days;
    EXPECT_EQ(!taken.CTimer[2].valid.SIEMPRE, same) << stop << ' ' << days;
  }
}

TEST_F(BusBlocks, AnEarlierMarkOf32BitsLeavesTheSize) {
  for (const int c : {0, 9}) conf.Modbus[c].TYPE = 2;
  const auto file = [](const std::string& number, const std::string& mark) {
    return "[MODBUS" + number + "]\r\nSIZE32=" + mark + "\r\nTYPE= 1\r\n";
  };
  Restore(PageId::E_MODBUS, file(" 0", "True") + file(" 9", "True") + file(" 10", "False"));
  EXPECT_EQ(conf.Modbus[0].TYPE, 0) << "emptied before";
  EXPECT_EQ(conf.Modbus[9].TYPE, 2) << "not emptied";
  EXPECT_EQ(conf.Modbus[10].TYPE, 1);
}

class ExpansionBlocks : public BlockFixture {
 protected:
  ExpansionBlocks() { Use("Ostrel S100"); }
};

TEST_F(ExpansionBlocks, AnInputIsSentInTheModeInForce) {
  ConfModulo& input = conf.Modulo[95];
  for (auto* alarm : {&input.D.ALARM[0].common, &input.A.ALARM[0].common}) alarm->HABIL = kTrue;
  const auto sent = [&](int mode) {
    input.MODO = static_cast<std::int16_t>(mode);
    const auto all = Statements(PageId::E_Modular);
    return std::vector(all.begin() + 95, all.end());
  };
  EXPECT_EQ(sent(kModeOff), std::vector<std::string>{"DISEXPINPUT95"}) << "no alarm statement";
  EXPECT_EQ(sent(kModeFlow)[1], "-ALMEXPINPUTQ95,INDEX= 0");
  EXPECT_TRUE(sent(5).empty()) << "there is no such mode";
  sent(kModeAnalog);
  std::string seen;
  VisitAlarms(conf, {profile, kEveryFeature},
              [&](const AlarmPlace& place, const AlarmBlock& alarm) {
                if (alarm.HABIL) seen += SectionName(*place.section, place.channel) + ";";
              });
  EXPECT_EQ(seen, "MINPUT.A 95;");
}

}  // namespace
}  // namespace ostrel
