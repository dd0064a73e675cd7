#include "BlockFixture.h"

namespace ostrel {
namespace {

constexpr std::int32_t kConstants = 0x20;
constexpr std::int32_t kFormats = 0x200;
constexpr std::int32_t kSlaveMode = 0x2000;

class BusBlocks : public BlockFixture {
 protected:
  BusBlocks() { Use("Ostrel VR200"); }

  std::string Channel(int channel) {
    return Statements(PageId::E_MODBUS).at(static_cast<std::size_t>(channel) * 2);
  }
};

TEST_F(BusBlocks, BusByFirmware) {
  EXPECT_EQ(conf.ModbusBus, (ConfModbusBus{1200, kTrue, 1}));
  Receive("MODBUS.PRM,9600,1,7");
  EXPECT_EQ(conf.ModbusBus, (ConfModbusBus{9600, kTrue, 1})) << "no slave mode, nothing more read";
  EXPECT_EQ(Statements(PageId::CONF_MODBUS), (std::vector<std::string>{"BAUD= 9600"}));
  info.Features = kSlaveMode;
  for (const auto& [role, isMaster] : {std::pair{"0", true}, {"2", false}, {"1", false}}) {
    Receive(std::string("MODBUS.PRM,9600,") + role + ",7");
    EXPECT_EQ(bool(conf.ModbusBus.MASTER), isMaster) << role;
  }
  EXPECT_EQ(Statements(PageId::CONF_MODBUS),
            (std::vector<std::string>{"BAUD= 9600", "MBSLAVE=1", "MBSLAVEADD= 7"}));
  conf.ModbusBus.MASTER = kTrue;
  EXPECT_EQ(Statements(PageId::CONF_MODBUS)[1], "MBSLAVE=0");
  EXPECT_EQ(FileText(PageId::CONF_MODBUS),
            "[MODBUS]\r\nBAUD= 9600\r\nMASTER=True\r\nSLAVE_ADDRESS= 7");
  profile.ModbusCount = 0;
  EXPECT_TRUE(Statements(PageId::CONF_MODBUS).empty());
  EXPECT_TRUE(Statements(PageId::E_MODBUS).empty());
}

TEST_F(BusBlocks, AFileWithoutARoleIsOfAMasterWithoutAnAddress) {
  Restore(PageId::CONF_MODBUS, "[MODBUS]\r\nBAUD= 19200\r\nSLAVE_ADDRESS= 9");
  EXPECT_EQ(conf.ModbusBus, (ConfModbusBus{19'200, kTrue, 0}));
  Restore(PageId::CONF_MODBUS, "[MODBUS]\r\nMASTER=False\r\nSLAVE_ADDRESS= 9");
  EXPECT_EQ(conf.ModbusBus, (ConfModbusBus{0, kFalse, 9}));
}

TEST_F(BusBlocks, ChannelLinesByFirmware) {
  const std::string line = "MODBUS,31,Bomba,kWh,3,70000,0.5,-2,12,1,2";
  Receive(line);
  const std::string head =
      "[MODBUS 31] NOMBRE=Bomba; UNIDAD=kWh; SLAVE= 3; REGADD= 70000; MULT= .5; "
      "ANALOG_MODE=True; ";
  EXPECT_EQ(Changes(), head);
  info.Features = kFormats;
  Receive(line);
  EXPECT_EQ(Changes(), head + "TYPE= 2; ") << "behind fields that this firmware leaves";
  info.Features = kConstants;
  Receive(line);
  EXPECT_EQ(Changes(), head + "CONSTANTE=-2; MASCARA= 12; NEGATE=True; ")
      << "no size where the firmware has none";
  for (const auto& [mult, analog] : {std::pair{"0.1", true}, {"0", false}, {"-1", false}}) {
    Receive(std::string("MODBUS,0,N,U,1,2,") + mult);
    EXPECT_EQ(bool(conf.Modbus[0].ANALOG_MODE), analog) << mult;
  }
}

TEST_F(BusBlocks, AlarmLines) {
  for (const auto& [features, persistence] : {std::pair{0, 0.F}, {kConstants, 6.F}}) {
    info.Features = features;
    Receive("MODBUS.ALM,5,0,Texto,1,2,3,0,86400,127,1,4,6");
    EXPECT_EQ(conf.Modbus[5].ALARM[0].thresholds, (RegisterThresholds{1, 2, 3, persistence}));
  }
  EXPECT_EQ(conf.Modbus[5].ALARM[0].common.FLAG, 4);
  Receive("MODBUS.ACT,5,0,1,2,3,4,5,6");
  const AlarmBlock& alarm = conf.Modbus[5].ALARM[0].common;
  EXPECT_EQ(std::vector({alarm.ACTHI[0], alarm.ACTNO[0], alarm.ACTLO[0], alarm.ACTLO[1]}),
            (std::vector<std::int16_t>{1, 2, 3, 6}));
  EXPECT_EQ(Statements(PageId::E_MODBUS)[11],
            "+ALMMB5=Texto,INDEX= 0,MAX= 2,MIN= 1,HIST= 3,P= 6,EQ= 4,ACTHI= 1 4,ACTLO= 3 6,"
            "ACTNOM= 2 5");
  info.Features = 0;
  EXPECT_EQ(Statements(PageId::E_MODBUS)[11].find(",P="), std::string::npos);
  EXPECT_THROW(Receive("MODBUS.ALM,5,2,Texto"), BoundFailure);
  EXPECT_THROW(Receive("MODBUS,33,Nombre"), BoundFailure);
}

TEST_F(BusBlocks, ChannelStatements) {
  ConfModbus& channel = conf.Modbus[5];
  EXPECT_EQ(Channel(5), "DISMB5");
  EXPECT_EQ(Statements(PageId::E_MODBUS)[11], "-ALMMB5,INDEX= 0");
  EXPECT_EQ(Channel(0), "MBCONF0=,UNIT=,SLAVE= 0,REGADD= 0,RATIO=1") << "as emptying leaves it";
  channel.NOMBRE = "Nivel";
  channel.UNIDAD = "m";
  channel.SLAVE = 2;
  channel.REGADD = 100;
  channel.MASCARA = 4;
  channel.CONSTANTE = 0.5F;
  channel.NEGATE = kTrue;
  const std::string head = "MBCONF5=Nivel,UNIT=m,SLAVE= 2,REGADD= 100";
  EXPECT_EQ(Channel(5), head + ",RATIO=0");
  info.Features = kConstants | kFormats;
  channel.MULT = 0.25F;
  EXPECT_EQ(Channel(5), head + ",CONST= .5,MASK= 4,NEGATE,RATIO=0") << "digital";
  channel.ANALOG_MODE = kTrue;
  channel.NEGATE = kFalse;
  for (const auto& [type, token] : {std::pair{0, ""}, {1, ",32BIT"}, {2, ",FLOAT"}, {3, ""}}) {
    channel.TYPE = static_cast<std::int16_t>(type);
    EXPECT_EQ(Channel(5), head + token + ",CONST= .5,MASK= 4,RATIO=0.25");
  }
}

TEST_F(BusBlocks, AReadingTakesTheFormOfWhatWasSent) {
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
  EXPECT_TRUE(
      FileText(PageId::E_MODBUS)
          .starts_with("[MODBUS 0]\r\nNOMBRE=\r\nUNIDAD=\r\nSLAVE= 0\r\nREGADD= 0\r\nMULT= 0\r\n"
                       "ANALOG_MODE=False\r\nCONSTANTE= 0\r\nMASCARA= 0\r\nNEGATE=False\r\n"
                       "TYPE= 0\r\nHABIL( 0)=False\r\n"));
}

}  // namespace
}  // namespace ostrel
