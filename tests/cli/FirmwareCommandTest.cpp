#include "cli/World.h"
#include "tools/HexFiles.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;

TEST(FirmwareCommand, LooksAtTheFilesAndAsksBeforeItErases) {
  struct Case {
    const char* words;
    int code;
    const char* says;
  };
  for (const Case& c :
       {Case{"/i.hex /loader.hex --yes", 5, "\"CopyFlash\" must stand in the path"},
        {"/none.hex /CopyFlash.hex --yes", 5, "cannot read /none.hex: no such file"},
        {"/bad.hex /CopyFlash.hex", 5, "warning: bad.hex: falta el registro final"},
        {"/i.hex /CopyFlash.hex", 4, "nothing was sent: --yes replaces the firmware"},
        {"/bad.hex /CopyFlash.hex --yes", 0, "NO CORTE LA ALIMENTACION"},
        {"/i.hex /CopyFlash.hex --yes --lang 2", 0, "all is sent: the logger writes its flash"}}) {
    SCOPED_TRACE(c.words);
    World world;
    world.files.contents["/i.hex"] = HexFile(400);
    world.files.contents["/bad.hex"] = HexFile(400).substr(0, 45 * 400);
    world.files.contents["/CopyFlash.hex"] = HexFile(10);
    EXPECT_EQ(world.Run("firmware --port sim:VR200 " + std::string(c.words)), c.code);
    EXPECT_THAT(world.err, HasSubstr(c.says));
    EXPECT_EQ(world.Logger().Firmware().Image().empty(), c.code != 0);
  }
}

TEST(FirmwareCommand, AnInterruptIsAskedForTwiceWhileThereIsNoFirmware) {
  using std::chrono::seconds;
  struct Case {
    std::vector<int> at;  ///< seconds after the beginning of the update
    int code;
  };
  for (const Case& c : {Case{{1}, 0}, {{1, 7}, 0}, {{1, 5}, 4}}) {
    World world(WithFaults({"ready-late:8000"}));
    world.files.contents["/i.hex"] = HexFile(400);
    world.files.contents["/CopyFlash.hex"] = HexFile(10);
    bool hasBegun = false;
    world.Logger().OnExchange([&](const sim::Exchange& exchange) {
      if (exchange.request != "#F0" || std::exchange(hasBegun, true)) return;
      for (const int second : c.at)
        world.loop.After(seconds(second), "interrupt", [&] { world.environment.onInterrupt(); });
    });
    EXPECT_EQ(world.Run("firmware /i.hex /CopyFlash.hex --yes --port sim:VR200"), c.code)
        << world.err;
    EXPECT_TRUE(hasBegun);
    EXPECT_THAT(world.err, HasSubstr("interrupt again within 5 s to break off"));
  }
}

/// A logger without firmware greets, and has no other answer until it is sent one.
TEST(FirmwareCommand, IsStartedAgainAfterAFailure) {
  World world(WithFaults({"refuse-loader!once"}));
  world.files.contents["/i.hex"] = HexFile(400);
  world.files.contents["/CopyFlash.hex"] = HexFile(10);
  const std::string update = "firmware /i.hex /CopyFlash.hex --yes --port sim:VR200";
  EXPECT_EQ(world.Run(update), 4);
  EXPECT_THAT(world.err, HasSubstr("the logger answered something else: \"#DWLD_ERROR\"; the "
                                   "logger's flash is erased and holds no firmware: leave it "
                                   "powered and connected, and start the update again"));
  world.Expect("info --port sim:VR200", 4, "it may have no firmware");
  const TimePoint start = world.loop.Now();
  EXPECT_EQ(world.Run(update + " --json"), 0) << world.err;
  EXPECT_EQ(world.Json().object()["image"].toInt(), 18'012) << "octets that went out";
  EXPECT_EQ(world.Json().object()["loader"].toInt(), 462);
  EXPECT_EQ(world.err.find("erasing"), world.err.rfind("erasing")) << "each stage once";
  EXPECT_LT(world.loop.Now() - start, std::chrono::seconds(20)) << "it is asked for nothing more";
  EXPECT_EQ(world.Logger().Firmware().Loader() + "\r\n", HexFile(10));
}

}  // namespace
}  // namespace ostrel::cli
