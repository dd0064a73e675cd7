#include <gmock/gmock.h>

#include "World.h"
#include "shell/compare/Comparison.h"
#include "shell/navigation/Navigation.h"
#include "shell/navigation/NavigationTree.h"

namespace ostrel {
namespace {

using testing::ElementsAre;

/// The tree as lines: a node's children stand behind it in brackets, numbered ones counted only.
std::string Outline(std::string_view model) {
  TargetProfile profile;
  SelectTarget(profile, model);
  std::string outline;
  std::map<std::string, int> numbered;
  const auto nodes = BuildNavigationTree(
      profile, [](std::string_view text) { return "<" + std::string(text) + ">"; });
  for (const TreeNode& node : nodes) {
    const bool isNumbered = node.text.find_first_not_of("0123456789") == std::string::npos;
    if (isNumbered && node.key.ends_with("_" + node.text))
      ++numbered[node.parent];
    else
      outline += node.parent + "/" + node.key + "=" + node.text + " ";
  }
  for (const auto& [parent, count] : numbered)
    outline += parent + ":" + std::to_string(count) + " ";
  return outline;
}

std::string Timers(const std::string& key, const std::string& text) {
  return "Timer/" + key + "=<" + text + "> " + key + "/" + key + "0_3=0-3 " + key + "/" + key +
         "4_7=4-7 " + key + "/" + key + "8_11=8-11 " + key + "/" + key + "12_15=12-15 ";
}

TEST(NavigationTree, HasTheNodesOfEachModelInOrder) {
  const std::string head =
      "/Tavro=<Dispositivo> Tavro/General=<General> Tavro/Timer=<Temporizadores> " +
      Timers("CTimer", "Ciclicos") + Timers("WTimer", "Semanales") + Timers("MTimer", "Mensuales") +
      Timers("LTimer", "Largos");
  const std::string groups = "Tavro/Grupos=Grupos ", analog = "Tavro/E_Analog=<E.Analogicas> ",
                    probes = "Tavro/E_OneWire=<Sondas> ",
                    digital = "Tavro/E_Digital=<E.Digitales> ",
                    flow = "Tavro/Caudal=<Caudalimetros> ", modules = "Tavro/Modulo=<Expansiones> ",
                    mains = "E_Digital/E_Digital_8=<8 (Fallo red)> ";
  const std::string math = "Tavro/E_Math=<C.Matematicos> Tavro/Flags=<Flags> ";
  const std::string modbus = "Tavro/MODBUS=<MODBUS> ";
  const std::string tail =
      "Tavro/Aut_Voz=<Autorizados Voz> Tavro/GPRS=GPRS Tavro/Macros=<Macros> "
      "Tavro/T_Real=<T.Real> Tavro/Firmware=Firmware Tavro/Terminal=Terminal ";
  EXPECT_EQ(Outline("Ostrel KA1"), head + probes + digital + flow + math + tail +
                                       "Caudal:8 E_Digital:8 E_Math:4 E_OneWire:4 Flags:16 ");
  EXPECT_EQ(Outline("Ostrel KA2"), head + probes + digital + mains + flow + math + tail +
                                       "Caudal:8 E_Digital:8 E_Math:4 E_OneWire:4 Flags:16 ");
  EXPECT_EQ(Outline("Ostrel VR200"),
            head + analog + digital + flow + math + modbus + tail +
                "Caudal:8 E_Analog:4 E_Digital:8 E_Math:4 Flags:16 MODBUS:32 ");
  EXPECT_EQ(Outline("Ostrel S100"),
            head + analog + digital + flow + modules + math + tail +
                "Caudal:2 E_Analog:2 E_Digital:2 E_Math:4 Flags:16 Modulo:96 ");
  EXPECT_EQ(Outline("Tavro BP"), head + groups + analog + digital + flow + math + tail +
                                     "Caudal:8 E_Analog:4 E_Digital:8 E_Math:4 Flags:16 ");
  EXPECT_EQ(Outline("Tavro BQ"), head + analog + digital + flow + math + tail +
                                     "Caudal:2 E_Analog:1 E_Digital:4 E_Math:4 Flags:16 ");
}

std::optional<NodeTarget> Target(std::string_view key, std::string_view model = "Ostrel VR200",
                                 bool universal = true) {
  TargetProfile profile;
  SelectTarget(profile, model);
  return FindNodeTarget(key, profile, universal);
}

TEST(Navigation, KnowsWhereEachKeyLeads) {
  using enum PageId;
  const std::optional<std::int16_t> none;
  constexpr int kNone = -1;
  const std::tuple<const char*, PageId, int> pages[] = {
      {"General", General, 0},        {"Grupos", Grupos, kNone},     {"E_Analog_3", E_Analog, 3},
      {"E_OneWire_0", E_OneWire, 0},  {"E_Math_2", E_Math, 2},       {"Caudal", SampleRate, kNone},
      {"Caudal_7", Caudal, 7},        {"E_Digital_8", E_Digital, 8}, {"CTimer0_3", CTimer, 0},
      {"WTimer4_7", WTimer, 4},       {"MTimer8_11", MTimer, 8},     {"LTimer12_15", LTimer, 12},
      {"MODBUS", CONF_MODBUS, kNone}, {"MODBUS_31", E_MODBUS, 31},   {"Flag_15", Flags, 15},
      {"Aut_Voz", Aut_Voz, kNone},    {"GPRS", GPRS, kNone},         {"Macros", Macros, kNone},
      {"PCAT", Katodex, kNone},       {"E_Aux_3", E_Aux, 3},         {"Modulo_95", E_Modular, 95}};
  for (const auto& [key, page, index] : pages)
    EXPECT_EQ(Target(key),
              (NodeTarget{page, index < 0 ? none : std::optional<std::int16_t>(index)}))
        << key;
  for (const auto& [key, tool] : {std::pair{"Tavro", ToolId::TargetSelect},
                                  {"T_Real", ToolId::T_Real_Tavro},
                                  {"Firmware", ToolId::Firm},
                                  {"Terminal", ToolId::Terminal}})
    EXPECT_EQ(Target(key), (NodeTarget{tool, none})) << key;
  for (const auto* key : {"Timer", "CTimer", "E_Analog", "E_OneWire", "E_Digital", "E_Math",
                          "Flags", "Modulo", "E_Analog_4", "E_Digital_9", "E_Digital_08",
                          "MODBUS_32", "Flag_16", "Modulo_96", "CTimer0_4", "", "TEST"})
    EXPECT_EQ(Target(key), std::nullopt) << key;
  EXPECT_EQ(Target("TEST", "Tavro BP"), (NodeTarget{ToolId::Test, none}));
  EXPECT_EQ(Target("TEST", "Tavro BQ"), (NodeTarget{ToolId::TestBQ, none}));
  EXPECT_EQ(Target("TEST", "Ostrel KA2"), (NodeTarget{ToolId::TestKA2, none}));
  EXPECT_EQ(Target("T_Real", "Unknown"), std::nullopt);
  EXPECT_EQ(Target("Tavro", "Tavro BP", false), std::nullopt);
}

class NavigationFixture : public testing::Test, protected World {
 protected:
  NavigationFixture() { core.StartForCommand("Tavro BP", 1); }

