#include <fstream>

#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/World.h"
#include "host/LoggerText.h"
#include "model/DeviceInfo.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;

TEST(Json, WritesNestedValuesAndEscapes) {
  const auto write = [](JsonWriter::Layout layout) {
    std::ostringstream out;
    JsonWriter json(out, layout);
    json.Object([&] {
      json.Member("text", "a\"\\\n\x01\x7F\xC3\xB3\xFF");
      json.Member("float", 0.1F);
      json.Member("none", std::numeric_limits<double>::quiet_NaN());
      json.Member("least", std::numeric_limits<std::int64_t>::min());
      json.ArrayMember("empty", [] {});
      json.ArrayMember("list", [&] {
        json.Value(true);
        json.Object([] {});
      });
    });
    return out.str();
  };
  EXPECT_EQ(write(JsonWriter::Layout::OneLine),
            "{\"text\":\"a\\\"\\\\\\n\\u0001\\u007f\xC3\xB3\xEF\xBF\xBD\",\"float\":0.1,"
            "\"none\":null,\"least\":-9223372036854775808,\"empty\":[],\"list\":[true,{}]}");
  const std::string indented = write(JsonWriter::Layout::Indented);
  EXPECT_THAT(indented, HasSubstr("  \"list\": [\n    true,\n    {}\n  ]\n}"));
  EXPECT_TRUE(QJsonDocument::fromJson(QByteArray::fromStdString(indented)).isObject());
}

TEST(Texts, OfNumbersAndNames) {
  EXPECT_EQ(VersionText(123), "1.23");
  EXPECT_EQ(FeaturesText(-1), "0xffffffff");
  EXPECT_EQ(ReadFeatures("0x80000000"), std::numeric_limits<std::int32_t>::min());
  for (const std::string_view wrong : {"", "0x", "g", "1 ", "100000000"})
    EXPECT_EQ(ReadFeatures(wrong), std::nullopt) << wrong;
  EXPECT_EQ(ClockText({2026, 3, 2, 9, 5, 7}), "2026-03-02 09:05:07");
  EXPECT_EQ(Printable("a\x1B\xC3\xB3\xFF"), "a\\x1b\xC3\xB3\\xff");
}

}  // namespace
}  // namespace ostrel::cli
