#include <gmock/gmock.h>

#include "sim/Logger.h"
#include "sim/SimBench.h"

namespace ostrel::sim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SimLogger, HandshakeOnTheWireAfterItsDelay) {
  SimBench bench(Model::VR200);
  EXPECT_TRUE(bench.line.carrier);
  bench.logger.Receive("\r#64;40\r");
  EXPECT_EQ(bench.line.sent, "");
  bench.loop.RunFor(std::chrono::milliseconds{20});
  ASSERT_EQ(bench.line.sendings.size(), 1U);
  EXPECT_EQ(bench.line.sendings[0].first, std::chrono::milliseconds{2});
  EXPECT_EQ(bench.line.sent, "#B6;BFOstrel VR200 v4.12\r");
}

TEST(SimLogger, WhatItDoesNotKnowIsPassedOverInSilence) {
  SimBench bench(Model::KA1);
  for (const char* request : {"#", "#4", "#400", "#5D1", "#441", "#42x", "#2C", "#2D", "#2B1D24",
                              "#2F1D3D", "#99", "hello", "#41XYZ0=1"})
    EXPECT_THAT(bench.AskAll(request), IsEmpty()) << request;
  EXPECT_EQ(bench.Say("#65;40\r"), "");
}

TEST(SimLogger, TheClockRunsAndIsSet) {
  LoggerOptions options = MakeDefaultOptions(Model::BP);
  options.clockStart = {2026, 1, 15, 8, 30, 5};
  SimBench bench(options);
  EXPECT_EQ(bench.Ask("#5D"), "#A2260115083005");
  bench.loop.RunFor(std::chrono::hours{24});
  EXPECT_EQ(bench.Ask("#5D"), "#A2260116083005");
  EXPECT_EQ(bench.Ask("#5C280229235958"), "#A3");
  bench.loop.RunFor(std::chrono::seconds{2});
  EXPECT_EQ(bench.Ask("#5D"), "#A2280301000000");
  for (const char* bad :
       {"#5C270229235958", "#5C28022923595", "#5C280229245958", "#5C28022923595x"})
    EXPECT_EQ(bench.Ask(bad), "#A30") << bad;
  EXPECT_EQ(bench.logger.Clock(), (DateTime{2028, 3, 1, 0, 0, 0}));
  options.clockOffsetSeconds = -3600;
  EXPECT_EQ(SimBench(options).Ask("#5D"), "#A2260115073005");
}

TEST(SimLogger, TotalsAndOutputs) {
  SimBench bench(Model::S100);
  EXPECT_EQ(bench.Ask("#41CNT1=1500"), "#BE1");
  EXPECT_EQ(Field(bench.Ask("#20"), 3), "1500");
  EXPECT_EQ(bench.Ask("#41EXP95=7"), "#BE1");
  EXPECT_EQ(Field(bench.Ask("#2F95B5"), 33), "7");
  bench.loop.RunFor(std::chrono::minutes{10});
  EXPECT_GT(std::stoi(Field(bench.Ask("#20"), 3)), 1500);
  EXPECT_GT(std::stoi(Field(bench.Ask("#2F95B5"), 33)), 7);
  for (const char* bad : {"#41CNT2=1", "#41EXP96=1", "#41CNT1=x", "#41CNT1", "#41CNT1=1x",
                          "#41CNT-1=1", "#41CNT1=99999999999"})
    EXPECT_EQ(bench.Ask(bad), "#BE0") << bad;

  SimBench outputs(Model::KA1);
  for (const char* on : {"#470", "#475"}) EXPECT_EQ(outputs.Ask(on), "#B81");
  EXPECT_EQ(outputs.Ask("#476"), "#B80");
  EXPECT_EQ(outputs.logger.Outputs(), 0b100001U);
  EXPECT_EQ(Field(outputs.Ask("#23"), 3), "33");
}

TEST(SimLogger, LiveAnswersStandInTheirFields) {
  SimBench bench(Model::VR200);
  bench.logger.SetConf(DemoConfiguration(Model::VR200));
  const struct {
    const char* request;
    const char* head;
    int fields;
  } shapes[] = {{"#20", "#DF", 10}, {"#22", "#DD", 10},  {"#23", "#DC", 8}, {"#25", "#DA", 25},
                {"#26", "#D9", 10}, {"#27", "#D8", 19},  {"#28", "#D7", 9}, {"#29", "#D6", 5},
                {"#2A", "#D5", 17}, {"#2C", "#D3", 129}, {"#2D", "#D2", 33}};
  for (const auto& shape : shapes) {
    const std::string answer = bench.Ask(shape.request);
    EXPECT_EQ(Field(answer, 1), shape.head);
    EXPECT_NE(Field(answer, shape.fields), "(none)") << answer;
    EXPECT_EQ(Field(answer, shape.fields + 1), "(none)") << answer;
  }
  for (const auto& [request, field, text] : {std::tuple{"#25", 6, "Nivel dep\xF3sito"},
                                             {"#25", 25, "NTU"},
                                             {"#26", 3, "Caudal salida"},
                                             {"#27", 7, "l/min"},
                                             {"#2A", 4, "Balance"},
                                             {"#2A", 5, "m\xB3/h"},
                                             {"#2C", 13, "V"}})
    EXPECT_EQ(Field(bench.Ask(request), field), text) << request;
}

