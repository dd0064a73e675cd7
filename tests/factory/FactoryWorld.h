#pragma once

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/Csv.h"
#include "shell/SimWorld.h"

namespace ostrel {

using Texts = std::vector<std::string>;

constexpr std::string_view kPassedText = "Control de calidad superado con exito";
constexpr std::string_view kFailedText = "Control de calidad NO SUPERADO";

inline sim::LoggerOptions Board(sim::Model model, const std::string& serial = "0") {
  sim::LoggerOptions options = sim::MakeDefaultOptions(model);
  options.serial = serial;
  return options;
}

/// A program with a session, on the page of the test of its model, and a board in the fixture.
class TestStation {
 public:
  explicit TestStation(const sim::LoggerOptions& options) : world(options) {
    ConfiguratorOptions chosen = world.Options(true);
    chosen.station = {"Ana", "Puesto 1", kFolder};
    program = std::make_unique<Configurator>(world.platform, chosen);
    program->StartForCommand(world.TargetName(), 1);
    page = program->profile.IsBP ? &program->test
                                 : (program->profile.IsBQ ? &program->testBQ : &program->testKA2);
    world.clock.SetNow({2012, 3, 5, 9, 0, 0});
    world.logger->SetClock({2012, 3, 5, 9, 0, 0});
    putIn = world.loop.Now();
    EXPECT_TRUE(program->session.Open(SimWorld::kPort, ""));
    page->Form_Activate();
    world.logger->OnExchange([this](const sim::Exchange& exchange) {
      // A message that is said again counts once: the tests are of what is said.
      sent.push_back(exchange.request);
      if (onSent) onSent(exchange.request);
    });
    FaceOf(page->GetForm()["LabelTest"]).OnChanged = [this] {
      const std::string text = Status();
      if (steps.empty() || steps.back() != text) steps.push_back(text);
      if (onStep) onStep(text);
    };
  }

  sim::FixtureScript& Fixture() { return world.logger->InFixture().Script(); }
  std::string Status() const { return FaceOf(page->GetForm()["LabelTest"]).Caption(); }
  std::string Caption(std::string_view name) const {
    return FaceOf(page->GetForm()[name]).Caption();
  }
  BackColour Colour() const { return FaceOf(page->GetForm()["LabelTest"]).Colour(); }
  void Press(std::string_view button) { page->GetForm().Get<Button>(button).Click(); }
  /// Runs the test, and lets the session end.
  void Run() {
    const TimePoint start = world.loop.Now();
    Press("Command1");
    took = world.loop.Now() - start;
    world.loop.RunFor(std::chrono::seconds(3));
  }
  Texts Boxes() const {
    Texts texts;
    for (const MessageBox& box : world.dialogs.boxes) texts.push_back(box.text);
    return texts;
  }
  /// The orders that were sent, without readings and what the session does by itself.
  Texts Orders() const {
    Texts orders;
    for (const std::string& message : sent)
      if (message.starts_with("#41") || message.starts_with("#F5") || message.starts_with("#F6") ||
          message.starts_with("#FB"))
        orders.push_back(message);
    return orders;
  }
  std::string Records(const std::string& test) {
    return world.files.contents[std::string(kFolder) + "/test-" + test + ".csv"];
  }
  /// The last row of a table by its headings.
  std::map<std::string, std::string> LastRecord(const std::string& test);
  std::string& Counter() { return world.files.contents[std::string(kFolder) + "/TestOstrel.ini"]; }

  static constexpr const char* kFolder = "/data/factory";
  SimWorld world;
  std::unique_ptr<Configurator> program;
  TestPage* page = nullptr;
  Texts sent, steps;
  std::function<void(const std::string& message)> onSent;
  std::function<void(const std::string& text)> onStep;
  TimePoint putIn{};  ///< when the board was
  Duration took{};
};

inline std::map<std::string, std::string> TestStation::LastRecord(const std::string& test) {
  const auto rows = ReadCsv(Records(test));
  if (!rows || rows->size() < 2) return {};
  const Texts &names = rows->front(), &fields = rows->back();
  EXPECT_EQ(names.size(), fields.size());
  std::map<std::string, std::string> record;
  for (std::size_t i = 0; i < std::min(names.size(), fields.size()); ++i)
    record[names[i]] = fields[i];
  return record;
}

/// What a good board is sent: a fault at one place changes nothing of it.
inline Texts OrdersOfAGoodBoard(const sim::LoggerOptions& board) {
  TestStation station(board);
  station.Run();
  EXPECT_EQ(station.Status(), kPassedText);
  return station.Orders();
}

}  // namespace ostrel
