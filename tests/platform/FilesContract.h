#pragma once

#include <gmock/gmock.h>

#include <string>

#include "platform/Files.h"

namespace ostrel {

/// What holds of every file system. A room has `files` and `Path(name)`, a name in an empty folder.
template <class Room>
class FilesContract : public testing::Test {
 protected:
  Room room;
};
TYPED_TEST_SUITE_P(FilesContract);

TYPED_TEST_P(FilesContract, WhatIsSavedIsReadAndStandsAlone) {
  Files& files = this->room.files;
  const std::string path = this->room.Path("año.ocf");
  std::string all(300'000, '\0');
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<char>(i * 7);
  for (const std::string& text : {std::string("short\r\n"), all, std::string()}) {
    EXPECT_EQ(SaveWhole(files, path, text).error, "");
    EXPECT_EQ(files.Read(path), text);
  }
  EXPECT_THAT(files.List(this->room.Path("")), testing::ElementsAre("año.ocf"));
  EXPECT_EQ(files.Resolve(path), path);
}

TYPED_TEST_P(FilesContract, ANewNameIsNeverTaken) {
  Files& files = this->room.files;
  const std::string path = this->room.Path("copy");
  EXPECT_EQ(SaveNew(files, path, "old").error, "");
  EXPECT_TRUE(SaveNew(files, path, "new").stands);
  EXPECT_EQ(files.Read(path), "old");
  EXPECT_FALSE(files.Create(path).Ok());
  EXPECT_THAT(files.List(this->room.Path("")), testing::ElementsAre("copy")) << "no leftovers";
}

TYPED_TEST_P(FilesContract, WhatIsNotThereFailsWithWords) {
  Files& files = this->room.files;
  const std::string none = this->room.Path("none");
  std::string octets = "former";
  for (const FileResult& result :
       {files.ReadInto(none, octets), files.Write(none, "x"), files.Remove(none),
        files.Rename(none, this->room.Path("a")), files.MoveToNew(none, this->room.Path("a"))}) {
    EXPECT_NE(result.error, "");
    EXPECT_FALSE(result.stands);
  }
  EXPECT_EQ(octets, "");
  EXPECT_FALSE(files.Exists(none));
  EXPECT_TRUE(files.MayReplace(none).Ok());
  EXPECT_THAT(files.List(this->room.Path("no folder")), testing::IsEmpty());
}

TYPED_TEST_P(FilesContract, FilesMoveOverOthersInOneStep) {
  Files& files = this->room.files;
  const std::string from = this->room.Path("from");
  const std::string to = this->room.Path("to");
  ASSERT_TRUE(SaveWhole(files, from, "new").Ok());
  ASSERT_TRUE(SaveWhole(files, to, "old").Ok());
  EXPECT_TRUE(files.MoveToNew(from, to).stands);
  EXPECT_EQ(files.Read(to), "old");
  EXPECT_TRUE(files.Sync(from).Ok());
  EXPECT_EQ(files.Rename(from, to).error, "");
  EXPECT_EQ(files.Read(to), "new");
  EXPECT_FALSE(files.Exists(from));
  EXPECT_TRUE(files.Remove(to).Ok());
  EXPECT_FALSE(files.Exists(to));
}

TYPED_TEST_P(FilesContract, WhatIsAppendedUnderALockComesBehind) {
  Files& files = this->room.files;
  const std::string path = this->room.Path("log");
  int runs = 0;
  for (const char* text : {"one\r\n", "two"}) {
    const FileResult locked = files.WhileLocked(this->room.Path("lock"), [&] {
      EXPECT_EQ(files.Append(path, text).error, "");
      ++runs;
    });
    EXPECT_EQ(locked.error, "");
  }
  EXPECT_EQ(runs, 2);
  EXPECT_EQ(files.Read(path), "one\r\ntwo");
  std::string octets;
  EXPECT_TRUE(files.ReadUpTo(path, 8, octets).Ok());
  EXPECT_NE(files.ReadUpTo(path, 7, octets).error, "");
  EXPECT_EQ(octets, "");
  for (const auto& [most, end] :
       {std::pair{3U, "two"}, {8U, "one\r\ntwo"}, {99U, "one\r\ntwo"}, {0U, ""}}) {
    EXPECT_TRUE(files.ReadEnd(path, most, octets).Ok());
    EXPECT_EQ(octets, end);
  }
  EXPECT_FALSE(files.ReadEnd(path + "x", 3, octets).Ok());
  EXPECT_EQ(octets, "");
  EXPECT_EQ(files.Read(files.Absolute(path)), "one\r\ntwo");
}

REGISTER_TYPED_TEST_SUITE_P(FilesContract, WhatIsSavedIsReadAndStandsAlone, ANewNameIsNeverTaken,
                            WhatIsNotThereFailsWithWords, FilesMoveOverOthersInOneStep,
                            WhatIsAppendedUnderALockComesBehind);

}  // namespace ostrel
