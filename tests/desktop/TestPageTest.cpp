#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "WindowWorld.h"
#include "desktop/layouts/Layouts.h"
#include "platform/virtual/VirtualDialogs.h"

namespace ostrel {
namespace {

/// A window with a board in the fixture, on the page of its test.
class TestPageView : public testing::Test {
 protected:
  TestPageView() {
    world.StartBefore("Tavro BP", "2");
    world.AddLogger(sim::Model::BP);
    desktop = std::make_unique<Desktop>(
        Platform{.loop = world.loop,
                 .port = world.port,
                 .settings = world.settings,
                 .dialogs = operatorAtWork,
                 .files = world.files,
                 .processes = world.processes,
                 .clock = world.clock},
        ConfiguratorOptions{.programFolder = "/nowhere",
                            .langFile = world.Path("Lang.txt"),
                            .station = {"Ana", "Puesto 1", world.Path("factory")},
                            .factory = true,
                            .ticking = true},
        FromQt(world.folder.path()), world.inspector);
    desktop->Start("");
    desktop->Window().resize(1280, 720);
    desktop->Window().show();
  }
  void Connect() {
    desktop->Core().session.Open(world.kPort, "");
    desktop->Window().GoTo("TEST");
  }
  QString Verdict() { return On<QLabel>(*desktop, "LabelTest")->property("verdict").toString(); }

  WindowWorld<VirtualLoop> world;
  VirtualDialogs operatorAtWork;
  std::unique_ptr<Desktop> desktop;
};

TEST_F(TestPageView, TheNodeStandsForModelsWithATestAlone) {
  EXPECT_TRUE(desktop->Window().Tree().Has("TEST"));
  desktop->Core().TargetDeviceChange("Ostrel VR200");
  EXPECT_FALSE(desktop->Window().Tree().Has("TEST"));
  EXPECT_FALSE(FactoryNode(desktop->Core().profile));
}

TEST_F(TestPageView, ARunEndsOnItsColourWithItsValues) {
  Connect();
  auto* values = On<QTableWidget>(*desktop, "Values");
  for (const bool isGood : {true, false}) {
    const QSize needs = desktop->Window().Pages().Front()->minimumSizeHint();
    EXPECT_LE(needs.width(), desktop->Window().Pages().width());
    EXPECT_LE(needs.height(), desktop->Window().Pages().height());
    if (!isGood) {
      world.logger->InFixture().Script().driven[6].analogs[0] = 900;
      Connect();
    }
    ASSERT_TRUE(On(*desktop, "Command1")->isEnabled());
    EXPECT_FALSE(On(*desktop, "CommandStop")->isEnabled());
    bool couldStop = false;
    operatorAtWork.whileShown = [&](const MessageBox& box) {
      couldStop = On(*desktop, "CommandStop")->isEnabled();
      const auto* step = On<QLabel>(*desktop, "LabelTest");
      EXPECT_GE(step->height(), step->heightForWidth(step->width()));
      EXPECT_TRUE(step->hasHeightForWidth() || step->width() >= step->sizeHint().width())
          << "cut off: " << FromQt(step->text());
      EXPECT_FALSE(desktop->Window().IsLineInUse()) << "a box would not wait: " << box.text;
      world.loop.RunFor(std::chrono::seconds(2));
    };
    On<QPushButton>(*desktop, "Command1")->click();
    EXPECT_TRUE(couldStop);
    EXPECT_EQ(Verdict(), isGood ? "passed" : "failed");
    EXPECT_EQ(values->rowCount(), 42);
    EXPECT_EQ(values->item(32, 0)->text(), "VO2=24 A0");
    EXPECT_EQ(values->item(32, 2)->text(), "<= 0.7");
    EXPECT_EQ(values->item(32, 3)->text().contains("FAILED"), !isGood);
    const QColor step = On(*desktop, "LabelTest")->grab().toImage().pixelColor(20, 20);
    EXPECT_EQ(step.green() > step.red(), isGood) << FromQt(step.name());
    const QPoint corner = values->visualItemRect(values->item(32, 0)).topLeft() + QPoint(2, 2);
    const QImage seen = values->viewport()->grab().toImage();
    EXPECT_EQ(seen.valid(corner) && seen.pixelColor(corner) == QColor("#c92a2a"), !isGood);
    EXPECT_EQ(values->currentRow(), isGood ? 41 : 32) << "what failed first is in view";
    EXPECT_GE(On<QLabel>(*desktop, "LabelTest")->font().pointSize(), 30) << "read from afar";
  }
}

/// The run goes on behind another page, and what the operator has typed stays.
TEST_F(TestPageView, TheStopButtonEndsTheRunWithTheFixtureOff) {
  Connect();
  TextBox& who = desktop->Navigator().Front()->Get<TextBox>("TextOperator");
  TextBox& where = desktop->Navigator().Front()->Get<TextBox>("TextStation");
  who.Type("Luz");
  where.Type("");
  const auto& fixture = world.logger->InFixture();
  int level = 0;
  for (const auto& [second, node] : {std::pair{6, "General"}, {8, "TEST"}})
    world.loop.After(std::chrono::seconds(second), "operator",
                     [this, node = node] { desktop->Window().GoTo(node); });
  world.loop.After(std::chrono::seconds(9), "operator", [&] {
    EXPECT_EQ(who.Text() + where.Text(), "Luz") << "as it stands recorded";
    for (int output = 0; output < 4; ++output) level += fixture.Level(output);
    On<QPushButton>(*desktop, "CommandStop")->click();
    On<QPushButton>(*desktop, "CommandStop")->click();
  });
  On<QPushButton>(*desktop, "Command1")->click();
  EXPECT_NE(level, 0) << "in the midst of a stage";
  for (int output = 0; output < 4; ++output) EXPECT_EQ(fixture.Level(output), 0);
  EXPECT_EQ(On<QLabel>(*desktop, "LabelTest")->text(), "Control de calidad NO SUPERADO");
  EXPECT_EQ(Verdict(), "failed");
  EXPECT_TRUE(operatorAtWork.boxes.empty());
  EXPECT_FALSE(On(*desktop, "CommandStop")->isEnabled());
  world.loop.RunFor(std::chrono::seconds(2));
  EXPECT_FALSE(desktop->Core().comms.PortOpen()) << "the session was to end with the run";
  const std::string kept = *world.files.Read(world.Path("factory") + "/test-main.csv");
  EXPECT_NE(kept.find(",Luz,,"), std::string::npos) << kept;
  EXPECT_NE(kept.find(",stopped,yes,"), std::string::npos) << kept;
}

TEST_F(TestPageView, ClosingTheWindowEndsTheRunFirst) {
  Connect();
  bool isOpenStill = false;
  world.loop.After(std::chrono::seconds(7), "operator", [&] {
    desktop->Window().close();
    isOpenStill = desktop->Window().isVisible();
  });
  On<QPushButton>(*desktop, "Command1")->click();
  EXPECT_TRUE(isOpenStill);
  EXPECT_EQ(Verdict(), "failed");
  EXPECT_EQ(world.logger->InFixture().Level(0) + world.logger->InFixture().Level(1), 0);
  EXPECT_TRUE(desktop->Window().close());
}

}  // namespace
}  // namespace ostrel
