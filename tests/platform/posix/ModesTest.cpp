#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <csignal>
#include <fstream>

#include "platform/GrowingFile.h"
#include "platform/qt/SqlLedger.h"

namespace ostrel {
namespace {

constexpr GrowingKind kNotes{.isFirstLine = [](std::string_view line) { return line == "notes"; },
                             .name = "notes",
                             .isOwnersAlone = true,
                             .headOfLog = {}};

/// What grows tells what was sent, and who did it: nobody else may read it.
class ModesTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    return folder.path().toStdString() + "/" + name;
  }
  mode_t ModeOf(const std::string& name) const {
    struct stat state {};
    EXPECT_EQ(::stat(Path(name).c_str(), &state), 0);
    return state.st_mode & 0777;
  }

  QTemporaryDir folder;
  std::string why;
};

TEST_F(ModesTest, WhatGrowsIsItsOwnersAlone) {
  GrowingKind log = kNotes;
  log.headOfLog = "notes";
  std::ofstream(Path("former")) << "notes\n";
  ::chmod(Path("former").c_str(), 0644);
  EXPECT_TRUE(OpenGrowing(Path("new"), kNotes, why) && OpenGrowing(Path("log"), log, why)) << why;
  EXPECT_TRUE(OpenGrowing(Path("former"), kNotes, why)) << why;
  SqlLedger(Path("ledger"),
            {.user = "nadia", .nameOf = [](const std::string& number) { return number; }})
      .Add({});
  for (const char* name : {"new", "log", "former", "ledger"}) EXPECT_EQ(ModeOf(name), 0600U);
}

TEST_F(ModesTest, APipeHoldsNothingUp) {
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(OpenGrowing(Path("pipe"), kNotes, why));
  EXPECT_EQ(why, "no program reads the pipe");
  EXPECT_FALSE(OpenGrowing(Path("no/folder"), kNotes, why));
  EXPECT_EQ(why, "No such file or directory");
  const auto full = OpenGrowing("/dev/full", kNotes, why);
  ASSERT_TRUE(full) << why;
  EXPECT_FALSE(*full << "line" << std::flush);
}

TEST_F(ModesTest, AReaderThatGoesEndsThePipeAndNotTheProgram) {
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(OpenGrowing(Path("pipe"), kNotes, why));
  EXPECT_EQ(why, "no program reads the pipe");
  const int reader = ::open(Path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
  const auto notes = OpenGrowing(Path("pipe"), kNotes, why);
  ASSERT_TRUE(notes);
  EXPECT_TRUE(*notes << "heard");
  ::close(reader);
  EXPECT_FALSE(*notes << "not heard");
  sigset_t waiting;
  ::sigpending(&waiting);
  EXPECT_FALSE(sigismember(&waiting, SIGPIPE));
}

}  // namespace
}  // namespace ostrel
