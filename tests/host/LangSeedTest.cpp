#include <gtest/gtest.h>

#include "host/LangSeed.h"
#include "lang/Lang.h"
#include "platform/virtual/VirtualFiles.h"

namespace ostrel {
namespace {

TEST(LangSeed, MakesTheWorkingCopyAndBringsWhatIsNew) {
  VirtualFiles files;
  EXPECT_EQ(SeedLang(files, "/s/Lang.txt", "/u/Lang.txt"), "/u/Lang.txt");
  EXPECT_TRUE(files.contents.empty()) << "no installed table, no copy";
  files.contents["/s/Lang.txt"] = "{ES}{EN}\r\n{Uno}{One}\r\n";
  SeedLang(files, "/s/Lang.txt", "/u/Lang.txt");
  EXPECT_EQ(files.contents["/u/Lang.txt"], files.contents["/s/Lang.txt"]);
  files.contents["/u/Lang.txt"] = "{ES}{EN}\r\n{Uno}{Mine}\r\n{Dos}\r\n\r\n";
  files.contents["/s/Lang.txt"] = "{ES}{EN}\r\n{Uno}{One}\r\n{Dos}{Two}\r\n{Tres}{Three}\r\n";
  SeedLang(files, "/s/Lang.txt", "/u/Lang.txt");
  EXPECT_EQ(files.contents["/u/Lang.txt"],
            "{ES}{EN}\r\n{Uno}{Mine}\r\n{Dos}{Two}\r\n\r\n{Tres}{Three}\r\n");
  const std::size_t changes = files.log.size();
  SeedLang(files, "/s/Lang.txt", "/u/Lang.txt");
  EXPECT_EQ(files.log.size(), changes) << "a copy that is up to date is left alone";
}

TEST(LangSeed, NeverOverfillsTheTable) {
  VirtualFiles files;
  std::string rows;
  for (int row = 0; row < 399; ++row) rows += "{own " + std::to_string(row) + "}\r\n";
  files.contents["/u/Lang.txt"] = rows;
  files.contents["/s/Lang.txt"] = "{ES}{EN}\r\n{Uno}{One}\r\n{Dos}{Two}\r\n";
  SeedLang(files, "/s/Lang.txt", "/u/Lang.txt");
  Lang lang(files, "/u/Lang.txt");
  EXPECT_TRUE(lang.Init());
  EXPECT_LE(lang.LangCount(), 400);
}

}  // namespace
}  // namespace ostrel
