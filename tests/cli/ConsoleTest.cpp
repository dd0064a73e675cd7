#include "cli/World.h"
#include "tools/HexFiles.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

/// A shell in which lines are typed, and then the input ends.
struct ConsoleWorld : World {
  explicit ConsoleWorld(std::vector<std::string> typed = {},
                        const std::vector<std::string>& faults = {})
      : World(WithFaults(faults)) {
    environment.watchInput = [this, typed](const auto& onLine, const auto& onEnd) {
      loop.After(std::chrono::milliseconds(1), "typing", [=] {
        for (const std::string& line : typed) onLine(line);
        onEnd();
      });
      return std::make_shared<int>();
    };
    environment.openGrowing = [this](const std::string& path,
                                     std::string& why) -> std::unique_ptr<std::ostream> {
      why = "no room";
      if (path == "/full") return nullptr;
      auto stream = std::make_unique<std::ostream>(&log);
      return stream;
    };
    Logger().OnExchange([this](const sim::Exchange& exchange) {
      if (!exchange.request.starts_with("#01")) return;
      asked += exchange.request + " ";
      askedAt.push_back(exchange.at);
    });
  }
  std::stringbuf log;
  std::string asked;
  std::vector<TimePoint> askedAt;
};

TEST(TerminalCommand, SendsEachLineBehindTheAnswerToTheLastAndEndsOnceQuiet) {
  ConsoleWorld world({"VER", "", "TIME", "bad\x01line", "nothing"});
  const TimePoint start = world.loop.Now();
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --log /log"), 0) << world.err;
  EXPECT_LT(world.loop.Now() - start, std::chrono::seconds(5));
  ASSERT_EQ(world.asked, "#01VER #01TIME #01nothing ");
  EXPECT_GE(world.askedAt[1] - world.askedAt[0], std::chrono::milliseconds(200));
  EXPECT_EQ(world.out, "Ostrel VR200 v4.12\n" + world.out.substr(19, 9) + "? nothing\n");
  EXPECT_EQ(world.log.str(), world.out);
  EXPECT_THAT(world.err, HasSubstr("not sent, it is no command: bad\\x01line\n"));
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --log /full"), 5);
  EXPECT_EQ(world.err, "ostrelctl: cannot write /full: no room\n");
}

TEST(TerminalCommand, LeavesTracesAloneUnlessTold) {
  ConsoleWorld world;
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --traces on --seconds 4.5 --stamp"), 0);
  EXPECT_TRUE(world.Logger().Traces());
  EXPECT_THAT(world.out, testing::ContainsRegex("^09:05:[0-9.]{6} [0-9:]{8} rx 04\n"
                                                "09:05:[0-9.]{6} [0-9:]{8} DI="));
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --seconds 2 --json"), 0);
  EXPECT_TRUE(world.Logger().Traces());
  EXPECT_THAT(world.out, testing::StartsWith("{\"text\":\""));
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --traces off --seconds 60"), 0);
  EXPECT_FALSE(world.Logger().Traces());
  EXPECT_EQ(world.Run("terminal --port sim:VR200 --traces maybe"), 2);
}

TEST(TerminalCommand, SendsFramesAsTheyAreTyped) {
  ConsoleWorld world({"#5D", "5D"});
  EXPECT_EQ(world.Run("terminal --raw --port sim:VR200"), 0);
  EXPECT_THAT(world.out, HasSubstr(";A2260302090"));
  EXPECT_THAT(world.err, HasSubstr("not sent, it is no frame: 5D\n"));
}

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
    ConsoleWorld world;
    world.files.contents["/i.hex"] = HexFile(400);
    world.files.contents["/bad.hex"] = HexFile(400).substr(0, 45 * 400);
    world.files.contents["/CopyFlash.hex"] = HexFile(10);
    EXPECT_EQ(world.Run("firmware --port sim:VR200 " + std::string(c.words)), c.code);
    EXPECT_THAT(world.err, HasSubstr(c.says));
    EXPECT_EQ(world.Logger().Firmware().Image().empty(), c.code != 0);
  }
}

TEST(FirmwareCommand, SaysAfterAFailureWhatToDo) {
  ConsoleWorld world({}, {"no-alive-mark@2"});
  world.simulated.Port().SetPaced(true);
  world.files.contents["/i.hex"] = HexFile(400);
  world.files.contents["/CopyFlash.hex"] = HexFile(10);
  EXPECT_EQ(world.Run("firmware /i.hex /CopyFlash.hex --yes --port sim:VR200"), 4);
  EXPECT_THAT(world.err, HasSubstr("the logger gave no sign of life by octet 16386 of the image: "
                                   "check cable and earthing; the logger's flash is erased"));
}

}  // namespace
}  // namespace ostrel::cli
