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

/// What becomes of a working copy when a table is shipped; rows stand with a bar between them.
TEST(LangSeed, FillsWhatIsEmptyAndKeepsWhatIsTheUsers) {
  const struct {
    const char* working;
    const char* shipped;
    const char* merged;
  } cases[] = {
      {"{ES}{EN}|{Uno}{}", "{ES}{EN}|{Uno}{One}", "{ES}{EN}|{Uno}{One}"},
      {"{ES}{EN}|{Uno}{Mine}", "{ES}{EN}|{Uno}{One}", "{ES}{EN}|{Uno}{Mine}"},
      {"{ES}{EN}|{Uno} own note", "{ES}{EN}|{Uno}{One}", "{ES}{EN}|{Uno} own note{One}"},
      {"{ES}{EN}|{Uno}{", "{ES}{EN}|{Uno}{One}", "{ES}{EN}|{Uno}{One"},
      {"{ES}{EN}|{Uno}{Mine", "{ES}{EN}{FR}|{Uno}{One}{Un}", "{ES}{EN}{FR}|{Uno}{Mine}{Un}"},
      // A further language
      {"{ES}{EN}|{Uno}{Mine}|{Dos}{Two}", "{ES}{EN}{FR}|{Uno}{One}{Un}|{Dos}{Two}{Deux}",
       "{ES}{EN}{FR}|{Uno}{Mine}{Un}|{Dos}{Two}{Deux}"},
      {"{ES}{EN}|{Uno}", "{ES}{EN}{FR}|{Uno}{}{Un}", "{ES}{EN}{FR}|{Uno}{}{Un}"},
      {"{ES}{EN}|{Uno}{One}", "{ES}{EN}{FR}|{Uno}{One}|{Dos}{Two}{Deux}",
       "{ES}{EN}{FR}|{Uno}{One}|{Dos}{Two}{Deux}"},
      // The user's own language keeps its column
      {"{ES}{DE}|{Uno}{Eins}", "{ES}{EN}|{Uno}{One}|{Dos}{Two}",
       "{ES}{DE}{EN}|{Uno}{Eins}{One}|{Dos}{}{Two}"},
      {"{ES}{DE}|{Uno}{}", "{ES}{EN}|{Uno}{One}", "{ES}{DE}{EN}|{Uno}{}{One}"},
      {"{ES}{EN}{DE}|{Uno}{}{Eins}", "{ES}{FR}{EN}|{Uno}{Un}{One}",
       "{ES}{EN}{DE}{FR}|{Uno}{One}{Eins}{Un}"},
      // More languages than can be offered
      {"{ES}{A}{B}{C}{D}|{Uno}", "{ES}{EN}{A}|{Uno}{One}{a}", "{ES}{A}{B}{C}{D}|{Uno}{a}"},
      // The header is no text
      {"{Mine}{EN}|{Uno}{One}", "{ES}{EN}|{Uno}{One}", "{Mine}{EN}|{Uno}{One}"},
      {"", "{ES}{EN}|{Uno}{One}", "{ES}{EN}|{Uno}{One}"},
      // The first row of a key is the one in use
      {"{ES}{EN}|{Uno}{}|{Uno}{}", "{ES}{EN}|{Uno}{One}", "{ES}{EN}|{Uno}{One}|{Uno}{}"},
  };
  const auto rows = [](std::string_view text) {
    std::string out;
    for (const char c : text) out += c == '|' ? std::string("\r\n") : std::string(1, c);
    return out.empty() ? out : out + "\r\n";
  };
  for (const auto& [working, shipped, merged] : cases) {
    VirtualFiles files;
    files.contents["/u/Lang.txt"] = rows(working);
    files.contents["/s/Lang.txt"] = rows(shipped);
    SeedLang(files, "/s/Lang.txt", "/u/Lang.txt");
    EXPECT_EQ(files.contents["/u/Lang.txt"], rows(merged)) << working;
    EXPECT_EQ(files.contents["/s/Lang.txt"], rows(shipped));
    const std::size_t changes = files.log.size();
    SeedLang(files, "/s/Lang.txt", "/u/Lang.txt");
    EXPECT_EQ(files.log.size(), changes) << "nothing is left to bring: " << working;
  }
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
