#include "PageFixture.h"
#include "pages/bus/CONF_MODBUS.h"
#include "pages/bus/E_MODBUS.h"

namespace ostrel {
namespace {

class BusPages : public PageFixture {
 protected:
  BusPages() {
    SelectModel("Ostrel VR200");
    Start(bus);
    Start(channel);
  }

  CONF_MODBUS bus{context};
  E_MODBUS channel{context};
};

TEST_F(BusPages, TheRoleDecidesOnTheAddress) {
  auto& rate = On<ComboBox>(bus, "ComboVelocidad");
  EXPECT_EQ(rate.Text(), "1200");
  EXPECT_EQ(Enabled(bus, {"LabelAddress", "SlaveAddress"}) + Shown(bus, {"Line1"}), "000");
  Choose(bus, "SlaveOpt");
  EXPECT_EQ(Enabled(bus, {"LabelAddress", "SlaveAddress"}) + Shown(bus, {"Line1"}), "111");
  On<TextBox>(bus, "SlaveAddress").Type("7");
  rate.SetPosition(6);
  bus.Form_Deactivate();
  EXPECT_EQ(conf.ModbusBus, (ConfModbusBus{57'600, kFalse, 7}));
  conf.ModbusBus.BAUD = 300;
  bus.LoadData();
  EXPECT_EQ(rate.Text(), "57600") << "left as it was";
}

TEST_F(BusPages, AFirmwareWithoutSlaveModeLeavesTheMaster) {
  Choose(bus, "SlaveOpt");
  Connected = true;
  Tick();
  EXPECT_TRUE(On<OptionButton>(bus, "MasterOpt").Selected());
  EXPECT_EQ(Enabled(bus, {"SlaveAddress", "MasterOpt", "SlaveOpt"}), "000");
  info.Features = 0x2000;
  Tick();
  EXPECT_EQ(Enabled(bus, {"SlaveAddress", "MasterOpt", "SlaveOpt"}), "011");
}

TEST_F(BusPages, AModbusChannelIsAnalogOrDigital) {
  EXPECT_EQ(channel.GetForm().Title(), "Configuracion canal MODBUS  0");
  const auto state = [&] {
    return Enabled(channel, {"LabelMult", "Multiplicador", "LabelPlus", "Constante", "LabelMask",
                             "Mascara", "HelpBut", "CheckNegar"}) +
           Caption(channel, "LabelMin") + Caption(channel, "LabelMax");
  };
  EXPECT_EQ(state(), "00001111Rearme:Persisten:") << "a fresh channel is digital";
  conf.Modbus[0].ANALOG_MODE = kTrue;
  channel.LoadData();
  EXPECT_EQ(state(), "11110000Minimo:Maximo:");
  Choose(channel, "OptDigital");
  EXPECT_EQ(state(), "00001111Rearme:Persisten:");
  bool isAsked = false;
  context.showMaskCalculator = [&] { isAsked = true; };
  On<Button>(channel, "HelpBut").Click();
  EXPECT_TRUE(isAsked);
}

TEST_F(BusPages, ASlaveOfTheBusPollsNothing) {
  channel.ChangeIndex(1);
  On<TextBox>(channel, "SlaveAddres").Type("9");
  for (const auto& [master, polled] : {std::pair{kTrue, "111111"}, {kFalse, "000000"}}) {
    conf.ModbusBus.MASTER = master;
    Tick();
    EXPECT_EQ(Enabled(channel, {"Label8", "SlaveAddres", "Label9", "RegAddres", "Size16Opt",
                                "SizeFloatOpt"}),
              polled);
  }
  channel.Form_Deactivate();
  EXPECT_EQ(conf.Modbus[1].SLAVE, 9);
}

}  // namespace
}  // namespace ostrel
