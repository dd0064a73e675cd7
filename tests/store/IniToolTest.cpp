#include <gtest/gtest.h>

#include <random>

#include "base/CodePage.h"
#include "base/Values.h"
#include "platform/virtual/VirtualFiles.h"
#include "store/IniTool.h"

namespace ostrel {
namespace {

struct IniToolTest : testing::Test {
  VirtualFiles files;
  IniTool tool{files};

  std::string Read(std::string_view section, std::string_view key) {
    return ConfReadKey(tool, section, key, "/f");
  }
};

TEST_F(IniToolTest, OneKeyOfOneFile) {
  const std::string longest(254, 'x');
  struct {
    std::string file, section, key, value;
  } const cases[] = {
      {"", "A", "k", ""},
      {"[A]\r\nk=1\r\n", "A", "k", "1"},
      {"[A]\nk=1", "B", "k", ""},
      {"[A]\nk=1", "A", "l", ""},
      {"k=0\n[A]\nk=1", "", "k", ""},                       // outside all sections
      {"[a]\nK=1", "A", "k", "1"},                          // letter case is ignored
      {"[\xD1]\n\xE7\x9C=1", "ñ", "ÇŒ", "1"},               // beyond ASCII too
      {"[A]\nk=1\nK=2", "A", "k", "1"},                     // the first key counts
      {"[A]\nk=1\n[B]\nk=2\n[a]\nk=3\nl=4", "A", "l", ""},  // and the first section
      {"[A]\n[a]\nk=1", "A", "k", ""},
      {"[A]\nk=1\n[a]\n[B]\nk=2", "B", "k", "2"},
      {"[A]b]\nk=1", "A]b", "k", "1"},
      {"[A]\rk=1\rl=2", "A", "l", "2"},  // CR alone ends a line
      {"[ANALOG 0]\nHABIL( 0)=True", "ANALOG 0", "HABIL( 0)", "True"},
      {"[ANALOG  0]\nk=1", "ANALOG 0", "k", ""},  // inner blanks count
      {" [ A ] \n \tk \t= 1 \t", "A", "k", "1"},  // outer ones do not
      {"[A]\nk=", "A", "k", ""},
      {"[A]\nk=a=b;c", "A", "k", "a=b;c"},
      {"[A]\nk\nk=1", "A", "k", "1"},
      {"[A]\nk= \" 1 \" ", "A", "k", " 1 "},  // one pair of quotes goes
      {"[A]\nk=''1''", "A", "k", "'1'"},
      {"[A]\nk=\"1'", "A", "k", "\"1'"},
      {"[A]\nk=\"", "A", "k", "\""},
      {"[A]\nk=\"1\" 2", "A", "k", "\"1\" 2"},
      {"[A]\nk=\xF1\x80", "A", "k", "ñ€"},
      {"[A]\nk=" + longest + "y", "A", "k", longest},      // cut at the limit
      {"[A]\nk= \"" + longest + "\"", "A", "k", longest},  // which quotes do not count for
  };
  for (const auto& c : cases) {
    files.contents["/f"] = c.file;
    tool.Forget();
    EXPECT_EQ(Read(c.section, c.key), c.value) << c.file;
  }
}

TEST_F(IniToolTest, AFileIsReadOnceUntilItIsForgotten) {
  EXPECT_EQ(Read("A", "k"), "");
  files.contents["/f"] = "[A]\nk=1";
  files.contents["/g"] = "[A]\nk=2";
  EXPECT_EQ(Read("A", "k"), "");
  tool.Forget();
  EXPECT_EQ(Read("A", "k"), "1");
  EXPECT_EQ(tool.ProfileRead("A", "k", "/g"), "2");
  EXPECT_EQ(Read("A", "k"), "1");
}

TEST_F(IniToolTest, AControlCharacterNeverTearsALine) {
  IniClass ini(files);
  ini.NewINI();
  ConfWriteKey("a\r\nb=2\r\n[C]", "A", "k", ini);
  ConfWriteKey("\x01z", "A", "l", ini);
  EXPECT_EQ(ini.OutputINI(), "[A]\r\nk=a\r\nl=");
}

TEST_F(IniToolTest, RubbishIsReadWithoutHarm) {
  std::mt19937 random(11);
  constexpr std::string_view kOctets("[]==\n\n\r \t\"'aAb\0\xFF", 16);
  for (int i = 0; i < 2000; ++i) {
    std::string& file = files.contents["/f"];
    file.clear();
    for (auto length = random() % 60; length > 0; --length)
      file += kOctets[random() % kOctets.size()];
    tool.Forget();
    const std::string value = Read("a", "a");
    EXPECT_EQ(value, Read("A", "A"));
    EXPECT_NE(FromCodePage(file).find(value), std::string::npos);
  }
}

}  // namespace
}  // namespace ostrel