  template <class Control>
  Control& On(PageId page, std::string_view control) {
    return core.PageOf(page)->GetForm().Get<Control>(control);
  }
  std::vector<std::string> Visible() {
    std::vector<std::string> names;
    for (Form* form : core.Forms())
      if (form->Visible()) names.push_back(form->Name());
    return names;
  }

  Configurator core{platform, Options(false)};
  Navigation navigation{core};
};

TEST_F(NavigationFixture, ShowsOnePageAndCommitsTheOneThatLeaves) {
  EXPECT_EQ(navigation.NodeClick("E_Digital_0"), NodeResult::Shown);
  EXPECT_THAT(Visible(), ElementsAre("E_Digital"));
  On<TextBox>(PageId::E_Digital, "Nombre").Type("first");
  navigation.NodeClick("E_Digital_1");
  On<TextBox>(PageId::E_Digital, "Nombre").Type("second");
  EXPECT_EQ(navigation.NodeClick("General"), NodeResult::Shown);
  EXPECT_THAT(Visible(), ElementsAre("General"));
  EXPECT_EQ(core.conf.Digital[0].NOMBRE, "first");
  EXPECT_EQ(core.conf.Digital[1].NOMBRE, "second");
  EXPECT_TRUE(core.general.PageActive);
  EXPECT_EQ(navigation.NodeClick("CTimer"), NodeResult::Nothing);
  EXPECT_FALSE(core.general.PageActive);
  EXPECT_THAT(Visible(), ElementsAre());
  core.TargetDeviceChange("Tavro BP");
  EXPECT_EQ(navigation.NodeClick("TEST"), NodeResult::Shown);
  EXPECT_THAT(Visible(), ElementsAre("Test"));
}

/// What a page offers hangs on the model, whatever changes it.
TEST_F(NavigationFixture, ActivatesTheFrontAnewWhenTheModelChanges) {
  files.contents["/bq.ocf"] = "[General]\r\nVERSION=TAVRO_BQ\r\n";
  const auto offers = [this](std::string_view option) {
    return On<OptionButton>(PageId::E_Analog, option).face.Enabled();
  };
  navigation.NodeClick("E_Analog_0");
  EXPECT_TRUE(offers("Int_0_5") && !offers("Int_Press"));
  EXPECT_EQ(core.OpenFile("/bq.ocf"), RestoreResult::Loaded);
  EXPECT_TRUE(!offers("Int_0_5") && offers("Int_Press"));
  navigation.NodeClick("CTimer");
  core.TargetDeviceChange("Tavro BP");
  EXPECT_FALSE(offers("Int_0_5")) << "a hidden page is left to its next showing";
  navigation.NodeClick("E_Analog_0");
  EXPECT_TRUE(offers("Int_0_5"));
}

/// The pages of single MODBUS channels and of expansion inputs stay open.
class StayingPages : public NavigationFixture {
 protected:
  void TypeName(const char* name) { On<TextBox>(PageId::E_MODBUS, "Nombre").Type(name); }
  void TypeInputName(const char* name) { On<TextBox>(PageId::E_Modular, "D_Nombre").Type(name); }
  const std::string& Name(int channel = 3) { return core.conf.Modbus[channel].NOMBRE; }
  const std::string& InputName() { return core.conf.Modulo[5].D.NOMBRE; }
  std::string FrontName() {
    const Form* front = navigation.Front();
    return front ? front->Name() : "";
  }
};

TEST_F(StayingPages, KeepTheFrontWhenAClickOpensNothing) {
  navigation.NodeClick("MODBUS_3");
  TypeName("first");
  EXPECT_EQ(navigation.NodeClick("CTimer"), NodeResult::Nothing);
  EXPECT_EQ(FrontName(), "E_MODBUS");
  EXPECT_EQ(Name(), "") << "it has not been left";
  navigation.CommitFront();
  EXPECT_EQ(Name(), "first");
  TypeName("again");
  navigation.NodeClick("MODBUS_4");
  EXPECT_EQ(Name(), "again");
}

TEST_F(StayingPages, TheTestOfABQStaysAsWell) {
  core.TargetDeviceChange("Tavro BQ");
  navigation.NodeClick("TEST");
  EXPECT_EQ(FrontName(), "TestBQ");
  navigation.NodeClick("General");
  EXPECT_EQ(FrontName(), "General");
  navigation.NodeClick("CTimer");
  EXPECT_EQ(FrontName(), "TestBQ");
}

TEST_F(StayingPages, AreCoveredByTheNextPageAndComeBackBehindIt) {
  core.TargetDeviceChange("Ostrel S100");
  navigation.NodeClick("E_Digital_0");
  navigation.NodeClick("MODBUS_3");
  TypeName("register");
  navigation.NodeClick("Modulo_5");
  TypeInputName("input");
  navigation.NodeClick("General");
  EXPECT_EQ(Name(), "register");
  EXPECT_EQ(InputName(), "input");
  EXPECT_THAT(Visible(), ElementsAre("General", "E_MODBUS", "E_Modular"));
  EXPECT_EQ(FrontName(), "General");
  navigation.NodeClick("Timer");
  EXPECT_EQ(FrontName(), "E_Modular") << "the one that was shown last";
  TypeInputName("back");
  core.ConfFilePath = "/saved.ocf";
  navigation.CommitFront();
  ASSERT_TRUE(core.SaveConf().Ok());
  EXPECT_NE(files.contents["/saved.ocf"].find("NOMBRE=back"), std::string::npos);
}

}  // namespace
}  // namespace ostrel
