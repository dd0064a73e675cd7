#include <gtest/gtest.h>

#include <random>

#include "lang/Lang.h"
#include "platform/virtual/VirtualFiles.h"

namespace ostrel {
namespace {

constexpr const char* kPath = "Lang.txt";

struct LangTest : testing::Test {
  VirtualFiles files;
  Lang lang{files, kPath};

  bool Load(std::string octets, std::int16_t column = 2) {
    files.contents[kPath] = std::move(octets);
    lang.SetSelectedLang(column);
    return lang.Init();
  }
  std::string Disk() { return files.contents[kPath]; }
};

std::string Rows(int count) {
  std::string text;
  for (int row = 0; row < count; ++row) text += "{t" + std::to_string(row) + "}\r\n";
  return text;
}

TEST_F(LangTest, FieldsAreScannedByBraces) {
  struct {
    const char* row;
    int column;
    const char* field;
  } const cases[] = {{"{a}{b}", 1, "a"},      {"{a}{b}", 2, "b"},
                     {"{a}{b", 2, "b"},       {"{a}{b}", 3, ""},
                     {"{a}{b}", 0, ""},       {"{a}{b}", -1, ""},
                     {"x{a} y {b}z", 2, "b"}, {"{a}", 2, ""},
                     {"{a} ", 2, ""},         {"{}{b}", 1, ""},
                     {"{a}{", 2, ""},         {"{a{b}c}{d}", 1, "a{b"},
                     {"{a{b}c}{d}", 2, "d"},  {"no braces", 1, ""},
                     {"}a}{b}", 1, "b"},      {"", 1, ""},
                     {"{a}{}{c}", 3, "c"}};
  for (const auto& c : cases) {
    ASSERT_TRUE(Load(c.row));
    EXPECT_EQ(lang.GetString(c.column, 0), c.field) << c.row << " " << c.column;
  }
  EXPECT_THROW(lang.GetString(1, kLangRows), BoundFailure);
}

TEST_F(LangTest, TheHeaderNamesTheLanguages) {
  ASSERT_TRUE(
      Load("{Espa\xF1ol}{English}{}{Fran\xE7"
           "ais}\n{Aviso}{Warning}"));
  EXPECT_EQ(lang.LangCount(), 2);
  EXPECT_EQ(lang.LangName(0), "");
  EXPECT_EQ(lang.LangName(1), "Español");
  EXPECT_EQ(lang.OfferedNames(), (std::vector<std::string>{"Español", "English", "Français"}));
  EXPECT_EQ(lang.Translate("Español"), "English");
}

TEST_F(LangTest, TheKeysOwnLanguageAddsNothing) {
  ASSERT_TRUE(Load("{Es}{En}\r\n", 1));
  EXPECT_EQ(lang.Translate("Nuevo"), "Nuevo");
  EXPECT_TRUE(files.log.empty());
}

TEST_F(LangTest, AMissingTextIsAppendedAtOnce) {
  ASSERT_TRUE(Load("{Es}{En}\n"));
  EXPECT_EQ(lang.Translate("Añadir"), "Añadir");
  EXPECT_EQ(Disk(),
            "{Es}{En}\r\n{A\xF1"
            "adir}\r\n\r\n");
  const auto writes = files.log.size();
  EXPECT_EQ(lang.Translate("Añadir"), "Añadir");
  EXPECT_EQ(files.log.size(), writes);
  // The empty line is a row of the next run, and stays between the rows of the two runs.
  ASSERT_TRUE(lang.Init());
  EXPECT_EQ(lang.LangCount(), 3);
  EXPECT_EQ(lang.Translate("Otro"), "Otro");
  EXPECT_EQ(Disk(),
            "{Es}{En}\r\n{A\xF1"
            "adir}\r\n\r\n{Otro}\r\n\r\n");
}

TEST_F(LangTest, WithoutAFileEveryTextStays) {
  lang.SetSelectedLang(2);
  EXPECT_EQ(lang.Translate("x"), "x");
  EXPECT_FALSE(lang.Init());
  EXPECT_FALSE(lang.LangReady());
  EXPECT_EQ(lang.Translate("x"), "x");
  EXPECT_TRUE(lang.OfferedNames().empty());
  lang.AddNewEntry("x");
  lang.SaveLang();
  EXPECT_TRUE(files.log.empty());
}

TEST_F(LangTest, AFileOfTooManyLinesIsRefusedAndKept) {
  ASSERT_TRUE(Load("{Es}{En}\r\n{a}{b}"));
  EXPECT_FALSE(Load(Rows(kLangRows + 1)));
  EXPECT_FALSE(lang.LangReady());
  EXPECT_EQ(lang.LangLine(kLangRows - 1), "{t400}");
  EXPECT_EQ(lang.Translate("a"), "a");
  lang.SaveLang();
  EXPECT_EQ(Disk(), Rows(kLangRows + 1));
}

TEST_F(LangTest, AFullTableFailsAndKeepsWhatItHas) {
  ASSERT_TRUE(Load(Rows(kLangRows - 1)));
  EXPECT_EQ(lang.Translate("last"), "last");
  const std::string full = Rows(kLangRows - 1) + "{last}\r\n";
  EXPECT_EQ(Disk(), full);
  EXPECT_EQ(lang.LangCount(), kLangRows);
  EXPECT_THROW(lang.Translate("more"), BoundFailure);
  EXPECT_EQ(lang.TranslateIfRoom("more"), "more");
  EXPECT_THROW(lang.Translate(""), BoundFailure);
  EXPECT_EQ(lang.LangCount(), kLangRows);
  EXPECT_EQ(Disk(), full);
  EXPECT_EQ(lang.Translate("last"), "last");
  ASSERT_TRUE(lang.Init());
  EXPECT_EQ(lang.LangCount(), kLangRows);
}

TEST_F(LangTest, AFailedSaveIsSilentAndTheRowStays) {
  ASSERT_TRUE(Load("{Es}{En}\r\n"));
  files.FailFrom(1);
  EXPECT_EQ(lang.Translate("uno"), "uno");
  EXPECT_EQ(Disk(), "{Es}{En}\r\n");
  files.Heal();
  lang.Translate("dos");
  EXPECT_EQ(Disk(), "{Es}{En}\r\n{uno}\r\n{dos}\r\n\r\n");
}

/// What `Translate` promises, by looking at every row.
std::string ScannedTranslation(const Lang& lang, const std::string& text, bool& isFound) {
  for (int row = 0; row <= std::min<int>(lang.LangCount(), kLangRows - 1); ++row) {
    isFound = lang.GetString(1, row) == text;
    if (!isFound) continue;
    const std::string translation = lang.GetString(lang.SelectedLang(), row);
    return translation.empty() ? text : translation;
  }
  return text;
}

TEST_F(LangTest, TheIndexAgreesWithAScanOnRandomTables) {
  std::mt19937 random(20);
  const auto randomText = [&](std::string_view letters, unsigned most) {
    std::string text;
    for (auto length = random() % (most + 1); length > 0; --length)
      text += letters[random() % letters.size()];
    return text;
  };
  for (int table = 0; table < 200; ++table) {
    ASSERT_TRUE(Load(randomText("{}{}ab \n\n", 150), static_cast<std::int16_t>(random() % 4)));
    for (int call = 0; call < 40 && lang.SelectedLang() != 1; ++call) {
      const std::string text = randomText("ab{} ", 3);
      bool isFound = false;
      const std::string expected = ScannedTranslation(lang, text, isFound);
      const int rows = lang.LangCount();
      ASSERT_EQ(lang.Translate(text), expected) << text << " in " << Disk();
      ASSERT_EQ(lang.LangCount(), rows + (isFound ? 0 : 1));
    }
  }
}

}  // namespace
}  // namespace ostrel
