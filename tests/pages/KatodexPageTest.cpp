#include "PageFixture.h"
#include "pages/inputs/Katodex.h"

namespace ostrel {
namespace {

using KatodexPage = PageFixture;

TEST_F(KatodexPage, OffMeasurementsAreCorrectedToTheirRows) {
  Katodex katodex{context};
  Start(katodex);
  for (const auto& [read, shown] :
       {std::pair{ConfKatodex{7, 4, .5F}, ConfKatodex{1, 3, .5F}}, {{2, 30, 1}, {2, 30, 1}}}) {
    conf.Katodex = read;
    katodex.LoadData();
    EXPECT_EQ(conf.Katodex, shown);
  }
  katodex.Clear();
  EXPECT_EQ(On<ComboBox>(katodex, "ComboT_OFF").Text(), "1");
  EXPECT_EQ(On<ComboBox>(katodex, "ComboSamples").Text(), "3");
  EXPECT_EQ(conf.Katodex, (ConfKatodex{2, 30, 1})) << "until the next commit";
  katodex.Form_Deactivate();
  EXPECT_EQ(conf.Katodex, (ConfKatodex{1, 3, 1}));
}

}  // namespace
}  // namespace ostrel
