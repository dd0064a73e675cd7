#include <gmock/gmock.h>

#include "sim/SimBench.h"
#include "sim/wire/Frame.h"

namespace ostrel::sim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SimFrame, Golden) {
  EXPECT_EQ(ComposeFrame("#40"), "#64;40\r");
  EXPECT_EQ(ComposeFrame("#42"), "#66;42\r");
  EXPECT_EQ(ComposeFrame("#BF"), "#88;BF\r");
  EXPECT_EQ(ComposeFrame("#\xF1\xF1"), "#E2;\xF1\xF1\r");
  EXPECT_EQ(ComposeFrame("#@@@@"), "#00;@@@@\r");
  EXPECT_EQ(ComposeFrame("#@@@@\n"), "#0A;@@@@\n\r");
}

TEST(SimFrame, GoodFramesAreTakenWhateverStandsBetween) {
  EXPECT_THAT(Messages("OK\r\n#64;40\r+#66;42\r#88;BF"), ElementsAre("#40", "#42"));
  EXPECT_THAT(Messages("#b9;#B#4\r"), IsEmpty());
  EXPECT_THAT(Messages("#ac;[Q\r"), ElementsAre("#[Q"));
  EXPECT_THAT(Messages("#9C;#B7\r"), ElementsAre("##B7"));
}

TEST(SimFrame, BadFramesAreDropped) {
  for (const char* bad : {"#65;40\r", "#64:40\r", "#00;\r", "#\r", "#6\r", "#G4;40\r", "64;40\r",
                          "#64;40\n", "#64;4\r0\r"})
    EXPECT_THAT(Messages(bad), IsEmpty()) << bad;
  EXPECT_THAT(Messages(std::string(70'000, '#') + "\r#64;40\r"), ElementsAre("#40"));
}

TEST(SimModel, EveryNameLeadsToItsModel) {
  for (const Model model : kModels) {
    const ModelTraits& traits = TraitsOf(model);
    EXPECT_EQ(traits.model, model);
    EXPECT_EQ(ParseModel(traits.word), model);
    EXPECT_EQ(ParseModel(traits.displayName), model);
    EXPECT_EQ(ParseModel(traits.typeWord), model);
  }
  EXPECT_EQ(ParseModel("vr200"), Model::VR200);
  EXPECT_EQ(ParseModel("TAVRO"), Model::BP);
  EXPECT_EQ(ParseModel("tavro bq"), Model::BQ);
  for (const char* none : {"", "KA", "KA11", "OSTREL", "VR200 "})
    EXPECT_EQ(ParseModel(none), std::nullopt) << none;
}

}  // namespace
}  // namespace ostrel::sim
