#include <gtest/gtest.h>

#include "FactoryWorld.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kMainRest = "#41VO0=0;VO1=0;VO2=0;VO3=0";
constexpr const char* kMainLast = "Compruebe que la tension del polimetro es menor de 50mV";

TEST(MainBoard, AGoodBoardPassesAndGetsItsNumber) {
  TestStation station(Board(sim::Model::BP));
  station.Counter() = "[NS]\r\nNS=41\r\n";
  Texts atLast;
  station.world.dialogs.whileShown = [&](const MessageBox& box) {
    EXPECT_EQ(box.title, "Tavro BP");
    EXPECT_NE(station.Records("main"), "") << "the record stands ahead of the end of the session";
    station.world.loop.RunFor(std::chrono::seconds(2));
    atLast.push_back(station.program->Connected ? "open" : "closed");
  };
  station.Run();
  EXPECT_LT(station.took, std::chrono::seconds(40)) << "without the operator";
  EXPECT_THAT(station.Boxes(), ElementsAre(kMainLast));
  EXPECT_THAT(atLast, ElementsAre("closed"));
  EXPECT_THAT(
      station.steps,
      ElementsAre("Iniciando...", "Comprobando E/S (1/8)...", "Comprobando E/S (2/8)...",
                  "Comprobando E/S (3/8)...", "Comprobando E/S (4/8)...",
                  "Comprobando E/S (5/8)...", "Comprobando E/S (6/8)...",
                  "Comprobando E/S (7/8)...", "Comprobando E/S (8/8)...", "Comprobando GSM...",
                  "Comprobacion de consumo en modo idle, desconecte el USB y J9", kPassedText));
  EXPECT_THAT(
      station.Orders(),
      ElementsAre(kMainRest, kMainRest, "#41VO0=12", kMainRest, "#41VO1=12", kMainRest, "#41VO2=12",
                  kMainRest, "#41VO3=12", kMainRest, "#41VO0=24", kMainRest, "#41VO1=24", kMainRest,
                  "#41VO2=24", kMainRest, "#41VO3=24", kMainRest, "#F61203050042", "#F5"));
  EXPECT_EQ(station.Caption("DigitSerial"), "1203050042");
  EXPECT_EQ(station.Colour(), BackColour::Green);
  EXPECT_EQ(station.page->GetForm().Get<ProgressBar>("ProgressBar1").Value(), 18)
      << "as the session told it";
  EXPECT_EQ(station.Counter(), "[NS]\r\nNS=42\r\n");
  EXPECT_FALSE(station.program->Connected);
}

/// What is told of a value of a stage, the inputs or an analog one, ahead of what was read.
std::string FailureText(std::size_t stage, std::size_t value) {
  constexpr const char* kInputs[] = {"3", "10", "80", "160"};
  const std::size_t own = stage % 4, analog = value - 1;
  if (value == 0)
    return "Error en S" + std::to_string(own) + ", se esperaba " + kInputs[own] + ", lectura=";
  const char* wanted = analog != own ? "< 0.7" : own == 3 ? "2.5" : stage < 4 ? "4.7" : "8.7";
  const std::string name = analog == 3 && own < 2 ? "31" : std::to_string(analog);
  return "Error en A" + name + ", se esperaba " + wanted + ", lectura=";
}

TEST(MainBoard, EachFailureIsToldInItsPlaceAndTheRunGoesOn) {
  const Texts orders = OrdersOfAGoodBoard(Board(sim::Model::BP));
  for (std::size_t stage = 0; stage < 8; ++stage) {
    for (std::size_t value = 0; value < 5; ++value) {
      SCOPED_TRACE(std::to_string(stage) + "." + std::to_string(value));
      TestStation station(Board(sim::Model::BP));
      sim::InputReading& reading = station.Fixture().driven.at(stage);
      if (value == 0)
        reading.inputs = 9;
      else
        reading.analogs.at(value - 1) = 1000;
      std::size_t readings = 0;
      station.world.dialogs.whileShown = [&](const MessageBox&) {
        if (readings == 0)
          readings = static_cast<std::size_t>(std::ranges::count(station.sent, "#F4"));
      };
      station.Run();
      const std::string failure = FailureText(stage, value) + (value == 0 ? " 9" : " 2.4475");
      EXPECT_THAT(station.Boxes(), ElementsAre(failure, kMainLast));
      EXPECT_EQ(readings, stage + 1) << "told within its stage";
      EXPECT_EQ(station.Status(), kFailedText);
      EXPECT_EQ(station.Orders(), orders);
      EXPECT_EQ(station.LastRecord("main")["failures"], failure);
    }
  }
}

