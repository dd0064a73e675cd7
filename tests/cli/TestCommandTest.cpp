#include "World.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;

/// A shell beside a fixture with boards that have no number.
class FactoryTest : public testing::Test {
 protected:
  FactoryTest()
      : world(With([](sim::LoggerOptions& options) {
          options.serial = options.model == sim::Model::KA2 ? "-1" : "0";
        })) {
    world.environment.station = {"root", "bench", "/home/user/data/factory"};
  }
  /// Answers what the operator is asked, and keeps it.
  void SitDown() {
    world.environment.ask = [this](std::string_view prompt, bool) -> std::optional<std::string> {
      asked.emplace_back(prompt);
      return onAsk ? onAsk() : "";
    };
  }

  World world;
  std::vector<std::string> asked;
  std::function<std::optional<std::string>()> onAsk;
};

TEST_F(FactoryTest, EachTestPassesAndIsRecorded) {
  for (const auto& [word, model, serial] : {std::tuple{"main", "BP", "2603020001"},
                                            {"ka2", "KA2", "2603020002"},
                                            {"bq", "BQ", "2603020003"}}) {
    const std::string line = std::string("test ") + word + " --operator Ana --port sim:" + model;
    EXPECT_EQ(world.Run(line + " --json --yes"), 0) << world.err;
    const QJsonObject record = world.Json().object();
    EXPECT_EQ(record["serial"].toString().toStdString(), serial);
    EXPECT_EQ(record["verdict"].toString(), "passed");
    EXPECT_EQ(record["operator"].toString(), "Ana");
    EXPECT_EQ(record["station"].toString(), "bench");
    EXPECT_FALSE(record["values"].toArray().isEmpty());
    EXPECT_THAT(world.files.contents["/home/user/data/factory/test-" + std::string(word) + ".csv"],
                HasSubstr(serial));
  }
}

TEST_F(FactoryTest, TheOperatorIsAskedInTurn) {
  SitDown();
  world.Expect("test ka2 --port sim:KA2 --folder /share", 0,
               "Ostrel KA2, serial number 2603020001: passed");
  EXPECT_THAT(asked, testing::ElementsAre("Conecte la bateria [Enter] ",
                                          "Desconecte la tension de red [Enter] "));
  EXPECT_TRUE(world.files.contents.contains("/share/TestOstrel.ini"));
}

TEST_F(FactoryTest, WhatIsNotPassedEndsWithOne) {
  world.Logger(sim::Model::BQ).InFixture().Script().gsm = {{Duration{}, 2}};
  EXPECT_EQ(world.Run("test bq --skip-keys --quiet --port sim:BQ"), 1);
  EXPECT_THAT(world.err, HasSubstr("Error, PIN bloqueado"));
  EXPECT_THAT(world.out, HasSubstr("not 0, 2..8    FAILED"));
  world.Expect(
      "history --serial 2603020001", 0,
      "test run      failed    Tavro BQ 2603020001  bq, root, bench: Error, PIN bloqueado\n");
  world.Expect("history show 2", 0,
               "detail        bq, root, bench\n              new number 2603020001\n"
               "              VBat = ");
}

TEST_F(FactoryTest, WhatBreaksOffEndsWithFourAndIsRecorded) {
  SitDown();
  onAsk = [] { return std::nullopt; };  // the terminal ends at the first request
  EXPECT_EQ(world.Run("test ka2 --port sim:KA2 --json"), 4);
  EXPECT_EQ(world.Json().object()["verdict"].toString(), "stopped");
  EXPECT_THAT(world.err, HasSubstr("the test was stopped"));
  EXPECT_EQ(asked.size(), 1u);

  world.Logger(sim::Model::BQ).InFixture().Script().keys.clear();
  world.loop.After(std::chrono::minutes(2), "interrupt", [&] { world.environment.onInterrupt(); });
  EXPECT_EQ(world.Run("test bq --port sim:BQ"), 4) << "out of the wait for a key";
  EXPECT_THAT(world.files.contents["/home/user/data/factory/test-bq.csv"], HasSubstr(",stopped,"));
}

/// The signal ends the wait for an answer, and is then told by the event loop, too.
TEST_F(FactoryTest, OneInterruptAtAQuestionStillSwitchesTheFixtureOff) {
  SitDown();
  bool hasCome = false;
  world.environment.interrupted = [&] { return hasCome; };
  onAsk = [&] {
    hasCome = true;
    world.loop.After(Duration::zero(), "signal", [&] { world.environment.onInterrupt(); });
    return std::nullopt;
  };
  std::vector<std::string> orders;
  world.Logger(sim::Model::KA2).OnExchange([&](const sim::Exchange& exchange) {
    if (exchange.request.starts_with("#41")) orders.push_back(exchange.request);
  });
  EXPECT_EQ(world.Run("test ka2 --port sim:KA2"), 4);
  EXPECT_EQ(std::ranges::count(orders, "#41OUT0=0;OUT1=0"), 2) << "the first order and the last";
}

TEST_F(FactoryTest, WhatIsAskedOfTheOperatorIsSaidInAnyCase) {
  EXPECT_EQ(world.Run("test ka2 --quiet --yes --port sim:KA2"), 0);
  EXPECT_THAT(world.err, testing::StartsWith("Iniciar el test con la bateria desconectada."));
  EXPECT_THAT(world.err, HasSubstr("Control de calidad superado con exito"));
  world.Expect("test bq --quiet --yes --port sim:BQ", 0, "Comprobacion de IN1, pulse la tecla 2");
  EXPECT_EQ(world.err.find("Iniciando"), std::string::npos);
}

TEST_F(FactoryTest, ABoardThatDoesNotConfirmIsNoSuccess) {
  World refusing(WithFaults({"refuse-command@1!once"}));
  refusing.Expect("test main --port sim:BP --yes", 4, "Control de calidad superado con exito");
  EXPECT_THAT(refusing.err, HasSubstr("the checks behind it did not run"));
}

TEST_F(FactoryTest, WhatMakesNoSenseIsRefusedAheadOfASession) {
  world.Expect("test main --port sim:BQ", 2,
               "the test main is for the model Tavro BP, not Tavro BQ");
  EXPECT_EQ(world.Run("test bp --port sim:BP"), 2);
  EXPECT_EQ(world.Run("test main"), 2);
  EXPECT_TRUE(world.files.contents.count("/home/user/data/factory/test-main.csv") == 0);
}

}  // namespace
}  // namespace ostrel::cli