TEST(SimLogger, AuxiliaryAndExpansionInputs) {
  SimBench aux(Model::KA2);
  for (const auto& [request, fields] : {std::pair{"#35", 17}, {"#36", 5}}) {
    EXPECT_NE(Field(aux.Ask(request), fields), "(none)");
    EXPECT_EQ(Field(aux.Ask(request), fields + 1), "(none)");
  }

  SimBench bench(Model::S100);
  Configuration conf;
  conf.expansion[8].name = "Nivel";
  conf.expansion[8].unit = "m";
  conf.expansion[95].name = "Puerta";
  bench.logger.SetConf(conf);
  EXPECT_EQ(bench.Ask("#2B252C"), "#D4,Nivel,m,,,,,,,,,,,,,,");
  EXPECT_EQ(bench.Ask("#2BADB4"), "#D4,,,,,,,,,,,,,,,Puerta,");
  for (const char* range : {"#2F1D3D", "#2F7595", "#2F95B5"}) {
    EXPECT_NE(Field(bench.Ask(range), 33), "(none)") << range;
    EXPECT_EQ(Field(bench.Ask(range), 34), "(none)") << range;
  }
  for (const char* bad : {"#2B", "#2B1D25", "#2B1C23", "#2B3A41", "#2b252c", "#2F1D3C", "#2F1E3E",
                          "#2F96B6", "#2FFFFF"})
    EXPECT_EQ(bench.Ask(bad), "") << bad;
}

TEST(SimLogger, ReadingsMoveSlowlyAndRepeatBySeed) {
  LoggerOptions options = MakeDefaultOptions(Model::VR200);
  SimBench one(options);
  SimBench same(options);
  options.seed = 2;
  SimBench other(options);
  for (SimBench* bench : {&one, &same, &other})
    bench->logger.SetConf(DemoConfiguration(Model::VR200));
  const std::string first = one.Ask("#2D");
  EXPECT_EQ(same.Ask("#2D"), first);
  EXPECT_NE(other.Ask("#2D"), first);
  one.loop.RunFor(std::chrono::seconds{1});
  const std::string next = one.Ask("#2D");
  EXPECT_NE(next, first);
  for (int n = 2; n <= 33; ++n)
    EXPECT_NEAR(std::stod(Field(next, n)), std::stod(Field(first, n)), 5.0) << n;
}

// ---- Uploads

TEST(SimUpload, ACompleteUploadIsTakenOverWhole) {
  SimBench bench(Model::KA1);
  Configuration held;
  held.ownNumber = "699";
  bench.logger.SetConf(held);
  EXPECT_EQ(bench.Ask("#45000ID=Nuevo"), "");
  EXPECT_EQ(bench.Ask("#45001DINAME7=Boya"), "");
  EXPECT_EQ(bench.logger.Conf(), held);
  EXPECT_EQ(bench.Ask("#46002"), "#B91");
  EXPECT_EQ(bench.logger.Conf().name, "Nuevo");
  EXPECT_EQ(bench.logger.Conf().digitals[7].name, "Boya");
  EXPECT_EQ(bench.logger.Conf().ownNumber, "699");
  EXPECT_EQ(bench.logger.UploadsTaken(), 1U);
  EXPECT_EQ(bench.Ask("#46002"), "#B90");
}

TEST(SimUpload, ARefusalEndsTheAttemptUntilTheFirstStatementComesAgain) {
  SimBench bench(Model::KA1);
  EXPECT_EQ(bench.Ask("#45000ID=Nuevo"), "");
  EXPECT_EQ(bench.Ask("#45001DINAME8=Boya"), "#BA0001");
  EXPECT_EQ(bench.Ask("#45002DINAME8=Boya"), "");
  EXPECT_EQ(bench.Ask("#46003"), "#B90");
  EXPECT_EQ(bench.Ask("#46001"), "#B90");
  EXPECT_EQ(bench.logger.Conf(), Configuration{});
  EXPECT_EQ(bench.UploadAll({"ID=Otro"}), "#B91");
  EXPECT_EQ(bench.logger.Conf().name, "Otro");
}

