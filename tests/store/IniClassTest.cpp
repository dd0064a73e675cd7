#include <gmock/gmock.h>

#include <random>

#include "platform/virtual/VirtualFiles.h"
#include "store/IniClass.h"

namespace ostrel {
namespace {

using testing::ElementsAre;

struct IniClassTest : testing::Test {
  VirtualFiles files;
  IniClass ini{files};

  std::string Parsed(std::string_view text, bool skipComments = false) {
    ini.InputINI(text, skipComments);
    return ini.OutputINI();
  }
};

TEST_F(IniClassTest, ParsingAndWritingAgain) {
  struct {
    std::string_view text, output;
  } const cases[] = {
      {"", ""},
      {"[A]\r\na=1\r\n[B]\nb=2\n", "[A]\r\na=1\r\n[B]\r\nb=2"},
      {"[A]\na=1\n[a]\nb=2", "[A]\r\na=1\r\nb=2"},    // names fold
      {"[\xC3\x91]\n[\xC3\xB1]", "[\xC3\x91]"},       // beyond ASCII too
      {"[A]\nK=1\nk=2", "[A]\r\nK=1\r\nk=2"},         // keys never do
      {"[A]\nK=1\nL=2\nK=3", "[A]\r\nL=2\r\nK=3"},    // the last one wins and moves
      {"[A]\n [X]\nx\n ", "[A]"},                     // no header, no key
      {"[A]\n [X=1]", "[A]\r\n [X=1]"},               // a key that looks like a header
      {"[a]=b]", "[a]=b]"},                           // a header that looks like a key
      {"[A]\na = b=c ", "[A]\r\na = b=c "},           // nothing is trimmed
      {"[A]\n=x\ny=", "[A]\r\n=x\r\ny="},             // empty key, empty value
      {"[A]\na=1\r2", "[A]\r\na=12"},                 // a lone CR vanishes
      {"[A]\n#c=1\n;d=2\n[", "[A]\r\n#c=1\r\n;d=2"},  // comments are keys
      {"k=1\n[A]\na=1", "[]\r\n[A]\r\na=1"},          // a key ahead of the first header
      {"k=1\n[]\nl=2", "[]"},                         // which the name never recovers from
      {"[]\nl=2", "[]\r\nl=2"},
  };
  for (const auto& c : cases) EXPECT_EQ(Parsed(c.text), c.output) << c.text;
  EXPECT_EQ(Parsed("#x\n[A]\n#c=1\n #d=1", true), "[A]\r\n #d=1");
}

TEST_F(IniClassTest, TheCaseModeTakesEffectWithTheNextParse) {
  ini.WriteKey("A", "x", "1");
  ini.WriteKey("a", "y", "2");
  EXPECT_EQ(ini.OutputINI(), "[A]\r\nx=1\r\n[a]\r\ny=2");  // a new object compares exactly
  ini.InsertData("", false);
  EXPECT_EQ(ini.ReadKey("a", "x"), "1");  // now the first of both is found
  ini.RemoveSection("A");
  EXPECT_EQ(ini.ReadKey("A", "y"), "2");
  ini.SetCaseSensitive(true);
  EXPECT_TRUE(ini.SectionExists("", "A"));
  EXPECT_EQ(Parsed("[A]\na=1\n[a]\nb=2"), "[A]\r\na=1\r\n[a]\r\nb=2");
  ini.NewINI();
  EXPECT_EQ(ini.OutputINI(), "");
}

TEST_F(IniClassTest, AMergeKeepsWhatStands) {
  Parsed("[A]\nx=1\ny=2\n[B]");
  ini.InsertData("z=lost\n[a]\nx=3\n[C]\nc=1", false);
  EXPECT_EQ(ini.OutputINI(), "[A]\r\ny=2\r\nx=3\r\n[B]\r\n[]\r\n[C]\r\nc=1");
}

TEST_F(IniClassTest, WritingKeepsTheOrder) {
  ini.NewINI();
  ini.WriteKey("General", "VERSION", "VR200");
  ini.WriteKey("ANALOG 0", "K", "1");
  ini.SetKeyData("GENERAL", "L", "2");
  ini.WriteKey("General", "VERSION", " 3 ");
  EXPECT_EQ(ini.OutputINI(), "[General]\r\nVERSION= 3 \r\nL=2\r\n[ANALOG 0]\r\nK=1");
  EXPECT_THAT(ini.GetSection("general"), ElementsAre("VERSION", "L"));
  ini.EmptySection("General");
  EXPECT_EQ(ini.OutputINI(), "[General]\r\n[ANALOG 0]\r\nK=1");
}

TEST_F(IniClassTest, ReadingAddsAnAbsentKey) {
  Parsed("[A]\na=1");
  EXPECT_EQ(ini.KeyData("A", "b"), "");
  EXPECT_EQ(ini.OutputINI(), "[A]\r\na=1\r\nb=");
}

TEST_F(IniClassTest, AnAbsentSectionFailsAndLeavesItsName) {
  EXPECT_THROW(ini.ReadKey("A", "k"), IniError);
  EXPECT_THROW(ini.GetSection("B"), IniError);
  EXPECT_THROW(ini.EmptySection("C"), IniError);
  EXPECT_THROW(ini.SetKeyExists("D", "k", true), IniError);
  ini.SetSectionExists("E", "ignored", true);
  EXPECT_EQ(ini.OutputINI(), "[A]\r\n[B]\r\n[C]\r\n[D]\r\n[E]");
  for (const char* name : {"A", "B", "C", "D", "E"}) {
    EXPECT_THROW(ini.ReadKey(name, "k"), IniError);
    EXPECT_THROW(ini.WriteKey(name, "k", "v"), IniError);
    EXPECT_FALSE(ini.KeyExists(name, "k"));
  }
  ini.InsertData("[A]\nk=1", false);  // a header does not mend it
  EXPECT_THROW(ini.ReadKey("A", "k"), IniError);
  ini.RemoveSection("A");
  ini.WriteKey("A", "k", "v");
  EXPECT_EQ(ini.ReadKey("A", "k"), "v");
}

TEST_F(IniClassTest, ExistenceOfKeysAndSections) {
  Parsed("[A]\na=1");
  EXPECT_TRUE(ini.KeyExists("a", "a"));
  EXPECT_FALSE(ini.KeyExists("A", "A"));
  EXPECT_FALSE(ini.KeyExists("B", "a"));
  EXPECT_FALSE(ini.SectionExists("A", "B"));  // the second name is tested
  EXPECT_TRUE(ini.SectionExists("B", "A"));
  ini.SetKeyExists("A", "a", true);
  ini.SetKeyExists("A", "b", true);
  ini.SetKeyExists("B", "b", false);
  EXPECT_EQ(ini.OutputINI(), "[A]\r\na=1\r\nb=");
  ini.SetKeyExists("A", "a", false);
  ini.SetSectionExists("B", "A", false);  // the first name is acted on
  EXPECT_EQ(ini.OutputINI(), "[A]\r\nb=");
  EXPECT_THROW(ini.RemoveKey("A", "a"), IniError);
  EXPECT_THROW(ini.RemoveKey("B", "b"), IniError);
  EXPECT_THROW(ini.RemoveSection("B"), IniError);
  ini.RemoveKey("A", "b");
  ini.SetSectionExists("A", "", false);
  EXPECT_EQ(ini.OutputINI(), "");
}

TEST_F(IniClassTest, EscapedValues) {
  const std::string_view plain = "a\\n\r\n\t\"\xC3\xB1";
  ini.SetKeyDataEscaped("A", "k", plain);
  EXPECT_EQ(ini.ReadKey("A", "k"), "a\\\\n\\r\\n\\t\\\"\xC3\xB1");
  EXPECT_EQ(ini.KeyDataEscaped("A", "k"), plain);
  struct {
    const char *stored, *read;
  } const cases[] = {{"", ""},
                     {"abc\\", "abc"},
                     {"\\\\n", "\\n"},
                     {"\\q\\\xC3\xB1", "\\q\\\xC3\xB1"},
                     {"\\065\\241!", "A\xC3\xB1!"},
                     {"\\12x3", "3"},         // no number: all three are gone
                     {"\\1\xC3\xB1z3", "3"},  // characters, not octets
                     {"\\2563", "3"},         // beyond the code page
                     {"\\6", "\x06"},         // fewer than three left
                     {"\\0651", "A1"}};
  for (const auto& c : cases) {
    ini.WriteKey("A", "k", c.stored);
    EXPECT_EQ(ini.ReadKeyEscaped("A", "k"), c.read) << c.stored;
  }
}

TEST_F(IniClassTest, FilesAreInTheCodePage) {
  files.contents["/in"] = "[A]\r\n\xD1=\x80";
  ini.OpenINI("/in", false);
  EXPECT_EQ(ini.ReadKey("A", "Ñ"), "€");
  ini.WriteKey("A", "Ω", "漢");
  EXPECT_TRUE(ini.SaveINI("/out").Ok());
  EXPECT_EQ(files.contents["/out"], "[A]\r\n\xD1=\x80\r\n?=?");
  ini.InsertINI("/absent", false);
  EXPECT_EQ(ini.Path(), "/in");
  EXPECT_TRUE(ini.KeyExists("A", "Ñ"));
  ini.OpenINI("/absent", false);
  EXPECT_EQ(ini.Path(), "/in");
  EXPECT_TRUE(ini.SaveINI("/out").Ok());
  EXPECT_EQ(files.contents["/out"], "");
}

TEST_F(IniClassTest, RandomDocumentsAreStable) {
  std::mt19937 random(3);
  constexpr std::string_view kLetters = "[]==\n\n\r #aAbB";
  for (int i = 0; i < 2000; ++i) {
    std::string text;
    for (auto length = random() % 60; length > 0; --length)
      text += kLetters[random() % kLetters.size()];
    ini.SetCaseSensitive(i % 2 == 0);
    const std::string output = Parsed(text, i % 3 == 0);
    ASSERT_EQ(Parsed(output), output) << text;
  }
}

}  // namespace
}  // namespace ostrel