/// Both ends of a band belong to it, in single precision: the next number beyond is a failure.
TEST(MainBoard, TheEndsOfABandBelongToIt) {
  for (const auto& [analog, steps, passes] : {std::tuple{0U, 1797.75293F, true},
                                              {0U, 1797.75281F, false},
                                              {0U, 1961.18506F, true},
                                              {0U, 1961.18518F, false},
                                              {1U, 286.006134F, true},
                                              {1U, 286.006165F, false}}) {
    TestStation station(Board(sim::Model::BP));
    station.Fixture().driven[0].analogs.at(analog) = steps;
    station.Run();
    EXPECT_EQ(station.Status(), passes ? kPassedText : kFailedText) << steps;
  }
}

TEST(MainBoard, ABoardShowsAllItsFaultsInOrder) {
  sim::LoggerOptions options = Board(sim::Model::BP);
  options.battery = 469;
  options.fixture.driven[1] = {-1, {2000, 0, 0, 0}};
  options.fixture.gsm = {{Duration{}, 6}};
  TestStation station(options);
  std::vector<std::size_t> orders;
  station.world.dialogs.whileShown = [&](const MessageBox&) {
    orders.push_back(station.Orders().size());
    EXPECT_FALSE(station.program->comms.LinkBusy) << "the session goes on";
  };
  station.onSent = [&](const std::string& message) {
    EXPECT_TRUE(station.program->comms.LinkBusy) << message;
  };
  station.Run();
  EXPECT_EQ(orders.front(), 1u) << "the battery is judged ahead of the second order";
  EXPECT_THAT(station.Boxes(), ElementsAre("Tension de bateria demasiado baja",
                                           "Error en S1, se esperaba 10, lectura=-1",
                                           "Error en A0, se esperaba < 0.7, lectura= 4.895",
                                           "Error en A1, se esperaba 4.7, lectura= .02937",
                                           "Error, Gsm SIM no presente", kMainLast));
  EXPECT_EQ(station.Colour(), BackColour::Red);
  auto record = station.LastRecord("main");
  EXPECT_EQ(record["VO0=12 A0"], "4.6013");
  EXPECT_EQ(record["VO1=12 A1"], "0.02937");
  EXPECT_EQ(record["VO0=12 A0 band"], "4.4..4.8");
  EXPECT_EQ(record["VO1=12 S"], "-1");
  EXPECT_EQ(record["VBat"], "4.7");
  EXPECT_EQ(record["verdict"], "failed");
  EXPECT_GT(record["seconds"].size(), 1U);
}

TEST(MainBoard, AnUnconfirmedFirstOrderChecksNothingAndPasses) {
  for (const bool isSilent : {false, true}) {
    SCOPED_TRACE(isSilent);
    sim::LoggerOptions options = Board(sim::Model::BP);
    options.faults.push_back({.kind = sim::FaultKind::RefuseCommand, .once = true});
    TestStation station(options);
    station.Counter() = "[NS]\r\nNS=7\r\n";
    if (isSilent) station.world.logger->InFixture().Sleep();
    station.Run();
    EXPECT_EQ(station.Status(), kPassedText);
    EXPECT_EQ(station.Colour(), BackColour::Window) << "nothing was checked";
    EXPECT_EQ(station.Counter(), "[NS]\r\nNS=7\r\n");
    EXPECT_EQ(std::ranges::count(station.sent, "#F6"), isSilent ? 3 : 1) << "without a number";
    EXPECT_EQ(std::ranges::count(station.sent, "#F4"), 0);
    EXPECT_EQ(station.sent.back(), "#F5");
    auto record = station.LastRecord("main");
    EXPECT_EQ(record["checked"], "no");
    EXPECT_EQ(record["VBat"], "");
  }
}

