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

TEST(SimFirmware, IsTakenStepByStepAndThenInForce) {
  SimBench bench(Model::BP);
  EXPECT_EQ(bench.Ask("#F1"), "") << "no image was begun";
  EXPECT_THAT(Messages(bench.Say(ComposeFrame("#F0"), 3900ms)), ElementsAre("#DWLD_ERASING"));
  EXPECT_EQ(bench.Ask("#5D"), "") << "its firmware is gone";
  EXPECT_EQ(bench.Ask("#40").substr(0, 3), "");
  EXPECT_THAT(Messages(bench.Say("", 200ms)), testing::Contains("#DWLD_READY"));
  for (const char octet : ComposeFrame("#5D")) bench.Say(std::string(1, octet));  // is no image
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

TEST(SimFirmware, AnImageWithoutItsEndRecordIsNone) {
  SimBench bench(Model::BP);
  const auto update = [&](const std::string& image) {
    bench.Say(ComposeFrame("#F0"), 5s);
    bench.Say(image);
    EXPECT_EQ(bench.Ask("#F1"), "#DWLD_RAM_READY");
    bench.Say(Image(3));
    bench.loop.RunFor(8s);
  };
  const std::string image = Image(40);
  update(image.substr(0, image.size() - 3));
  EXPECT_THAT(bench.Ask("#40"), HasSubstr("#BF"));
  EXPECT_EQ(bench.Ask("#5D"), "") << "no firmware is there to answer";
  update(image);
  EXPECT_NE(bench.Ask("#5D"), "");
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
