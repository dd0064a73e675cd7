#include <gmock/gmock.h>
#include <windows.h>

#include "platform/FilesContract.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsFiles.h"

namespace ostrel {
namespace {

/// A folder of its own on the disk, with a path that is longer than the system's short ones.
class DiskRoom {
 public:
  DiskRoom() {
    static int made = 0;
    wchar_t base[MAX_PATH];
    ::GetTempPathW(MAX_PATH, base);
    folder_ = FromWide(base) + "ostrel-" + std::to_string(::GetCurrentProcessId()) + "-" +
              std::to_string(made++) + "/" + std::string(120, 'd') + "/" + std::string(120, 'e');
    EXPECT_EQ(files.MakeFolder(folder_).error, "");
  }

  std::string Path(const std::string& name) const {
    return name.empty() ? folder_ : folder_ + "/" + name;
  }

  WindowsFiles files;

 private:
  std::string folder_;
};
INSTANTIATE_TYPED_TEST_SUITE_P(Windows, FilesContract, DiskRoom);

TEST(WindowsFilesTest, WhatIsReadOnlyIsReplacedOnPurposeOnly) {
  DiskRoom room;
  const std::string path = room.Path("a");
  ASSERT_TRUE(SaveWhole(room.files, path, "old").Ok());
  ::SetFileAttributesW(WidePath(path).c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(SaveWhole(room.files, path, "new").error, "it is read-only");
  EXPECT_EQ(SaveWhole(room.files, path, "new", Replacing::Any).error, "");
  EXPECT_EQ(room.files.Read(path), "new");
}

TEST(WindowsFilesTest, WhatKilledProgramsHaveLeftGoesAtTheNextSave) {
  DiskRoom room;
  const std::string own = room.Path("a~ostrel-" + std::to_string(::GetCurrentProcessId()));
  const std::string gone = room.Path("a~ostrel-4000000");
  const std::string other = room.Path("a~ostrel-9x");
  for (const std::string& path : {own, gone, other}) ASSERT_TRUE(room.files.Create(path).Ok());
  EXPECT_EQ(SaveWhole(room.files, room.Path("a"), "x").error, "");
  EXPECT_FALSE(room.files.Exists(own) || room.files.Exists(gone));
  EXPECT_TRUE(room.files.Exists(other));
}

TEST(WindowsFilesTest, AWholePathHasSlashes) {
  WindowsFiles files;
  EXPECT_EQ(files.Absolute("C:\\a\\b\\..\\x.ocf"), "C:/a/x.ocf");
  EXPECT_EQ(files.Absolute("none.ocf").find('\\'), std::string::npos);
}

TEST(WindowsFilesTest, DevicesAreNoFiles) {
  WindowsFiles files;
  std::string octets;
  EXPECT_EQ(files.ReadInto("NUL", octets).error, "it is no regular file");
  EXPECT_EQ(files.ReadInto("C:\\windows", octets).error, "it is no regular file");
}

}  // namespace
}  // namespace ostrel
