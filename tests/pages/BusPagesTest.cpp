#include <gtest/gtest.h>

#include "PageFixture.h"
#include "pages/bus/CONF_MODBUS.h"
#include "pages/bus/E_MODBUS.h"
#include "pages/inputs/E_Aux.h"
#include "pages/inputs/Katodex.h"

namespace ostrel {
namespace {

class BusPages : public PageFixture {
 protected:
  BusPages() { SelectModel("Ostrel VR200"); }

  void Start(Page& page) {
    page.Form_Load();
    page.Clear();
  }
  /// '1' for each control that is enabled.
  static std::string Enabled(Page& page, std::initializer_list<const char*> names) {
    std::string enabled;
    for (const char* name : names) enabled += FaceOf(page.GetForm()[name]).Enabled() ? '1' : '0';
    return enabled;
  }
  std::string Caption(const char* label) {
    return channel.GetForm().Get<Label>(label).face.Caption();
  }
  void Tick() { loop.RunFor(std::chrono::seconds(1)); }

  CONF_MODBUS bus{context};
  E_MODBUS channel{context};
  E_Aux aux{context};
  Katodex katodex{context};
};

TEST_F(BusPages, TheRoleDecidesOnTheAddress) {
  Start(bus);
  Form& form = bus.GetForm();
  EXPECT_EQ(form.Get<ComboBox>("ComboVelocidad").Text(), "1200");
  EXPECT_EQ(Enabled(bus, {"LabelAddress", "SlaveAddress"}), "00");
  EXPECT_FALSE(form.Get<Label>("Line1").face.Visible());
  form.Get<OptionButton>("SlaveOpt").SetSelected(true);
  EXPECT_EQ(Enabled(bus, {"LabelAddress", "SlaveAddress"}), "11");
  EXPECT_TRUE(form.Get<Label>("Line1").face.Visible());
  form.Get<TextBox>("SlaveAddress").Type("7");
  form.Get<ComboBox>("ComboVelocidad").SetPosition(6);
  bus.Form_Deactivate();
  EXPECT_EQ(conf.ModbusBus, (ConfModbusBus{57'600, kFalse, 7}));
  conf.ModbusBus.BAUD = 300;
  bus.LoadData();
  EXPECT_EQ(form.Get<ComboBox>("ComboVelocidad").Text(), "57600") << "left as it was";
}

TEST_F(BusPages, AFirmwareWithoutSlaveModeLeavesTheMaster) {
  Start(bus);
  Form& form = bus.GetForm();
  const auto& warning = form.Get<Label>("WarningText").face;
  form.Get<OptionButton>("SlaveOpt").SetSelected(true);
  Tick();
  EXPECT_FALSE(warning.Visible());
  Connected = true;
  Tick();
  EXPECT_TRUE(warning.Visible());
  EXPECT_EQ(warning.Caption(),
            "La version de firmware del Ostrel VR200 no soporta el modo esclavo en MODBUS.");
  EXPECT_TRUE(form.Get<OptionButton>("MasterOpt").Selected());
  EXPECT_EQ(Enabled(bus, {"SlaveAddress", "MasterOpt", "SlaveOpt"}), "000");
  info.Features = 0x2000;
  Tick();
  EXPECT_FALSE(warning.Visible());
  EXPECT_EQ(Enabled(bus, {"SlaveAddress", "MasterOpt", "SlaveOpt"}), "011");
}

TEST_F(BusPages, AModbusChannelIsAnalogOrDigital) {
  Start(channel);
  EXPECT_EQ(channel.GetForm().Title(), "Configuracion canal MODBUS  0");
  const auto state = [&] {
    return Enabled(channel, {"LabelMult", "Multiplicador", "LabelPlus", "Constante", "LabelMask",
                             "Mascara", "HelpBut", "CheckNegar"}) +
           Caption("LabelMin") + Caption("LabelMax");
  };
  EXPECT_EQ(state(), "00001111Rearme:Persisten:") << "a fresh channel is digital";
  conf.Modbus[0].ANALOG_MODE = kTrue;
  channel.LoadData();
  EXPECT_EQ(state(), "11110000Minimo:Maximo:");
  channel.GetForm().Get<OptionButton>("OptDigital").SetSelected(true);
  EXPECT_EQ(state(), "00001111Rearme:Persisten:");
  channel.SavePage();
  EXPECT_EQ(conf.Modbus[0].ANALOG_MODE, kFalse);
  bool isAsked = false;
  context.showMaskCalculator = [&] { isAsked = true; };
  channel.GetForm().Get<Button>("HelpBut").Click();
  EXPECT_TRUE(isAsked);
}

TEST_F(BusPages, ASlaveOfTheBusPollsNothing) {
  Start(channel);
  conf.Modbus[1].TYPE = 5;
  channel.ChangeIndex(1);
  for (const auto* size : {"Size16Opt", "Size32Opt", "SizeFloatOpt"})
    EXPECT_FALSE(channel.GetForm().Get<OptionButton>(size).Selected());
  channel.GetForm().Get<TextBox>("SlaveAddres").Type("9");
  const std::initializer_list<const char*> polled{"Label8",    "SlaveAddres", "Label9",
                                                  "RegAddres", "Size16Opt",   "SizeFloatOpt"};
  conf.ModbusBus.MASTER = kTrue;
  Tick();
  EXPECT_EQ(Enabled(channel, polled), "111111");
  conf.ModbusBus.MASTER = kFalse;
  Tick();
  EXPECT_EQ(Enabled(channel, polled), "000000");
  channel.Form_Deactivate();
  EXPECT_EQ(conf.Modbus[1].SLAVE, 9);
  EXPECT_EQ(conf.Modbus[1].TYPE, 5) << "no option stands for it";
}

TEST_F(BusPages, AuxiliaryInputsNameTheirRange) {
  Start(aux);
  const char* const ends[] = {"0 (15VCC)", "1 (150mVCC)", "2 (100VCA)", "3 (100VCC)"};
  for (std::int16_t i = 0; i < 4; ++i) {
    aux.ChangeIndex(i);
    EXPECT_EQ(aux.GetForm().Title(), std::string("Configuracion entrada auxiliar  ") + ends[i]);
  }
  aux.GetForm().Get<OptionButton>("Int_Habil").SetSelected(true);
  aux.ChangeIndex(0);
  EXPECT_EQ(conf.Aux[3].INTERFAZ, 6);
  EXPECT_TRUE(aux.GetForm().Get<OptionButton>("Int_NoHabil").Selected());
  EXPECT_FALSE(FaceOf(aux.GetForm()["Help"]).Visible()) << "it has no help page";
}

TEST_F(BusPages, OffMeasurementsAreCorrectedToTheirRows) {
  Start(katodex);
  Form& form = katodex.GetForm();
  for (const auto& [read, shown] :
       {std::pair{ConfKatodex{7, 4, .5F}, ConfKatodex{1, 3, .5F}}, {{2, 30, 1}, {2, 30, 1}}}) {
    conf.Katodex = read;
    katodex.LoadData();
    EXPECT_EQ(conf.Katodex, shown);
  }
  katodex.Clear();
  EXPECT_EQ(form.Get<ComboBox>("ComboT_OFF").Text() + form.Get<ComboBox>("ComboSamples").Text(),
            "13");
  EXPECT_EQ(conf.Katodex, (ConfKatodex{2, 30, 1})) << "until the next commit";
  katodex.Form_Deactivate();
  EXPECT_EQ(conf.Katodex, (ConfKatodex{1, 3, 1}));
}

}  // namespace
}  // namespace ostrel
