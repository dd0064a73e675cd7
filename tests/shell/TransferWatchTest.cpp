#include <gtest/gtest.h>

#include "SimWorld.h"
#include "platform/virtual/VirtualSettings.h"
#include "shell/TransferWatch.h"
#include "sim/LineComposer.h"

namespace ostrel {
namespace {

using Stage = Progress::Stage;

class TransferWatches : public testing::Test {
 protected:
  /// So many steps of a transfer, a tenth of a second each.
  void Steps(int from, int to) {
    for (int step = from; step <= to; ++step) {
      loop.RunFor(std::chrono::milliseconds(100));
      watch.Follow({DialogueKind::Download, Stage::Step, step, 0});
    }
  }
  void Ends(Stage stage) {
    watch.Follow({DialogueKind::Download, stage, watch.Done(), 0});
    watch.End();
  }

  VirtualLoop loop;
  VirtualSettings settings;
  TransferWatch watch{loop, settings};
};

TEST_F(TransferWatches, CountBeyondThePrescribedBarAndRememberHowLongADownloadWas) {
  watch.BeginReading("VR200");
  EXPECT_EQ(watch.Steps(), 150) << "as is usual";
  Steps(1, 420);
  Ends(Stage::Done);
  watch.BeginReading("VR200");
  EXPECT_EQ(watch.Steps(), 420);
  Steps(1, 300);
  EXPECT_NEAR(std::chrono::duration<double>(*watch.Left()).count(), 12, 0.2);
  Ends(Stage::Failed);
  watch.BeginReading("VR200");
  EXPECT_EQ(watch.Steps(), 420) << "one that failed tells nothing";
  watch.BeginReading("TAVRO");
  EXPECT_EQ(watch.Steps(), 150) << "each model for itself";
}

/// A later attempt does not undo that the logger may have got the whole of an earlier one.
TEST_F(TransferWatches, KnowThatAnAttemptHasReachedTheEnd) {
  watch.BeginWriting(3);
  Steps(1, 2);
  EXPECT_FALSE(watch.ReachedEnd());
  Steps(3, 3);
  Steps(1, 1);
  EXPECT_TRUE(watch.ReachedEnd());
  watch.BeginWriting(3);
  EXPECT_FALSE(watch.ReachedEnd());
}

TEST(TransferWatch, FollowsTheTransfersOfASession) {
  sim::LoggerOptions options = sim::MakeDefaultOptions(sim::Model::S100);
  SimWorld world(options);
  world.logger->SetConf(sim::RandomConfiguration(options.model, options.features, 3, 1.0));
  Configurator program(world.platform, world.Options(false));
  program.StartForCommand(world.TargetName(), 1);
  ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
  TransferWatch& watch = program.session.Watch();
  int steps = 0;
  watch.OnStep = [&] { ++steps; };
  ASSERT_TRUE(program.session.Download());
  const auto records = sim::ConfigurationRecords(world.logger->Conf(), world.logger->Self()).size();
  EXPECT_GT(records, 300U);
  EXPECT_EQ(watch.Done(), static_cast<int>(records));
  EXPECT_GE(steps, watch.Done());
  watch.BeginReading(program.profile.TargetType);
  EXPECT_EQ(watch.Steps(), static_cast<int>(records));
  ASSERT_TRUE(program.session.Upload());
  EXPECT_FALSE(watch.Running());
  EXPECT_EQ(watch.Steps(), static_cast<int>(program.comms.ComposeStatements().size()));
  EXPECT_EQ(watch.Done(), watch.Steps());
}

}  // namespace
}  // namespace ostrel
