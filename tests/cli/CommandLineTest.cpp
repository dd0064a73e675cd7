#include "cli/World.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;

/// A command line that fails before any dialogue, with its exit code and part of its one line.
struct Mistake {
  std::string line;
  int code;
  std::string says;
};

TEST(CommandLine, SaysInOneLineWhatIsWrong) {
  World world;
  world.files.contents["/oem.ocf"] = "[General]\r\nVERSION=PX240";
  world.files.contents["/text.txt"] = "no configuration";
  for (const Mistake& mistake : std::vector<Mistake>{
           {"", 2, "subcommand is required"},
           {"fly", 2, "there is no command fly"},
           {"info", 2, "no port"},
           {"info --port COM300", 2, "COM1 to COM256"},
           {"info --port COM251x", 2, "COM1 to COM256"},
           {"info --port sim:XX", 2, "sim:KA1"},
           {"info --port COM7", 2, "which model is it?"},
           {"info --port COM7 --target VR200", 3, "there is no port COM7"},
           {"info --port /dev/none --target VR200", 3, "there is no port /dev/none"},
           {"info --port sim:VR200 --target XX", 2, "XX is none of"},
           {"info --port sim:VR200 --lang 9", 2, "lang"},
           {"live --port sim:VR200 --features xyz", 2, "xyz is no hexadecimal mask"},
           {"output 1 up --port sim:VR200", 2, "up"},
           {"output 4 on --port sim:VR200", 2, "has 4 outputs"},
           {"output -1 on --port sim:VR200", 2, "has 4 outputs"},
           {"output 0x1 on --port sim:VR200", 2, "0x1 is no whole number"},
           {"output 010 on --port sim:VR200", 2, "010 is no whole number"},
           {"output 0 on --port SIM:BQ", 2, "has no outputs"},
           {"total 9 --port sim:VR200", 2, "9"},
           {"total 1 many --port sim:VR200", 2, "many"},
           {"total -1 --port sim:VR200", 2, "-1"},
           {"total 0 --expansion --port sim:VR200", 2, "no expansion inputs"},
           {"total 96 --expansion --port sim:S100", 2, "96 expansion inputs"},
           {"probe --port sim:VR200", 2, "no 1-Wire probes"},
           {"calc", 2, "subcommand"},
           {"calc pulse 10 l 0 m3/h", 2, "time base of 0"},
           {"calc pulse 1,5 l 60 m3/h", 2, "1,5"},
           {"calc pulse 10 gallon 60 m3/h", 2, "gallon"},
           {"calc mask 16", 2, "16"},
           {"total 1 3000000000 --port sim:VR200", 2, "3000000000"},
           {"download", 2, "FILE is required"},
           {"diff port port --port sim:VR200", 2, "compared with a file"},
           {"check /text.txt --silence nonsense", 2, "there is no rule nonsense"},
           {"show /absent.ocf", 5, "cannot read /absent.ocf"},
           {"statements /absent.ocf", 5, "cannot read /absent.ocf"},
           {"diff /absent.ocf /text.txt", 5, "cannot read /absent.ocf"},
           {"upload /absent.ocf --port sim:VR200", 5, "cannot read /absent.ocf"},
       }) {
    EXPECT_EQ(world.Run(mistake.line), mistake.code) << mistake.line << '\n' << world.err;
    EXPECT_THAT(world.err, HasSubstr(mistake.says)) << mistake.line;
    EXPECT_TRUE(world.err.starts_with("ostrelctl: ")) << world.err;
    EXPECT_EQ(std::ranges::count(world.err, '\n'), 1) << world.err;
    EXPECT_EQ(world.out, "") << mistake.line;
  }
}

TEST(CommandLine, RefusesAFileThatIsNoConfiguration) {
  World world;
  world.files.contents["/oem.ocf"] = "[General]\r\nVERSION=PX240";
  world.files.contents["/text.txt"] = "no configuration";
  world.files.contents["/empty.ocf"] = "";
  for (const std::string path : {"/oem.ocf", "/text.txt", "/empty.ocf"})
    for (const std::string command : {"show ", "check ", "statements ", "upload --dry-run "}) {
      EXPECT_EQ(world.Run(command + path), 5) << command << path;
      EXPECT_EQ(world.err,
                "ostrelctl: " + path + " is no configuration of any of the six models\n");
    }
}

TEST(CommandLine, HelpIsAResult) {
  World world;
  world.Expect("--help", 0, "download");
  EXPECT_THAT(world.out, HasSubstr("4  a dialogue failed"));
  world.Expect("check --help", 0, "text-breaks-statement (error)");
  EXPECT_EQ(world.err, "");
}

TEST(CommandLine, TakesTheModelFromOptionSimulatorStampAndStoreInThisOrder) {
  World world;
  world.settings.Set("Quorvane", "Ostrel Configurator", "Target", "Tavro BQ");
  world.simulated.Port().SetOpenFault(7, PortFault::Busy);
  world.Expect("info --port sim:KA2", 0, "Ostrel KA2");
  world.Expect("info --port com252 --target ostrel_s100", 0, "Ostrel S100");
  world.files.contents["/ka1.ocf"] = "[General]\r\nVERSION=OSTREL_KA1";
  world.Expect("show /ka1.ocf", 0, "Ostrel KA1");
  EXPECT_EQ(world.Run("show /ka1.ocf --target VR200"), 0) << "the file changes the model";
  EXPECT_THAT(world.out, HasSubstr("Ostrel KA1"));
  EXPECT_THAT(world.err, HasSubstr("/ka1.ocf is for the model Ostrel KA1, not Ostrel VR200\n"));
  // The stored model serves where nothing else tells: the port's fault comes later.
  EXPECT_EQ(world.Run("info --port COM7"), 3);
}

TEST(CommandLine, TranslatesTheTextsOfTheCore) {
  World world;
  world.files.contents["/share/Lang.txt"] =
      "{Espa\xF1ol}{English}\r\n{Parece que la hora del dispositivo no esta sincronizada, desea "
      "sincronizarlo con la hora del PC?}{Set the clock?}\r\n";
  world.Logger().SetClock({2026, 3, 2, 8, 0, 0});
  world.Expect("info --lang 2 --port sim:VR200", 0, "Ostrel VR200: Set the clock? no");
  EXPECT_TRUE(world.files.contents.contains("/home/user/data/Lang.txt"));
  EXPECT_FALSE(world.files.contents["/share/Lang.txt"].find("Aviso") != std::string::npos)
      << "the installed table is never written";
}

TEST(CommandLine, ListsThePorts) {
  World world;
  world.Expect("ports", 0, "COM253  sim:VR200  simulated Ostrel VR200\n");
  EXPECT_EQ(world.Run("ports --json"), 0);
  EXPECT_EQ(world.Json().array().at(5).toObject()["device"].toString(), "sim:BQ");
}

}  // namespace
}  // namespace ostrel::cli
