#include <gtest/gtest.h>

#include "FactoryWorld.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// ---- Ostrel KA2

constexpr const char* kKA2Rest = "#41OUT0=0;OUT1=0";
constexpr const char* kProbeOrder =
    "#41ONEWCONF0=,UNIT=,ONEWADD=000.000.000.000.000.000.000.000,1WTEMP";
constexpr const char* kBattery = "Conecte la bateria";
constexpr const char* kMainsOff = "Desconecte la tension de red";

TEST(KA2Board, AGoodBoardPassesAndGetsItsNumber) {
  TestStation station(Board(sim::Model::KA2, "-1"));
  const TimePoint start = station.world.loop.Now();
  std::vector<Duration> orders;
  station.onSent = [&](const std::string&) { orders.push_back(station.world.loop.Now() - start); };
  EXPECT_EQ(station.Caption("DigitSerial"), "") << "shown at the end alone";
  station.Run();
  EXPECT_GE(orders.front(), std::chrono::seconds(2)) << "the board wakes up first";
  EXPECT_LT(station.took, std::chrono::seconds(18));
  EXPECT_THAT(station.Boxes(), ElementsAre(kBattery, kMainsOff));
  EXPECT_THAT(station.steps, ElementsAre("Iniciando...", "Comprobando E/S...", "Comprobando GSM...",
                                         "Escribiendo numero de serie", kPassedText));
  EXPECT_THAT(station.Orders(), ElementsAre(kProbeOrder, kKA2Rest, "#41OUT0=1;OUT1=1", kKA2Rest,
                                            kKA2Rest, "#F61203050001"));
  EXPECT_EQ(station.Caption("DigitSerial"), "1203050001");
  EXPECT_EQ(station.Caption("Label1"), "Iniciar el test con la bateria desconectada.");
  EXPECT_EQ(station.LastRecord("ka2")["Sonda"], "21.5");
  EXPECT_FALSE(station.program->Connected);
}

TEST(KA2Board, EachFailureIsToldInItsPlace) {
  struct Case {
    void (*spoil)(sim::FixtureScript& fixture);
    Texts boxes;
  };
  const Case cases[] = {
      {[](auto& fixture) { fixture.charger = {0.1F}; },
       {"Error en circuito de carga, la tension no baja",
        "Error en circuito de carga, la tension no alcanza 4.2v", kBattery, kMainsOff}},
      {[](auto& fixture) {
         fixture.charger.assign({0.09F, 4.18F});
       },
       {"Error en circuito de carga, la tension no alcanza 4.2v", kBattery, kMainsOff}},
      {[](auto& fixture) {
         fixture.charger.assign({0.09F, 4.19F});
       },
       {kBattery, kMainsOff}},
      {[](auto& fixture) { fixture.inputsOn = 84; },
       {kBattery, "Error en S0, se esperaba 85, lectura= 84", kMainsOff}},
      {[](auto& fixture) { fixture.inputsOff = 426; },
       {kBattery, "Error en S0, se esperaba 170, lectura= 426", kMainsOff}},
      {[](auto& fixture) { fixture.probe = 40.5F; },
       {kBattery, "Error temperatura de sonda fuera de rango, lectura= 40.5", kMainsOff}},
      {[](auto& fixture) { fixture.probe = 4.9F; },
       {kBattery, "Error temperatura de sonda fuera de rango, lectura= 4.9", kMainsOff}},
      {[](auto& fixture) { fixture.probe = 5; }, {kBattery, kMainsOff}},
      {[](auto& fixture) { fixture.probe = 40; }, {kBattery, kMainsOff}},
      {[](auto& fixture) {
         fixture.gsm.assign(1, {Duration{}, 4});
       },
       {kBattery, "Error, Gsm no registrado", kMainsOff}},
      {[](auto& fixture) { fixture.mainsLasts.reset(); },
       {kBattery, kMainsOff, "Error en deteccion fallo de red"}},
  };
  const Texts orders = OrdersOfAGoodBoard(Board(sim::Model::KA2));
  for (const Case& one : cases) {
    TestStation station(Board(sim::Model::KA2));
    one.spoil(station.Fixture());
    station.Run();
    EXPECT_EQ(station.Boxes(), one.boxes);
    EXPECT_EQ(station.Orders(), orders);
    EXPECT_EQ(station.Status(), one.boxes.size() == 2 ? kPassedText : kFailedText);
  }
}