TEST(MainBoard, TheModemIsAwaitedForElevenRounds) {
  struct Case {
    std::vector<std::pair<int, int>> states;  ///< from a second of the check on
    int rounds;
    const char* failure;
  };
  const Case cases[] = {
      {{{0, 0}}, 11, "Error, Gsm inicializando"},
      {{{0, 1}}, 1, ""},
      {{{0, 2}}, 1, "Error, PIN bloqueado"},
      {{{0, 3}}, 1, "Error, PUK bloqueado"},
      {{{0, 4}}, 1, "Error, Gsm no registrado"},
      {{{0, 5}}, 1, "Error, Gsm no presente"},
      {{{0, 6}}, 1, "Error, Gsm SIM no presente"},
      {{{0, 7}}, 1, "Error, Gsm SIM invalida"},
      {{{0, 8}}, 1, "Error, Gsm PIN no valido"},
      {{{0, 9}}, 1, ""},
      {{{0, -1}}, 1, ""},
      {{{0, 0}, {32, 1}}, 11, ""},
  };
  const Texts orders = OrdersOfAGoodBoard(Board(sim::Model::BP, "BP-1"));
  for (const Case& one : cases) {
    SCOPED_TRACE(one.states.back().second);
    TestStation station(Board(sim::Model::BP, "BP-1"));
    std::size_t before = 0;
    station.onStep = [&](const std::string& text) {
      if (text != "Comprobando GSM...") return;
      before = static_cast<std::size_t>(std::ranges::count(station.sent, "#F4"));
      station.Fixture().gsm.clear();
      for (const auto& [second, state] : one.states)
        station.Fixture().gsm.emplace_back(
            station.world.loop.Now() - station.putIn + std::chrono::seconds(second), state);
    };
    station.Run();
    EXPECT_EQ(static_cast<int>(std::ranges::count(station.sent, "#F4")) - static_cast<int>(before),
              one.rounds);
    Texts boxes = station.Boxes();
    boxes.pop_back();
    EXPECT_EQ(boxes, *one.failure ? Texts{one.failure} : Texts{});
    EXPECT_EQ(station.Orders(), orders);
    EXPECT_EQ(station.Status(), *one.failure ? kFailedText : kPassedText);
  }
}

TEST(MainBoard, OnlyTheTextZeroIsABlankNumber) {
  for (const char* own : {"BP-000137", "-1", "00", ""}) {
    TestStation station(Board(sim::Model::BP, own));
    station.Run();
    EXPECT_EQ(station.Caption("DigitSerial"), own);
    EXPECT_EQ(station.Counter(), "[NS]\r\nNS=1\r\n") << "the counter grows all the same";
    EXPECT_EQ(station.LastRecord("main")["given serial"], "");
  }
}

TEST(MainBoard, WhileATestRunsNothingElseUsesTheSession) {
  TestStation station(Board(sim::Model::BP));
  station.onStep = [&](const std::string& text) {
    EXPECT_FALSE(text == "Iniciando..." && FaceOf(station.page->GetForm()["Command1"]).Enabled());
    if (text != "Comprobando E/S (1/8)...") return;
    SessionFrame& frame = station.program->general.Session();
    EXPECT_FALSE(frame.Leer.face.Enabled());
    station.program->session.AskFor(SessionPhase::Reading);
    EXPECT_FALSE(frame.ReadRequest);
    EXPECT_FALSE(FaceOf(station.page->GetForm()["TextOperator"]).Enabled()) << "it stands recorded";
    frame.IniCom.Click();
  };
  station.Run();
  EXPECT_EQ(std::ranges::count(station.sent, "#42"), 0);
  EXPECT_EQ(station.Status(), kPassedText);
  EXPECT_FALSE(station.program->Connected) << "asked for twice, closed once";
}

TEST(MainBoard, AStopSwitchesTheOutputsOffAndIsRecorded) {
  TestStation station(Board(sim::Model::BP));
  TimePoint stopped{};
  const TimePoint start = station.world.loop.Now();
  station.onSent = [&](const std::string& message) {
    if (message != "#41VO2=12") return;
    station.world.loop.After(std::chrono::seconds(1), "operator", [&] {
      stopped = station.world.loop.Now();
      station.Press("CommandStop");
    });
  };
  station.Run();
  EXPECT_LT(start + station.took - stopped, std::chrono::seconds(1)) << "it does not wait";
  EXPECT_EQ(station.Status(), kFailedText);
  EXPECT_THAT(station.Boxes(), IsEmpty());
  EXPECT_EQ(station.Orders().back(), kMainRest);
  EXPECT_EQ(station.world.logger->InFixture().Level(2), 0);
  EXPECT_FALSE(station.program->Connected);
  auto record = station.LastRecord("main");
  EXPECT_EQ(record["verdict"], "stopped");
  EXPECT_EQ(record["VO1=12 S"], "10");
  EXPECT_EQ(record["VO2=12 S"], "");
}

TEST(MainBoard, ALineThatGoesEndsTheRun) {
  TestStation station(Board(sim::Model::BP));
  station.onSent = [&](const std::string& message) {
    if (message == "#41VO1=24") station.world.line->Vanish();
  };
  station.Run();
  EXPECT_EQ(station.Status(), kFailedText);
  EXPECT_LT(station.took, std::chrono::seconds(25));
  EXPECT_EQ(station.LastRecord("main")["verdict"], "broken off");
}

}  // namespace
}  // namespace ostrel
