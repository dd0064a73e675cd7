#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <set>
#include <string>
#include <vector>

#include "platform/posix/PosixFiles.h"

namespace ostrel {
namespace {

/// Several programs that raise one counter get a number each. Each reads, dawdles and writes: only
/// the lock keeps them apart.
TEST(FileLock, ProgramsTakeTurns) {
  constexpr int kPrograms = 4, kTurns = 25;
  const QTemporaryDir folder;
  const std::string counter = folder.filePath("counter").toStdString();
  const std::string taken = folder.filePath("taken").toStdString();
  PosixFiles files;
  ASSERT_TRUE(files.Create(counter).Ok());
  ASSERT_TRUE(files.Write(counter, "0").Ok());
  std::vector<pid_t> programs;
  for (int program = 0; program < kPrograms; ++program) {
    const pid_t child = fork();
    if (child == 0) {
      bool good = true;
      for (int turn = 0; turn < kTurns; ++turn) {
        FileResult locked{std::string(kHeldElsewhere)};
        while (locked.error == kHeldElsewhere)
          locked = files.WhileLocked(folder.filePath("lock").toStdString(), [&] {
            const int last = std::stoi(*files.Read(counter));
            const std::string next = std::to_string(last + 1);
            sched_yield();
            good &= files.Write(counter, next).Ok();
            good &= files.Append(taken, next + "\n").Ok();
          });
        good &= locked.Ok();
      }
      _exit(good ? 0 : 1);
    }
    programs.push_back(child);
  }
  for (const pid_t program : programs) {
    int status = 0;
    ASSERT_EQ(waitpid(program, &status, 0), program);
    EXPECT_EQ(WEXITSTATUS(status), 0);
  }
  std::set<std::string> numbers;
  std::string rest = files.Read(taken).value_or("");
  for (std::size_t end = rest.find('\n'); end != std::string::npos; end = rest.find('\n')) {
    EXPECT_TRUE(numbers.insert(rest.substr(0, end)).second) << "given twice";
    rest.erase(0, end + 1);
  }
  EXPECT_EQ(numbers.size(), std::size_t{kPrograms * kTurns});
  EXPECT_EQ(files.Read(counter), std::to_string(kPrograms * kTurns));
}

TEST(FileLock, WhatCannotBeLockedIsNotDone) {
  PosixFiles files;
  bool ran = false;
  EXPECT_FALSE(files.WhileLocked("/nowhere/lock", [&] { ran = true; }).Ok());
  EXPECT_FALSE(ran);
  EXPECT_FALSE(files.Append("/nowhere/file", "x").Ok());
}

}  // namespace
}  // namespace ostrel