/// Both voltages have 21 rounds of their own, the second counted anew.
TEST(KA2Board, ChargeInTheVeryLastRoundIsTooLate) {
  for (const auto& [falling, rising, failures] :
       {std::tuple{19, 19, 0}, {20, 0, 1}, {0, 20, 1}, {20, 20, 2}}) {
    TestStation station(Board(sim::Model::KA2));
    auto& charger = station.Fixture().charger;
    charger.assign(static_cast<std::size_t>(falling), 3.0F);
    charger.push_back(0.05F);
    charger.insert(charger.end(), static_cast<std::size_t>(rising), 3.0F);
    charger.push_back(4.2F);
    station.Run();
    EXPECT_EQ(station.Boxes().size(), static_cast<std::size_t>(2 + failures))
        << falling << " " << rising;
    EXPECT_EQ(station.Status() == kPassedText, failures == 0);
    auto record = station.LastRecord("ka2");
    EXPECT_EQ(record["Carga baja"], "0.05") << "reached all the same";
    EXPECT_EQ(record["Carga sube"], "4.2");
  }
}

TEST(KA2Board, AnUnconfirmedFirstOrderStillTestsTheMains) {
  TestStation station(Board(sim::Model::KA2, "-1"));
  station.onSent = [&](const std::string& message) {
    if (message == kProbeOrder) station.world.logger->InFixture().Sleep();
    if (message == kKA2Rest && std::ranges::count(station.sent, kKA2Rest) == 3)
      station.world.logger->InFixture().PutIn(station.world.loop.Now());
  };
  station.Fixture().mainsLasts = std::chrono::seconds(1);
  station.Run();
  EXPECT_THAT(station.Boxes(), ElementsAre(kMainsOff));
  EXPECT_EQ(station.Status(), kPassedText);
  EXPECT_EQ(station.sent.back().substr(0, 3), "#44");
  EXPECT_EQ(station.Orders().back(), "#F6") << "without a number";
  EXPECT_FALSE(station.world.files.Exists("/data/factory/TestOstrel.ini"));
}

TEST(KA2Board, ANumberOfMinusOneIsBlankAndZeroIsNone) {
  for (const auto& [own, isBlank] : {std::pair{"0", false}, {"-1", true}, {" -1.0", true}}) {
    TestStation station(Board(sim::Model::KA2, own));
    station.Run();
    EXPECT_EQ(station.Caption("DigitSerial"), isBlank ? "1203050001" : own);
  }
}

// ---- Tavro BQ

constexpr const char* kBQLast =
    "Desconecte el cable de diagnostico y compruebe que la tension del polimetro es menor de 50mV";

TEST(BQBoard, AGoodBoardPassesKeyByKey) {
  TestStation station(Board(sim::Model::BQ));
  station.Run();
  EXPECT_LT(station.took, std::chrono::seconds(32));
  EXPECT_THAT(station.Boxes(), ElementsAre(kBQLast));
  EXPECT_THAT(station.steps,
              ElementsAre("Iniciando...", "Comprobacion de IN0, pulse la tecla 0", "Ok",
                          "Comprobacion de IN0, pulse la tecla 1", "Ok",
                          "Comprobacion de IN0, pulse la tecla 2", "Ok",
                          "Comprobacion de IN1, pulse la tecla 0", "Ok",
                          "Comprobacion de IN1, pulse la tecla 1", "Ok",
                          "Comprobacion de IN1, pulse la tecla 2", "Ok", "Comprobando GSM...",
                          "Comprobacion de consumo en modo idle", kPassedText));
  EXPECT_THAT(station.Orders(), ElementsAre("#41DISPOF", "#F61203050001", "#FB"));
  auto record = station.LastRecord("bq");
  EXPECT_EQ(record["IN1 tecla 1"], "32");
  EXPECT_EQ(record["operator"], "Ana");
}

TEST(BQBoard, WithoutKeysItGoesStraightToTheModem) {
  sim::LoggerOptions options = Board(sim::Model::BQ);
  options.battery = 400;
  options.fixture.keys.clear();
  TestStation station(options);
  station.page->GetForm().Get<CheckBox>("Check1").SetChecked(true);
  station.onSent = [&](const std::string& message) {
    if (message == "#F4") station.world.logger->InFixture().Sleep();
  };
  station.Run();
  EXPECT_THAT(station.steps, ElementsAre("Iniciando...", "Comprobando GSM...",
                                         "Comprobacion de consumo en modo idle", kFailedText));
  EXPECT_EQ(station.LastRecord("bq")["given serial"], "") << "it has not confirmed it";
  EXPECT_THAT(station.Boxes(), ElementsAre("Tension de bateria demasiado baja", kBQLast));
}

