#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>

#include "base/Numbers.h"

namespace ostrel {
namespace {

template <class Number>
struct NumberText {
  Number number;
  const char* text;
};

TEST(NumText, WholeNumbersOfAllWidths) {
  EXPECT_EQ(NumText(std::uint8_t{65}), " 65");
  EXPECT_EQ(NumText(std::int16_t{-3}), "-3");
  EXPECT_EQ(NumText(0), " 0");
  EXPECT_EQ(NumText(INT32_MIN), "-2147483648");
  EXPECT_EQ(NumText(INT64_MIN), "-9223372036854775808");
  EXPECT_EQ(NumText(UINT64_MAX), " 18446744073709551615");
}

TEST(NumText, FloatsKeepSevenDigits) {
  const NumberText<float> cases[] = {{-0.0F, " 0"},
                                     {0.5F, " .5"},
                                     {-0.5F, "-.5"},
                                     {0.1F, " .1"},
                                     {2.0F / 3, " .6666667"},
                                     {123.4567F, " 123.4567"},
                                     {1234567.5F, " 1234568"},
                                     {0.01234567F, " .01234567"},
                                     {9.9999996F, " 10"},
                                     {16777215.0F, " 16777220"},
                                     {-1e10F, "-10000000000"},
                                     {1e20F, " 100000000000000000000"},
                                     {0.000001F, " .000001"},
                                     {1e-7F, " 1E-07"},
                                     {-1.25e-10F, "-1.25E-10"},
                                     {HUGE_VALF, " 0"},
                                     {NAN, " 0"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(NumText(number), text);
}

TEST(NumText, DoublesKeepFifteenDigits) {
  const NumberText<double> cases[] = {{2147483648.0, " 2147483648"},  {4294967295.0, " 4294967295"},
                                      {1.0 / 3, " .333333333333333"}, {0.1, " .1"},
                                      {-1e15, "-1000000000000000"},   {1e-300, " 1E-300"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(NumText(number), text);
}

TEST(NumVal, ReadsTheHeadOfAText) {
  const NumberText<double> cases[] = {{0, ""},
                                      {0, "."},
                                      {0, "+.e5"},
                                      {0, "inf"},
                                      {0, "0x10"},
                                      {12, "12 bar"},
                                      {12, " \t12"},
                                      {1, "1,5"},
                                      {1.5, "1.5.7"},
                                      {0.5, " .5"},
                                      {5, "5."},
                                      {0, "--5"},
                                      {2, "2E"},
                                      {2, "2e+"},
                                      {2000, "2E+3x"},
                                      {1e-320, "1e-320"},
                                      {0, "0E999999999999999999999"},
                                      {1.5, "0000000000000000000000001.5"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(NumVal(text), number) << text;
}

TEST(NumVal, TheTooLargeStaysFinite) {
  constexpr double kMost = std::numeric_limits<double>::max();
  EXPECT_EQ(NumVal("1E999"), kMost);
  EXPECT_EQ(NumVal("-1E99999999999999999999"), -kMost);
  EXPECT_EQ(NumVal(std::string(400, '9')), kMost);
  EXPECT_EQ(NumVal("." + std::string(400, '0') + "1E801"), kMost);
  EXPECT_EQ(NumVal(std::string(400, '9') + "E-800"), 0);
  EXPECT_FALSE(std::signbit(NumVal("-0")));
}

TEST(NumVal, ReadsBackWhatNumTextWrites) {
  std::mt19937 random(7);
  for (int i = 0; i < 20'000; ++i) {
    const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (!std::isfinite(number)) continue;
    const std::string text = NumText(number);
    EXPECT_LE(std::abs(NumVal(text) - number), std::abs(number) * 5.01e-7) << text;
    EXPECT_EQ(text[0] == '-', number < 0) << text;
    EXPECT_TRUE(IsFloatText(text)) << text;
    const std::string exact = DecText(number);
    EXPECT_EQ(static_cast<float>(NumVal(exact)), number) << exact;
    EXPECT_EQ(exact.find_first_not_of("-0123456789."), std::string::npos) << exact;
  }
}

TEST(DecText, IsPlainAndWithoutALeadingBlank) {
  const NumberText<float> cases[] = {
      {0.25F, "0.25"}, {-0.25F, "-0.25"},      {5.0F, "5"},          {-0.0F, "0"},
      {0.1F, "0.1"},   {1e10F, "10000000000"}, {1e-7F, "0.0000001"}, {HUGE_VALF, "0"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(DecText(number), text);
}

TEST(NumberTests, AcceptDecimalNumbersOnly) {
  struct {
    const char* text;
    bool isFloat, isInt;
  } const cases[] = {{"12", true, true},           {" 12 ", true, true},    {"12.0", true, false},
                     {"1,2", false, false},        {"", false, false},      {"  ", false, false},
                     {"+34600111222", true, true}, {"-5", true, true},      {"1+2", false, false},
                     {".5", true, false},          {"5.", true, false},     {".", false, false},
                     {"1E5", true, true},          {"1E", false, false},    {"1.5e-3", true, false},
                     {"12a", false, false},        {"1 2", false, false},   {"0x1F", false, false},
                     {"nan", false, false},        {"1.2.3", false, false}, {"1\n", false, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(IsFloatText(c.text), c.isFloat) << c.text;
    EXPECT_EQ(IsIntText(c.text), c.isInt) << c.text;
  }
}

TEST(RoundToEven, HalvesGoToTheEvenNumberAndTheWidthHolds) {
  EXPECT_EQ(RoundToEven<int>(0.5), 0);
  EXPECT_EQ(RoundToEven<int>(1.5), 2);
  EXPECT_EQ(RoundToEven<int>(2.5), 2);
  EXPECT_EQ(RoundToEven<int>(-0.5), 0);
  EXPECT_EQ(RoundToEven<int>(-1.5), -2);
  EXPECT_EQ(RoundToEven<int>(-2.51), -3);
  EXPECT_EQ(RoundToEven<std::int16_t>(32767.4), 32767);
  EXPECT_EQ(RoundToEven<std::int16_t>(32767.5), std::nullopt);
  EXPECT_EQ(RoundToEven<std::int16_t>(-32768.5), -32768);
  EXPECT_EQ(RoundToEven<std::int16_t>(-32769), std::nullopt);
  EXPECT_EQ(RoundToEven<std::uint8_t>(255.49), 255);
  EXPECT_EQ(RoundToEven<std::uint8_t>(-0.4), 0);
  EXPECT_EQ(RoundToEven<std::uint8_t>(-1), std::nullopt);
  EXPECT_EQ(RoundToEven<std::int64_t>(9.3e18), std::nullopt);
  EXPECT_EQ(RoundToEven<std::int32_t>(NAN), std::nullopt);
  EXPECT_EQ(RoundToEven<std::int32_t>(HUGE_VAL), std::nullopt);
}

}  // namespace
}  // namespace ostrel
