#include <gtest/gtest.h>

#include "platform/virtual/VirtualLoop.h"
#include "platform/virtual/VirtualSettings.h"
#include "shell/session/TransferWatch.h"

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

}  // namespace
}  // namespace ostrel
