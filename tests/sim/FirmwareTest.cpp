#include <gmock/gmock.h>

#include "sim/SimBench.h"

namespace ostrel::sim {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;

const std::string kRecord = ":10010000214601360121470136007EFE09D2190140\r\n";
const std::string kEnd = ":00000001FF\r\n";

std::string Image(int records) {
  std::string image;
  for (int i = 0; i < records; ++i) image += kRecord;
  return image + kEnd;
}

std::size_t Marks(const std::string& octets) {
  std::size_t marks = 0;
  for (std::size_t at = octets.find("..."); at != std::string::npos;
       at = octets.find("...", at + 3))
    ++marks;
  return marks;
}

/// What came of the image, all of it in one piece; nothing when it was not ready for one.
std::string SendImage(SimBench& bench, const std::string& image, Duration erasing = 5s) {
  const auto answers = Messages(bench.Say(ComposeFrame("#F0"), erasing));
  if (answers != std::vector<std::string>{"#DWLD_ERASING", "#DWLD_READY"}) return {};
  return bench.Say(image);
}

TEST(SimFirmware, IsTakenStepByStepAndThenInForce) {
  SimBench bench(Model::BP);
  EXPECT_EQ(bench.Ask("#F1"), "") << "no image was begun";
  EXPECT_THAT(Messages(bench.Say(ComposeFrame("#F0"), 3900ms)), ElementsAre("#DWLD_ERASING"));
  EXPECT_EQ(bench.Ask("#5D"), "") << "its firmware is gone";
  EXPECT_EQ(bench.Ask("#40").substr(0, 3), "");
  EXPECT_THAT(Messages(bench.Say("", 200ms)), testing::Contains("#DWLD_READY"));
  const std::string image = Image(400);
  const std::string said = bench.Say(image.substr(0, image.size() - 1));
  EXPECT_EQ(Marks(said), image.size() / 1000 + 1);
  EXPECT_THAT(Messages(said), ElementsAre("#DWLD_END"));
  EXPECT_EQ(bench.Ask("#F1"), "#DWLD_RAM_READY");
  EXPECT_EQ(bench.Say(Image(3)), "");
  EXPECT_EQ(bench.logger.Firmware().Image() + "\r\n", image);
  EXPECT_EQ(bench.logger.Firmware().Loader() + "\r\n", Image(3));
  EXPECT_EQ(bench.Ask("#40"), "") << "it is copying";
  bench.loop.RunFor(8s);
  EXPECT_THAT(bench.Ask("#40"), HasSubstr("#BF"));
}

TEST(SimFirmware, FaultsStrike) {
  const std::string image = Image(600);  // three blocks and a piece
  const std::size_t all = Marks(SendImage(*std::make_unique<SimBench>(Model::BP), image));
  struct Case {
    const char* fault;
    std::size_t marks;
    const char* answerToLoader;
  };
  for (const Case& c : {Case{"refuse-erase", 0, ""},
                        {"ready-late:2000", 0, "#DWLD_RAM_READY"},
                        {"no-alive-mark@2", all - 8, "#DWLD_RAM_READY"},
                        {"silent-after-octet@5000", 4, ""},
                        {"refuse-loader", all, "#DWLD_ERROR"}}) {
    SCOPED_TRACE(c.fault);
    SimBench bench(Model::BP, c.fault);
    EXPECT_EQ(Marks(SendImage(bench, image)), c.marks);
    bench.loop.RunFor(3s);
    EXPECT_EQ(bench.Ask("#F1"), c.answerToLoader);
  }
}

TEST(SimConsole, AnswersCommandsAndTellsWhatItDoes) {
  SimBench bench(Model::BP);
  EXPECT_EQ(bench.Say(ComposeFrame("#01time")), "08:30:05\r\n");
  EXPECT_EQ(bench.Say(ComposeFrame("#01a#b")), "? a=b\r\n") << "its words begin no frame";
  EXPECT_EQ(bench.Say("", 3s), "");
  EXPECT_EQ(bench.Say(ComposeFrame("#041"), 1100ms).find("08:30:0"), 0U);
  EXPECT_TRUE(bench.logger.Traces());
  EXPECT_THAT(bench.Say(ComposeFrame("#5D")), HasSubstr(" rx 5D\r\n"));
  bench.logger.SetTerminalReady(false);
  EXPECT_EQ(bench.Say("", 3s), "") << "nobody hears it";
  bench.logger.SetTerminalReady(true);
  EXPECT_THAT(bench.Say("", 1100ms), HasSubstr(" DI="));
  bench.Say(ComposeFrame("#040"));
  EXPECT_EQ(bench.Say("", 3s), "");
}

}  // namespace
}  // namespace ostrel::sim
