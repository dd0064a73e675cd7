#include "World.h"
#include "shell/files/ForeignKeys.h"

namespace ostrel {
namespace {

TEST(ForeignKeys, AreThoseThatSavingWouldLose) {
  VirtualFiles files;
  TargetProfile profile;
  SelectTarget(profile, "Tavro BP");
  EXPECT_TRUE(ForeignKeys(files, "/none.ocf", profile).empty());
  files.contents["/a.ocf"] =
      "[general]\r\nVERSION=TAVRO\r\nnombre =x\r\ntlf 3=600\r\nCOLOUR=red\r\n[ANALOG 3]\r\n"
      "ACTHI( 3 7)= 1\r\n[ANALOG 4]\r\nNOMBRE=x\r\n[MINE]\r\nA=1\r\nB=2";
  const std::vector<std::string> foreign{"[general] COLOUR", "[ANALOG 4] NOMBRE", "[MINE] A",
                                         "[MINE] B"};
  EXPECT_EQ(ForeignKeys(files, "/a.ocf", profile), foreign);
  EXPECT_EQ(ForeignKeysText({"1", "2", "3", "4", "5", "6", "7"}), "1, 2, 3, 4, 5 and 2 more");
}

TEST(ForeignKeys, AreAskedAboutAheadOfSaving) {
  World world;
  Configurator program(world.platform, world.Options(false));
  program.StartForCommand("Tavro BP", 1);
  const std::string former = "[General]\r\nVERSION=TAVRO\r\n[MINE]\r\nA=1";
  world.files.contents["/a.ocf"] = former;
  bool says = false;
  program.OnForeignKeys = [&](const std::string&, const std::vector<std::string>& lost) {
    EXPECT_EQ(lost.size(), 1U);
    return says;
  };
  world.dialogs.ChoosePath("/a.ocf");
  EXPECT_FALSE(program.AskAndSave());
  EXPECT_EQ(world.files.contents["/a.ocf"], former);
  says = true;
  world.dialogs.ChoosePath("/a.ocf");
  EXPECT_TRUE(program.AskAndSave());
  EXPECT_EQ(world.files.contents["/a.ocf"].find("MINE"), std::string::npos);
}

}  // namespace
}  // namespace ostrel
