#include <gtest/gtest.h>

#include "base/Bounded.h"
#include "base/CodePage.h"
#include "base/Help.h"
#include "base/Values.h"
#include "platform/virtual/VirtualProcesses.h"

namespace ostrel {
namespace {

TEST(Bool16, OnlyAllOnesIsWrittenAsTrue) {
  Bool16 one;
  one.value = 1;
  EXPECT_TRUE(static_cast<bool>(one));
  EXPECT_EQ(BoolText(one), "False");
  EXPECT_EQ(BoolText(kTrue), "True");
  EXPECT_EQ(BoolText(kFalse), "False");
  EXPECT_EQ(kTrue.value, -1);
  EXPECT_EQ(TextBool("True"), kTrue);
  for (const char* text : {"", "true", "TRUE", " True", "-1"}) EXPECT_EQ(TextBool(text), kFalse);
}

TEST(SecondsToTime, TheEndOfTheDayIsItsLastSecond) {
  std::int32_t seconds = 86400;
  EXPECT_EQ(SecondsToTime(seconds), TimeOfDay{86399});
  EXPECT_EQ(seconds, 86399);
  for (const std::int32_t bad : {-1, 86401, INT32_MAX, INT32_MIN}) {
    seconds = bad;
    EXPECT_EQ(SecondsToTime(seconds), std::nullopt);
    EXPECT_EQ(seconds, bad);
  }
}

TEST(TimeText, EverySecondOfTheDayComesBack) {
  EXPECT_EQ(TimeText({0}), "0:00:00");
  EXPECT_EQ(TimeText({8 * 3600 + 5 * 60}), "8:05:00");
  EXPECT_EQ(TimeText({86399}), "23:59:59");
  EXPECT_EQ(TimeText({86400}), "23:59:59");
  EXPECT_EQ(TimeText({-5}), "0:00:00");
  for (std::int32_t seconds = 0; seconds < 86400; seconds += 7)
    ASSERT_EQ(TextTime(TimeText({seconds})), TimeOfDay{seconds});
}

TEST(TextTime, TakesHoursAndMinutesAndPadding) {
  EXPECT_EQ(TextTime("8:05"), TimeOfDay{29100});
  EXPECT_EQ(TextTime(" 08:05:09\t"), TimeOfDay{29109});
  EXPECT_EQ(TextTime("1:2:3"), TimeOfDay{3723});
  for (const char* text : {"", " ", "8", "24:00", "8:60", "8:00:60", "8:", ":8",
                           "8:05:", "8:05:00:00", "008:05", "-1:00", "8 :05", "8:05x", "8.05"})
    EXPECT_EQ(TextTime(text), std::nullopt) << text;
}

TEST(WeekText, TheLowestBitStandsFirst) {
  EXPECT_EQ(WeekText(5), "1010000");
  EXPECT_EQ(WeekText(127), "1111111");
  EXPECT_EQ(WeekText(128), "0000000");
}

TEST(FieldOf, CountsFromOne) {
  const std::string_view text = "a,b,,d";
  const std::string_view fields[] = {"a", "a", "b", "", "d", "", ""};
  for (int n = 0; n < 7; ++n) EXPECT_EQ(FieldOf(text, n), fields[n]) << n;
  EXPECT_EQ(FieldOf("", 1), "");
  EXPECT_EQ(FieldOf(",", 2), "");
  EXPECT_EQ(FieldOf("abc", -1), "abc");
  EXPECT_EQ(CommaToPoint("1,2,.x"), "1.2..x");
}

TEST(CrcStep, GivesTheKnownSums) {
  const auto sumOf = [](std::string_view text, std::uint16_t sum) {
    for (const char c : text) CrcStep(sum, static_cast<std::uint8_t>(c));
    return sum;
  };
  EXPECT_EQ(sumOf("123456789", 0xFFFF), 0x4B37);
  EXPECT_EQ(sumOf("123456789", 0), 0xBB3D);
  EXPECT_EQ(sumOf("", 0xFFFF), 0xFFFF);
  EXPECT_EQ(ShiftRight1(0x8001), 0x4000);
}

TEST(ShowHelp, StartsTheViewerOnTheSpanishPage) {
  VirtualProcesses processes;
  EXPECT_TRUE(ShowHelp(processes, "C:\\Tool", "GPRS"));
  EXPECT_EQ(processes.started.at(0), "Explorer C:\\Tool\\html\\GPRS_ES.htm");
  processes.fails = true;
  EXPECT_FALSE(ShowHelp(processes, "C:\\Tool", "GPRS"));
}

TEST(CodePage, EveryOctetComesBackAsItself) {
  std::string octets;
  for (int octet = 0; octet < 256; ++octet) octets += static_cast<char>(octet);
  EXPECT_EQ(ToCodePage(FromCodePage(octets)), octets);
  EXPECT_EQ(CharacterCount(FromCodePage(octets)), 256U);
  EXPECT_EQ(FromCodePage("\x80 a\xF1o \x9C"), "€ año œ");
}

TEST(CodePage, WhatThePageLacksBecomesAQuestionMark) {
  struct {
    std::string_view utf8, octets;
  } const cases[] = {{"ñ€Ž", "\xF1\x80\x8E"},
                     {"Ω漢😀", "???"},
                     {"\xC2\x80", "?"},             // a control character that 1252 has not
                     {"\xC2\x81", "\x81"},          // one of the five octets without a character
                     {"\xC3", "?"},                 // cut short
                     {"\xC3(", "?("},               // wrong second octet
                     {"\x80\xFF", "??"},            // no first octets
                     {"\xC0\xAF", "??"},            // longer than needed
                     {"\xE0\x80\xAF", "???"},       // the same with three
                     {"\xED\xA0\x80", "???"},       // a surrogate
                     {"\xF4\x90\x80\x80", "????"},  // beyond the last character
                     {"\xE2\x82", "??"}};
  for (const auto& c : cases) {
    EXPECT_EQ(ToCodePage(c.utf8), c.octets);
    EXPECT_EQ(CharacterCount(c.utf8), c.octets.size());
  }
}

TEST(CodePage, LettersFoldAlikeInBothForms) {
  EXPECT_EQ(FoldText("Ñ×ßŸΩ"), "ñ×ßÿΩ");
  EXPECT_EQ(FoldText("A\xC3\x80\x80"), FoldText("a\xC3\xA0\xFF"));  // malformed ones are equal
  for (int value = 0; value < 256; ++value) {
    char octet = static_cast<char>(value);
    const std::string utf8 = FromCodePage({&octet, 1});
    FoldOctets({&octet, 1});
    EXPECT_EQ(FoldText(utf8), FromCodePage({&octet, 1})) << value;
  }
}

TEST(FirstCharacters, NeverCutsACharacter) {
  const std::string_view text = "año€";
  const std::string_view heads[] = {"", "a", "añ", "año", "año€", "año€"};
  for (std::size_t n = 0; n < 6; ++n) EXPECT_EQ(FirstCharacters(text, n), heads[n]);
}

TEST(Bounded, EveryIndexOutsideFails) {
  Bounded<int, 3> array;
  array[2] = 5;
  EXPECT_EQ(array[std::uint8_t{2}], 5);
  EXPECT_NE(array, (Bounded<int, 3>()));
  const auto& fixed = array;
  EXPECT_THROW(array[3], BoundFailure);
  EXPECT_THROW(fixed[std::int16_t{-1}], BoundFailure);
  EXPECT_THROW(fixed[SIZE_MAX], BoundFailure);
  try {
    array[-7] = 1;
    FAIL();
  } catch (const BoundFailure& failure) {
    EXPECT_EQ(failure.Index(), -7);
    EXPECT_EQ(failure.Size(), 3U);
  }
}

}  // namespace
}  // namespace ostrel
