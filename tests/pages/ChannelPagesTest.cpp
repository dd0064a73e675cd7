#include "PageFixture.h"
#include "pages/inputs/E_Analog.h"
#include "pages/inputs/Flags.h"
#include "pages/inputs/Grupos.h"

namespace ostrel {
namespace {

class ChannelPages : public PageFixture {
 protected:
  ChannelPages() { SelectModel("Tavro BP"); }

  E_Analog analog{context};
  Grupos groups{context};
  Flags flags{context};
};

TEST_F(ChannelPages, AnalogPageAllowsWhatTheModelHas) {
  struct Case {
    const char* model;
    const char* enabled;  // of Press, 4_20, 0_5, 0_10, IE, Grupo
    const char* shown;    // of Label11, Jumper, Asterisk, Notice
  };
  Start(analog);
  for (const Case& c : {Case{"Tavro BP", "011111", "1111"}, Case{"Ostrel VR200", "010111", "1100"},
                        Case{"Ostrel S100", "010011", "0000"}, Case{"Tavro BQ", "100000", "0000"},
                        Case{"Ostrel KA1", "000011", "0000"}}) {
    SelectModel(c.model);
    analog.Form_Activate();
    EXPECT_EQ(Enabled(analog, {"Int_NoHabil", "Int_Press", "Int_4_20", "Int_0_5", "Int_0_10", "IE",
                               "Grupo"}),
              std::string("1") + c.enabled)
        << c.model;
    EXPECT_EQ(Shown(analog, {"Label11", "Jumper", "Asterisk", "Notice"}), c.shown) << c.model;
  }
}

TEST_F(ChannelPages, JumperPicturesFollowInterfaceAndModel) {
  struct Case {
    const char* model;
    const char* option;
    int image;
  };
  for (const Case& c : {Case{"Tavro BP", "Int_0_5", 1}, Case{"Tavro BP", "Int_0_10", 2},
                        Case{"Tavro BP", "Int_4_20", 3}, Case{"Ostrel VR200", "Int_0_5", 1},
                        Case{"Ostrel VR200", "Int_0_10", 4}, Case{"Ostrel VR200", "Int_4_20", 5},
                        Case{"Ostrel S100", "Int_4_20", 9}, Case{"Tavro BP", "Int_Press", 9}}) {
    SelectModel(c.model);
    analog.Clear();
    auto& jumper = On<Picture>(analog, "Jumper");
    jumper.SetImage(9);
    Choose(analog, c.option);
    EXPECT_EQ(jumper.Image(), c.image) << c.model << c.option;
  }
}

TEST_F(ChannelPages, AnOddVoltageStaysUntilTheRowReplacesIt) {
  Start(groups);
  PutFile("[GRUPO 1]\r\nSALIDA= 2\r\nVOLTAJE= 5\r\nPERIOD= 100");
  groups.RestoreConf();
  EXPECT_EQ(conf.Grupo[1], (ConfGrupo{2, 5, 100}));
  groups.Form_Deactivate();
  EXPECT_EQ(conf.Grupo[1], (ConfGrupo{2, 0, 100}));
  On<TextBox>(groups, "Period(1)").Type("1.5");
  On<ComboBox>(groups, "ComboTension(1)").SetPosition(2);
  groups.SavePage();
  EXPECT_EQ(On<TextBox>(groups, "Period(1)").face.Colour(), BackColour::Red);
  EXPECT_EQ(conf.Grupo[1], (ConfGrupo{2, 24, 1.5F}));
}

TEST_F(ChannelPages, FlagsHaveOneConfigurationAndNoCondition) {
  Start(flags);
  for (const auto* none : {"FlagCombo", "BotonNormal"})
    EXPECT_FALSE(flags.GetForm().Contains(none));
  for (const char* config : {"Config1", "Config2", "Config3"}) {
    auto& option = On<OptionButton>(flags, config);
    EXPECT_FALSE(option.face.Visible());
    option.SetSelected(true);
    EXPECT_EQ(flags.CurrentConfig(), 0);
    EXPECT_TRUE(On<OptionButton>(flags, "Config0").Selected()) << "what is shown";
  }
}

}  // namespace
}  // namespace ostrel
