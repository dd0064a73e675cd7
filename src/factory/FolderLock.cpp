#include "factory/FolderLock.h"

#include "platform/EventLoop.h"

namespace ostrel {
namespace {

constexpr Duration kLongest = std::chrono::seconds(5);
constexpr Duration kPause = std::chrono::milliseconds(50);

}  // namespace

FileResult WhileFolderLocked(const Platform& platform, const std::string& folder,
                             const std::function<void()>& work) {
  EventLoop& loop = platform.loop;
  const TimePoint giveUp = loop.Now() + kLongest;
  while (true) {
    FileResult locked = platform.files.WhileLocked(folder + "/TestOstrel.lock", work);
    if (locked.error != kHeldElsewhere || loop.Now() >= giveUp) return locked;
    loop.RunUntil([] { return false; }, loop.Now() + kPause);
  }
}

}  // namespace ostrel