/// The wait for a key has no end of its own: what ends it is the operator, or the line.
TEST(BQBoard, TheWaitForAKeyLastsUntilItIsStopped) {
  for (const bool isSilent : {false, true}) {
    SCOPED_TRACE(isSilent);
    TestStation station(Board(sim::Model::BQ));
    station.Fixture().keys = {1};
    int ticks = 0;
    station.world.loop.Every(std::chrono::seconds(1), "window", [&] { ++ticks; });
    station.onStep = [&](const std::string& text) {
      if (text != "Comprobacion de IN0, pulse la tecla 1") return;
      if (isSilent) station.world.logger->InFixture().Sleep();
      station.world.loop.After(std::chrono::minutes(10), "operator",
                               [&] { station.Press("CommandStop"); });
    };
    station.Run();
    EXPECT_GE(ticks, 600) << "the window is alive";
    EXPECT_EQ(station.Status(), kFailedText);
    EXPECT_THAT(station.Boxes(), IsEmpty());
    EXPECT_EQ(station.Orders().back(), "#41DISPOF");
    auto record = station.LastRecord("bq");
    EXPECT_EQ(record["verdict"], "stopped");
    EXPECT_EQ(record["IN0 tecla 0"], "1");
    EXPECT_EQ(record["IN0 tecla 1"], "");
  }
}

TEST(BQBoard, AClosedPortEndsTheWaitForAKey) {
  TestStation station(Board(sim::Model::BQ));
  station.Fixture().keys.clear();
  station.world.loop.After(std::chrono::minutes(1), "session",
                           [&] { station.program->session.BreakOff(); });
  station.Run();
  EXPECT_EQ(station.Status(), kFailedText);
  EXPECT_EQ(station.LastRecord("bq")["verdict"], "broken off");
  EXPECT_FALSE(station.program->Connected) << "and is not opened anew";
}

// ---- The line

/// Live values are read for a plot, say. The click falls into a round, and the operator takes his
/// time at each request.
TEST(TestPages, ARunHasTheLineToItself) {
  TestStation station(Board(sim::Model::KA2, "-1"));
  station.world.port.SetPaced(true);
  const auto going = station.program->livePoll.KeepGoing();
  bool isClicked = false;
  station.onSent = [&](const std::string& message) {
    if (message != "#22" || std::exchange(isClicked, true)) return;
    station.sent.clear();
    station.world.loop.After(std::chrono::milliseconds(1), "a click",
                             [&] { station.Press("Command1"); });
  };
  station.world.dialogs.whileShown = [&](const MessageBox&) {
    EXPECT_FALSE(station.program->comms.LinkBusy);
    station.Press("Command1");  // one run at a time
    station.world.loop.RunFor(std::chrono::seconds(3));
  };
  station.world.loop.RunFor(std::chrono::seconds(60));
  EXPECT_EQ(station.Status(), kPassedText);
  EXPECT_FALSE(station.program->Connected);
  EXPECT_THAT(station.sent, testing::Each(testing::Not(testing::AnyOf("#20", "#22", "#23"))));
  EXPECT_EQ(std::ranges::count(station.Records("ka2"), '\n'), 2) << "headings and a board";
}

TEST(TestPages, WhatWasNotReadIsNotRecorded) {
  TestStation station(Board(sim::Model::KA2));
  station.Run();
  EXPECT_TRUE(station.program->session.Open(SimWorld::kPort, ""));
  station.world.loop.RunFor(std::chrono::seconds(2));
  station.onSent = [&](const std::string& message) {
    if (message == kKA2Rest) station.world.logger->InFixture().Sleep();
  };
  station.onStep = [&](const std::string& text) {
    EXPECT_TRUE(text != "Iniciando..." || station.Colour() == BackColour::Window) << "not judged";
  };
  station.Run();
  const auto& shown = station.page->GetForm().Get<ListBox>("Values").Rows();
  EXPECT_EQ(shown.front().text, "Carga baja\tsin lectura\t< 0.1");
  EXPECT_EQ(shown.size(), 7U) << "of this run alone";
  const auto record = station.LastRecord("ka2");
  EXPECT_EQ(record.at("Carga sube"), "");
  EXPECT_EQ(record.at("Carga sube band"), "> 4.18");
  EXPECT_THAT(station.Boxes(), testing::Contains("Error en circuito de carga, la tension no baja"))
      << "judged by the last reading of the run before";
  EXPECT_EQ(station.Status(), kFailedText);
}

}  // namespace
}  // namespace ostrel
