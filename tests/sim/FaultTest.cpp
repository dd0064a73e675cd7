#include <gmock/gmock.h>

#include <bit>
#include <sstream>

#include "sim/Faults.h"
#include "sim/SimBench.h"

namespace ostrel::sim {
namespace {

using namespace std::chrono_literals;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST(SimFault, TextsAreReadAndWritten) {
  std::istringstream texts(
      "drop-octet@1 flip-bit@10-900 duplicate@3!once delay@2:500 delay@2-4:500!once "
      "bad-checksum@7 carrier-drop@1!once vanish@2 silent@1 silent-after-record@0 "
      "silent-after-statement@40!once refuse-statement@0 torn-refusal@40:15 "
      "wrong-closing@2!once refuse-command@3 silent-after-number@1 wrong-sum@1!once "
      "refuse-erase@1 ready-late@1:500 no-alive-mark@2 silent-after-octet@9 "
      "refuse-loader@1!once");
  for (std::string text; texts >> text;) {
    std::string error;
    const auto fault = ParseFault(text, error);
    ASSERT_TRUE(fault) << text << ": " << error;
    EXPECT_EQ(FaultText(*fault), text);
    const std::string name = FaultText(*fault).substr(0, FaultText(*fault).find('@'));
    EXPECT_THAT("\n" + FaultHelp(), ContainsRegex("\n" + name + "\\[?@N")) << text;
  }
  std::string error;
  EXPECT_EQ(ParseFault("silent", error), ParseFault("silent@1", error));
  EXPECT_EQ(ParseFault("wrong-closing!once", error), ParseFault("wrong-closing@1!once", error));
  EXPECT_EQ(ParseFault("torn-refusal@3", error), ParseFault("torn-refusal@3:250", error));
  for (const char* bad :
       {"", "drop", "drop-octet", "drop-octet@", "drop-octet@0", "drop-octet@x", "drop-octet@-1",
        "drop-octet@5-4", "drop-octet@5-", "drop-octet@5:10", "delay@5", "delay@5:", "silent!twice",
        "silent@2 ", "vanish@99999999999", "refuse-statement!once"}) {
    EXPECT_FALSE(ParseFault(bad, error)) << bad;
    EXPECT_NE(error, "") << bad;
  }
}

TEST(SimFault, OctetsAreLostOrTurned) {
  const auto clock = [](std::string_view fault, std::uint64_t seed = 1) {
    SimBench bench(Model::BP, fault, seed);
    const std::string first = bench.Say(ComposeFrame("#5D"));
    return std::pair{first, bench.Say(ComposeFrame("#5D"))};
  };
  EXPECT_EQ(clock("drop-octet@900").first, "#D2;A2260115083005\r");
  EXPECT_EQ(clock("drop-octet@1").first, "");
  EXPECT_EQ(clock("drop-octet@1!once").first.size(), clock("drop-octet@900").first.size() - 1);
  const auto [whole, next] = clock("drop-octet@900");
  const auto [cut, cutNext] = clock("drop-octet@5");
  EXPECT_EQ(cut, std::string(whole).erase(14, 1).erase(9, 1).erase(4, 1));
  const auto [once, onceNext] = clock("drop-octet@19!once");
  EXPECT_EQ(once, whole.substr(0, 18));
  EXPECT_EQ(onceNext, next);
  const auto [flipped, flippedNext] = clock("flip-bit@6!once");
  ASSERT_EQ(flipped.size(), whole.size());
  EXPECT_EQ(std::popcount(static_cast<unsigned char>(flipped[5] ^ whole[5])), 1);
  EXPECT_EQ(flipped.substr(6), whole.substr(6));
}

TEST(SimFault, ARangeIsDrawnFromTheSeed) {
  const auto hurt = [](std::uint64_t seed) {
    return SimBench(Model::BP, "flip-bit@1-500", seed).Say(ComposeFrame("#42"));
  };
  EXPECT_EQ(hurt(3), hurt(3));
  EXPECT_NE(hurt(3), hurt(4));
}

TEST(SimFault, FramesAreDoubledSpoiledOrLate) {
  SimBench twice(Model::BP, "duplicate@2");
  EXPECT_THAT(twice.AskAll("#5D"), SizeIs(1));
  EXPECT_THAT(twice.AskAll("#5D"), SizeIs(2));
  EXPECT_THAT(twice.AskAll("#44"), SizeIs(8 + 4));

  SimBench spoiled(Model::BP, "bad-checksum@2!once");
  EXPECT_NE(spoiled.Ask("#40"), "");
  EXPECT_THAT(spoiled.Say(ComposeFrame("#40")), HasSubstr(";BFTavro"));
  EXPECT_THAT(Messages(spoiled.line.sent), SizeIs(1));
  EXPECT_NE(spoiled.Ask("#40"), "");

  SimBench late(Model::BP, "delay@2:500!once");
  EXPECT_THAT(late.AskAll("#44"), SizeIs(1));
  EXPECT_EQ(late.Ask("#40"), "") << "what follows waits behind";
  late.loop.RunFor(500ms);
  const auto all = Messages(late.line.sent);
  ASSERT_THAT(all, SizeIs(9));
  EXPECT_EQ(all[7], "#BB");
  EXPECT_EQ(all[8], "#BFTavro BP v3.56");
  EXPECT_EQ(late.line.sendings[1].first, 502ms);
}

TEST(SimFault, SilenceAndGoing) {
  SimBench silent(Model::BP, "silent");
  EXPECT_EQ(silent.Ask("#40"), "");
  EXPECT_EQ(silent.Ask("#40"), "");
  SimBench third(Model::BP, "silent@3!once");
  for (const bool answered : {true, true, false, true, true, true})
    EXPECT_EQ(!third.Ask("#40").empty(), answered);
  SimBench dropped(Model::BP, "carrier-drop@2");
  EXPECT_THAT(dropped.AskAll("#44"), SizeIs(8));
  EXPECT_FALSE(dropped.line.carrier);
  dropped.logger.SetTerminalReady(true);
  EXPECT_TRUE(dropped.line.carrier);
  SimBench gone(Model::BP, "vanish@2");
  EXPECT_THAT(gone.AskAll("#44"), SizeIs(2));
  EXPECT_TRUE(gone.line.vanished);
  EXPECT_EQ(gone.Ask("#40"), "");
}

TEST(SimFault, ACutStream) {
  SimBench each(Model::BP, "silent-after-record@50");
  EXPECT_THAT(each.AskAll("#42"), SizeIs(51));
  EXPECT_THAT(each.AskAll("#42"), SizeIs(51));
  SimBench once(Model::BP, "silent-after-record@0!once");
  EXPECT_THAT(once.AskAll("#42"), ElementsAre("#BD000DNAME,"));
  EXPECT_EQ(once.AskAll("#42").back(), "#BD");
}

TEST(SimFault, UploadsThatFail) {
  const std::vector<std::string> statements = {"ID=a", "CSM=b", "PTLF=c"};
  const struct {
    const char* fault;
    std::vector<std::string> heard;  ///< all answers of one attempt
  } cases[] = {
      {"refuse-statement@1", {"#BA0001", "#B90"}},
      {"refuse-statement@3", {"#B91"}},
      {"silent-after-statement@1", {}},
      {"silent-after-statement@2", {}},
      {"wrong-closing", {"#B90"}},
  };
  for (const auto& [text, heard] : cases) {
    SimBench bench(Model::BP, text);
    bench.UploadAll(statements);
    EXPECT_EQ(Messages(bench.line.sent), heard) << text;
    const bool taken = heard == std::vector<std::string>{"#B91"};
    EXPECT_EQ(bench.logger.Conf().name, taken ? "a" : "") << text;
  }
  SimBench second(Model::BP, "wrong-closing@2");
  for (const char* answer : {"#B91", "#B90", "#B91", "#B90"})
    EXPECT_EQ(second.UploadAll(statements), answer);
}

TEST(SimFault, ATornRefusalComesInTwoParts) {
  SimBench bench(Model::BP, "torn-refusal@0:40");
  EXPECT_THAT(bench.AskAll("#45000ID=x"), IsEmpty());
  EXPECT_THAT(bench.line.sent, testing::StartsWith("#"));
  bench.loop.RunFor(40ms);
  EXPECT_THAT(Messages(bench.line.sent), ElementsAre("#BA0000"));
  EXPECT_EQ(bench.line.sendings[1].first - bench.line.sendings[0].first, 40ms);
}

}  // namespace
}  // namespace ostrel::sim