TEST(SimUpload, NumbersMustBeInOrderAndCounted) {
  SimBench bench(Model::KA1);
  EXPECT_EQ(bench.Ask("#45001ID=x"), "");
  EXPECT_EQ(bench.Ask("#45000ID=x"), "");
  EXPECT_EQ(bench.Ask("#45002CSM="), "#BA0002");
  bench.Ask("#45000ID=x");
  bench.Ask("#45001CSM=");
  EXPECT_EQ(bench.Ask("#45001CSM="), "#BA0001");
  bench.Ask("#45000ID=x");
  EXPECT_EQ(bench.Ask("#45xxxCSM="), "#BA0xxx");
  bench.Ask("#45000ID=x");
  EXPECT_EQ(bench.Ask("#46002"), "#B90");
  EXPECT_EQ(bench.Ask("#46001"), "#B90");
  bench.Ask("#45000ID=x");
  EXPECT_EQ(bench.Ask("#4601"), "#B90");
  bench.Ask("#45000ID=first");
  bench.Ask("#45000ID=second");
  EXPECT_EQ(bench.Ask("#46001"), "#B91");
  EXPECT_EQ(bench.logger.Conf().name, "second");
}

TEST(SimUpload, StatementsOfOneBurstKeepTheirOrder) {
  SimBench bench(Model::KA1);
  bench.Say(ComposeFrame("#45000ID=a") + ComposeFrame("#45001REST=b") + ComposeFrame("#46002"));
  EXPECT_THAT(Messages(bench.line.sent), ElementsAre("#B91"));
  EXPECT_EQ(bench.line.sendings[0].first, std::chrono::milliseconds{6});
}

TEST(SimLogger, AClosedPortForgetsWhatWasBegun) {
  SimBench bench(Model::KA1);
  bench.logger.Receive("#64;40\r#64;4");
  bench.logger.SetTerminalReady(false);
  bench.logger.SetTerminalReady(true);
  EXPECT_EQ(bench.Say("0\r"), "");
  EXPECT_NE(bench.Ask("#40"), "");
}

/// Requests beyond the memory are lost as octets on a line are; what comes later is answered.
TEST(LoggerTest, AFloodIsBounded) {
  SimBench bench(Model::BP);
  int answered = 0;
  bench.logger.OnExchange([&](const Exchange&) { ++answered; });
  const std::string request = ComposeFrame("#99" + std::string(60'000, 'x'));
  for (int i = 0; i < 100; ++i) bench.logger.Receive(request);
  bench.loop.RunFor(std::chrono::seconds(10));
  EXPECT_LT(answered, 20);
  EXPECT_THAT(bench.Ask("#40"), testing::StartsWith("#BF"));
}

TEST(SimLogger, ValuesMoveAsThoseOfAWaterworksDo) {
  const Identity self{Model::VR200, MakeDefaultOptions(Model::VR200).features};
  const Configuration conf = DemoConfiguration(Model::VR200);
  const LiveValues live(self, 1, ToSeconds({2026, 1, 15, 0, 0, 0}));
  constexpr int kHour = 3600, kMinute = 60;
  float lowest = 99, highest = 0, jump = 0;
  double flowed = 0;
  for (int now = 0; now < 24 * kHour; now += kMinute) {
    const float level = live.Analog(conf, 0, now);
    lowest = std::min(lowest, level);
    highest = std::max(highest, level);
    jump = std::max(jump, std::abs(live.Analog(conf, 0, now + 1) - level));
    const double flow = live.Flow(conf, 0, now);
    flowed += flow / kHour * kMinute;
  }
  EXPECT_LT(lowest, 1.5F);
  EXPECT_GT(highest, 5.5F);
  EXPECT_LT(jump, 0.3F) << "no level jumps within a second";
  const double counted = (live.Counter(0, 24 * kHour) - live.Counter(0, 0)) * 0.1;
  EXPECT_NEAR(counted, flowed, flowed * 0.02) << "the counter counts what flows";
  EXPECT_FLOAT_EQ(live.Modbus(conf, 3, 0), 0) << "a contact that is open";
  EXPECT_GT(live.Modbus(conf, 0, 24 * kHour), live.Modbus(conf, 0, 0)) << "energy grows";
  EXPECT_EQ(live.Modbus(conf, 20, 0), 0) << "it is not set up";

  SimBench probes(Model::KA1);
  probes.logger.SetConf(DemoConfiguration(Model::KA1));
  EXPECT_EQ(Field(probes.Ask("#35"), 4), "Temperatura agua");
  EXPECT_EQ(Field(probes.Ask("#36"), 4), "0") << "no third probe is set up";
}

}  // namespace
}  // namespace ostrel::sim
