#include <fstream>

#include "cli/Console.h"
#include "cli/Result.h"
#include "cli/World.h"
#include "host/LoggerText.h"
#include "model/DeviceInfo.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;

TEST(Json, KeepsOrderDigitsAndWhatIsNoText) {
  std::ostringstream out;
  WriteJson(out,
            Json{{"text", "a\x01\xC3\xB3\xFF"},
                 {"float", JsonNumber(0.1F)},
                 {"none", JsonNumber(std::numeric_limits<float>::quiet_NaN())}},
            JsonLayout::OneLine);
  EXPECT_EQ(out.str(), "{\"text\":\"a\\u0001\xC3\xB3\xEF\xBF\xBD\",\"float\":0.1,\"none\":null}\n");
}

TEST(Texts, OfNumbersAndNames) {
  EXPECT_EQ(VersionText(123), "1.23");
  EXPECT_EQ(VersionText(12.5F), "0.13") << "a half counts as a whole";
  EXPECT_EQ(FeaturesText(-1), "0xffffffff");
  EXPECT_EQ(ReadFeatures("0x80000000"), std::numeric_limits<std::int32_t>::min());
  for (const std::string_view wrong : {"", "0x", "g", "1 ", "100000000"})
    EXPECT_EQ(ReadFeatures(wrong), std::nullopt) << wrong;
  EXPECT_EQ(ClockText({2026, 3, 2, 9, 5, 7}), "2026-03-02 09:05:07");
  EXPECT_EQ(Printable("a\x1B\xC3\xB3\xFF"), "a\\x1b\xC3\xB3\\xff");
}

}  // namespace
}  // namespace ostrel::cli
