#include <gmock/gmock.h>

#include "link/Comms.h"
#include "link/Frame.h"
#include "link/WireText.h"

namespace ostrel {
namespace {

TEST(Frame, CarriesTheSumOfThePayload) {
  const std::pair<std::string, std::string> cases[] = {{"#40", "#64;40"},     {"#@@@@", "#00;@@@@"},
                                                       {"#@@@J", "#0A;@@@J"}, {"#\xE9", "#E9;\xE9"},
                                                       {"x473", "#9E;473"},   {"", "#00;"}};
  for (const auto& [message, frame] : cases) {
    EXPECT_EQ(FrameOf(message), frame);
    EXPECT_EQ(ChecksumOk(frame), !message.empty()) << frame;
  }
  for (const char* frame : {"#64:40", "#e9;\xE9"}) EXPECT_TRUE(ChecksumOk(frame)) << frame;
  for (const char* frame : {"#65;40", "#AA;", "#", "", "#6 ;40", "#+4;4", "#xy;40"})
    EXPECT_FALSE(ChecksumOk(frame)) << frame;
}

TEST(Fields, AreCountedByCommasOrBraces) {
  struct Case {
    std::string_view line;
    int n;
    std::string_view field, braced;
  };
  const std::string_view braces = "K={one,two},{x}";
  const Case cases[] = {
      {"A,B", 1, "A", "A,B"},
      {"A,B", -4, "A", "A,B"},
      {"A,B", 3, "", ""},
      {"A,,C", 3, "C", ""},
      {braces, 1, "K={one", "K={one,two"},
      {braces, 2, "two}", "one,two"},
      {braces, 3, "{x}", "x"},
      {"K={a{b}c}", 3, "", "b"},
      {"K={open", 2, "", "open"},
      {"", 1, "", ""},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(FieldOfLine(c.line, c.n), c.field) << c.line << " " << c.n;
    EXPECT_EQ(BracedFieldOfLine(c.line, c.n), c.braced) << c.line << " " << c.n;
  }
}

TEST(LineReader, TakesFieldsFromTheSecondOn) {
  LineReader line("#BD000KEY,name,7.5,,99999, 1e40,-3");
  std::int16_t small = 5;
  float real = 2;
  EXPECT_EQ(line.Text(), "name");
  line.Into(small);
  EXPECT_EQ(small, 8) << "halves go to the even number";
  line.Into(real);
  EXPECT_EQ(real, 0) << "an empty field is 0";
  line.Into(small);
  line.Into(real);
  EXPECT_EQ(small, 8) << "too wide a number leaves the field";
  EXPECT_EQ(real, 0) << "too wide a number leaves the field";
  EXPECT_EQ(line.Index(), -3);
  for (int beyond = 0; beyond < 3; ++beyond) EXPECT_EQ(line.Text(), "");
  EXPECT_EQ(LineReader("K,1e10").Index(), -1);
}

TEST(WireText, TraceHidesAccessCodes) {
  const std::pair<std::string, std::string> cases[] = {
      {"#111234", "#11****"},       {"#45000ID=Pozo #11", "#45000ID=Pozo #11"},
      {"#F6;111234", "#F6;11****"}, {"#BD011NAME,a;11b", "#BD011NAME,a;11b"},
      {"ATD111;112", "ATD111;112"},
  };
  for (const auto& [text, shown] : cases) EXPECT_EQ(MaskCode(text), shown);
}

}  // namespace
}  // namespace ostrel
