#include "World.h"

namespace ostrel {
namespace {

class ConfigurationFile : public testing::Test {
 protected:
  ConfigurationFile() {
    program.StartForCommand("Tavro BP", 1);
    program.ConfFilePath = kPath;
  }

  static constexpr const char* kPath = "/site.ocf";
  World world;
  Configurator program{world.platform, world.Options(false)};
  std::string& file = world.files.contents[kPath];
};

TEST_F(ConfigurationFile, StandsInItsFixedOrderUnderOneGeneralSection) {
  program.conf.General.DNAME = "Depósito";
  ASSERT_TRUE(program.SaveConf().Ok());
  EXPECT_TRUE(
      file.starts_with("[General]\r\nVERSION=TAVRO\r\nNOMBRE=Dep\xF3sito\r\nCSM=\r\n"
                       "RENVT= 10\r\nRENVN= 3\r\nPTLF=\r\nRESTORE=\r\n[ANALOG 0]\r\n"))
      << file.substr(0, 200);
  std::size_t former = 0;
  for (const char* section : {"[ANALOG 3]", "[DIGITAL 0]", "[DIGITAL 8]", "[GRUPO 0]", "[GRUPO 3]",
                              "[FLAG 0]", "[FLAG 15]"}) {
    const std::size_t at = file.find(section);
    ASSERT_NE(at, std::string::npos) << section;
    EXPECT_GT(at, former) << section;
    former = at;
  }
  EXPECT_EQ(file.find("[GENERAL]"), std::string::npos);
  EXPECT_FALSE(file.ends_with("\n"));
}

TEST_F(ConfigurationFile, StampsDecideWhatIsLoaded) {
  struct Case {
    const char* stamp;
    const char* model;  // afterwards
    bool loaded;
    std::size_t boxes;  // shown
  };
  for (const Case& c : std::vector<Case>{{"TAVRO", "Tavro BP", true, 0},
                                         {"VR200", "Ostrel VR200", true, 1},
                                         {"OSTREL_KA2", "Ostrel KA2", true, 1},
                                         {"OSTREL_KA1", "Ostrel KA1", true, 1},
                                         {"OSTREL_S100", "Ostrel S100", true, 1},
                                         {"PX-6000", "Ostrel VR200", false, 2},
                                         {"PX120-D", "Tavro BP", false, 2},
                                         {"PX235", "Ostrel KA2", false, 2},
                                         {"PX220", "Ostrel KA1", false, 2},
                                         {"tavro", "Tavro BP", false, 1},
                                         {"", "Tavro BP", false, 1}}) {
    SCOPED_TRACE(c.stamp);
    program.TargetDeviceChange("Tavro BP");
    program.conf.General.DNAME = "before";
    world.dialogs.boxes.clear();
    file = std::string("[general]\nNOMBRE=after\nversion= ") + c.stamp;
    EXPECT_EQ(program.RestoreConf() == RestoreResult::Loaded, c.loaded);
    EXPECT_EQ(program.profile.TargetName, c.model);
    EXPECT_EQ(program.conf.General.DNAME, c.loaded ? "after" : "before");
    ASSERT_EQ(world.dialogs.boxes.size(), c.boxes);
    if (c.boxes > 0 && program.profile.TargetName != "Tavro BP") {
      EXPECT_TRUE(world.dialogs.boxes[0].text.ends_with(std::string("la seleccion a ") + c.model));
    }
    if (!c.loaded) {
      EXPECT_EQ(world.dialogs.boxes.back().text, "No es un archivo de configuracion valido");
    }
  }
}

TEST_F(ConfigurationFile, AFileThatCannotBeReadIsRefused) {
  program.ConfFilePath = "/none.ocf";
  EXPECT_EQ(program.RestoreConf(), RestoreResult::NotAConfiguration);
  EXPECT_EQ(world.dialogs.boxes.size(), 1U);
  program.StartForCommand("no model", 1);
  program.conf.General.DNAME = "kept";
  EXPECT_EQ(program.RestoreConf(), RestoreResult::NotAConfiguration);
  EXPECT_EQ(program.conf.General.DNAME, "kept");
}

TEST_F(ConfigurationFile, AskingForAPath) {
  world.dialogs.ChoosePath(std::nullopt);
  EXPECT_FALSE(program.AskAndOpen());
  EXPECT_EQ(program.ConfFilePath, kPath);
  world.dialogs.ChoosePath("/other.ocf");
  EXPECT_TRUE(program.AskAndSave());
  EXPECT_TRUE(world.files.contents["/other.ocf"].starts_with("[General]\r\nVERSION=TAVRO"));
  EXPECT_TRUE(world.dialogs.questions.back().overwritePrompt);
  world.files.contents["/third.ocf"] =
      "[General]\r\nVERSION=TAVRO\r\nCSM=+34607003110\r\nTLFM 0=600,Prio=0,PRV0,MASKMODE0";
  world.dialogs.ChoosePath("/third.ocf");
  EXPECT_TRUE(program.AskAndOpen());
  EXPECT_TRUE(program.general.GetForm().Get<OptionButton>("CSMVoda").Selected());
  EXPECT_EQ(program.general.GetForm().Get<ListBox>("ListaTlf").Position(), 0);
}

}  // namespace
}  // namespace ostrel
