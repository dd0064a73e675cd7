#include <gtest/gtest.h>

#include "controls/Form.h"
#include "shell/session/TransferBar.h"

namespace ostrel {
namespace {

TEST(TransferBar, HasItsFixedLengthAndFollowsTheSteps) {
  using Stage = Progress::Stage;
  Form form("Form", "");
  ProgressBar bar(form, "Bar");
  const auto shown = [&](DialogueKind kind, Stage stage, int step) {
    ShowOnBar({kind, stage, step, 400}, bar);
    return std::pair(bar.Maximum(), bar.Value());
  };
  const auto down = DialogueKind::Download, up = DialogueKind::Upload;
  EXPECT_EQ(shown(down, Stage::Begun, 0), std::pair(300, 0));
  EXPECT_EQ(shown(down, Stage::Step, 1), std::pair(300, 0)) << "records are numbered from 0";
  EXPECT_EQ(shown(down, Stage::Step, 300), std::pair(300, 299));
  EXPECT_EQ(shown(down, Stage::Step, 301), std::pair(300, 299)) << "it stops on a longer stream";
  EXPECT_EQ(shown(down, Stage::Done, 301), std::pair(300, 300));
  EXPECT_EQ(shown(up, Stage::Begun, 0), std::pair(350, 0));
  EXPECT_EQ(shown(up, Stage::Step, 1), std::pair(350, 1));
  EXPECT_EQ(shown(up, Stage::Step, 360), std::pair(350, 360)) << "an upload may pass the end";
}

}  // namespace
}  // namespace ostrel
