#include <gmock/gmock.h>

#include "platform/virtual/VirtualSettings.h"
#include "shell/files/RecentFiles.h"

namespace ostrel {
namespace {

TEST(RecentFiles, KeepTheNewestFirstAndEachOnce) {
  using testing::ElementsAre;
  VirtualSettings settings;
  RecentFiles recent(settings);
  EXPECT_THAT(recent.Paths(), ElementsAre());
  for (int i = 0; i < 10; ++i) recent.Add("/f" + std::to_string(i));
  recent.Add("/f5");
  EXPECT_THAT(recent.Paths(), ElementsAre("/f5", "/f9", "/f8", "/f7", "/f6", "/f4", "/f3", "/f2"));
}

}  // namespace
}  // namespace ostrel
