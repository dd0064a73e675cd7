#include <gmock/gmock.h>

#include "sim/SimBench.h"

namespace ostrel::sim {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

Configuration WithNumbers(std::vector<std::string> numbers, int macro = kNoMacro) {
  Configuration conf;
  conf.voice = {std::move(numbers), macro};
  return conf;
}

TEST(SimVoice, ItsOrdersAreTakenOrRefused) {
  SimBench bench(Model::BP);
  bench.logger.SetConf(WithNumbers({"67896", "12345"}, 5));
  EXPECT_NE(bench.Ask("#4E"), "#B14B37") << "the order of the numbers counts";
  EXPECT_EQ(bench.Say(ComposeFrame("#41CLRTEL"), 1400ms), "") << "erasing takes its time";
  EXPECT_THAT(Messages(bench.Say("", 200ms)), ElementsAre("#BE1"));
  EXPECT_EQ(bench.UploadAll({"+TEL=+34600111222", "+TEL=600"}), "#B91");
  EXPECT_EQ(bench.logger.Conf(), WithNumbers({"+34600111222", "600"}, 5));
  for (const char* bad : {"#41VCAUTMACRO=40", "#41VCAUTMACRO= 1", "#41VCAUTMACRO=-1",
                          "#41VCAUTMACRO", "#41CLRVCAUTMACRO=1", "#41CLRTEL1"})
    EXPECT_EQ(bench.Ask(bad), "#BE0") << bad;
  EXPECT_EQ(bench.logger.Conf().voice.macro, 5);
}

TEST(SimVoice, AnEmptyListIsClosedWithoutStatements) {
  SimBench bench(Model::BP);
  bench.logger.SetConf(WithNumbers({"old"}));
  EXPECT_EQ(bench.Ask("#46000"), "#B90") << "nothing was begun";
  bench.Say(ComposeFrame("#41CLRTEL"), 2s);
  EXPECT_EQ(bench.Ask("#46001"), "#B90");
  bench.Say(ComposeFrame("#41CLRTEL"), 2s);
  EXPECT_EQ(bench.Ask("#46000"), "#B91");
  EXPECT_THAT(bench.logger.Conf().voice.numbers, IsEmpty());
}

TEST(SimVoice, ItHolds250Numbers) {
  SimBench bench(Model::BP);
  bench.Say(ComposeFrame("#41CLRTEL"), 2s);
  std::vector<std::string> statements(250, "+TEL=600");
  EXPECT_EQ(bench.UploadAll(statements), "#B91");
  EXPECT_THAT(bench.AskAll("#4F"), SizeIs(253));
  EXPECT_EQ(bench.UploadAll({"+TEL=601"}), "#B90");
}

TEST(SimVoice, FirmwareWithoutMissedCallsKeepsSilent) {
  LoggerOptions options = MakeDefaultOptions(Model::BP);
  options.features &= ~kMissedCall;
  SimBench bench(options);
  for (const char* request : {"#4E", "#4F", "#41CLRTEL", "#41VCAUTMACRO=1", "#41CLRVCAUTMACRO"})
    EXPECT_THAT(Messages(bench.Say(ComposeFrame(request), 2s)), IsEmpty()) << request;
}

TEST(SimVoice, Faults) {
  const auto with = [](std::string_view fault) {
    auto bench = std::make_unique<SimBench>(Model::S100, fault);
    bench->logger.SetConf(WithNumbers({"12345", "6789"}));
    return bench;
  };
  const auto wrong = with("wrong-sum@2!once");
  for (const char* sum : {"#B14B37", "#B14B36", "#B14B37"}) EXPECT_EQ(wrong->Ask("#4E"), sum);
  const auto cut = with("silent-after-number@1!once");
  EXPECT_THAT(cut->AskAll("#4F"), ElementsAre("#B00", "#B0112345"));
  EXPECT_THAT(cut->AskAll("#4F"), SizeIs(5));
  const auto refusing = with("refuse-command");
  const int total = refusing->logger.Total(0);
  for (const char* order : {"#41CLRTEL", "#41VCAUTMACRO=3", "#41CNT0=5", "#41EXP0=5"})
    EXPECT_EQ(refusing->Ask(order), "#BE0") << order;
  EXPECT_EQ(refusing->logger.Conf(), WithNumbers({"12345", "6789"}));
  EXPECT_EQ(refusing->logger.Total(0), total);
}

TEST(SimProbe, TheProbeOnTheBusTellsItsIdentity) {
  LoggerOptions options = MakeDefaultOptions(Model::KA1);
  EXPECT_EQ(SimBench(options).Ask("#FA"), "#05040,113,000,000,000,000,000,011");
  options.probe = {1, 20, 255, 0, 5, 6, 7, 8};
  EXPECT_EQ(SimBench(options).Ask("#FA"), "#05001,020,255,000,005,006,007,008");
  EXPECT_EQ(SimBench(options).Ask("#FA1"), "");
  EXPECT_EQ(SimBench(Model::BP).Ask("#FA"), "") << "it has no bus";
}

}  // namespace
}  // namespace ostrel::sim
