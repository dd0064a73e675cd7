#include <gmock/gmock.h>

#include <algorithm>
#include <string>

#include "platform/Files.h"
#include "platform/FilesContract.h"
#include "platform/virtual/VirtualFiles.h"

namespace ostrel {
namespace {

using testing::ElementsAre;

constexpr const char* kOld = "the old text";
constexpr const char* kNew = "the new and longer text";

TEST(SaveWholeTest, WritesBesideSyncsAndRenames) {
  VirtualFiles files;
  EXPECT_TRUE(SaveWhole(files, "/a.ocf", kNew).Ok());
  EXPECT_EQ(files.Read("/a.ocf"), kNew);
  EXPECT_THAT(files.log,
              ElementsAre("create /a.ocf~ostrel-1", "mode /a.ocf~ostrel-1", "write /a.ocf~ostrel-1",
                          "sync /a.ocf~ostrel-1", "rename /a.ocf~ostrel-1 /a.ocf"));
}

TEST(SaveWholeTest, AnyFailureLeavesTheOldFileWholeAndNothingElse) {
  for (const bool exists : {false, true}) {
    const std::size_t steps = exists ? 6 : 5;  // the former permissions last
    for (std::size_t n = 1; n <= steps; ++n) {
      SCOPED_TRACE(testing::Message() << "failure of step " << n << ", exists " << exists);
      VirtualFiles files;
      if (exists) files.contents["/a.ocf"] = kOld;
      const auto before = files.contents;
      files.FailOperation(n);
      EXPECT_FALSE(SaveWhole(files, "/a.ocf", kNew).Ok());
      EXPECT_EQ(files.contents, before);
      EXPECT_TRUE(SaveWhole(files, "/a.ocf", kNew).Ok());
    }
  }
}

TEST(SaveWholeTest, KillAtAnyStepLeavesTheOldOrTheNewFileWhole) {
  for (std::size_t n = 1; n <= 7; ++n) {
    VirtualFiles files;
    files.contents["/a.ocf"] = kOld;
    files.FailFrom(n);
    const bool saved = SaveWhole(files, "/a.ocf", kNew).Ok();
    EXPECT_EQ(files.Read("/a.ocf"), saved ? kNew : kOld) << "killed at step " << n;
    EXPECT_EQ(saved, n == 7);
    files.Heal();
    EXPECT_TRUE(SaveWhole(files, "/a.ocf", "third").Ok()) << "in spite of what is left about";
    EXPECT_EQ(files.Read("/a.ocf"), "third");
  }
}

TEST(SaveWholeTest, FollowsALinkAndLeavesItInPlace) {
  VirtualFiles files;
  files.links["/desk.ocf"] = "/shelf.ocf";
  files.links["/shelf.ocf"] = "/store/real.ocf";
  files.contents["/store/real.ocf"] = kOld;
  EXPECT_TRUE(SaveWhole(files, "/desk.ocf", kNew).Ok());
  EXPECT_EQ(files.contents["/store/real.ocf"], kNew);
  EXPECT_EQ(files.links.size(), 2u);
  EXPECT_EQ(files.Read("/desk.ocf"), kNew);
}

TEST(SaveNewTest, NeverTakesTheNameOfWhatStands) {
  VirtualFiles files;
  EXPECT_TRUE(SaveNew(files, "/copy", kOld).Ok());
  EXPECT_TRUE(SaveNew(files, "/copy", kNew).stands);
  EXPECT_EQ(files.contents, (std::map<std::string, std::string>{{"/copy", kOld}}));
  EXPECT_EQ(files.modes["/copy"], 0400);
}

/// A folder of the file system in memory.
struct VirtualRoom {
  std::string Path(const std::string& name) const {
    return name.empty() ? "/room" : "/room/" + name;
  }
  VirtualFiles files;
};
INSTANTIATE_TYPED_TEST_SUITE_P(Virtual, FilesContract, VirtualRoom);

}  // namespace
}  // namespace ostrel
