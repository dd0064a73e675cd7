#include <filesystem>
#include <fstream>

#include "cli/World.h"
#include "recording/Replay.h"

namespace ostrel::cli {
namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string TextOf(const Recording& recording, RecordedKind kind) {
  for (const RecordedEvent& event : recording)
    if (event.kind == kind) return event.text;
  return {};
}

/// What went over the line, one line each, without the times.
std::string Talk(const Recording& recording) {
  std::string talk;
  for (const RecordedEvent& event : recording)
    if (event.kind == RecordedKind::Sent || event.kind == RecordedKind::Received)
      talk += RecordedLine(event);
  return talk;
}

/// A file of a command, which is kept when the command closes it.
struct Kept final : std::ostringstream {
  explicit Kept(std::string& where) : kept(where) {}
  ~Kept() override { kept = str(); }
  std::string& kept;
};

void HaveRecordingsAtHand(World& world) {
  for (const auto& entry : fs::directory_iterator(OSTREL_RECORDINGS))
    world.files.contents[entry.path().filename().string()] = Content(entry.path());
}

void PlaysAgain(const std::string& name) {
  World world;
  HaveRecordingsAtHand(world);
  std::string error;
  const auto then = ReadRecording(world.files.contents.at(name), error);
  ASSERT_TRUE(then) << error;
  if (const auto date = ReadDateTime(TextOf(*then, RecordedKind::Remark)))
    world.clock.SetNow(*date);
  world.simulated.Port().AddDevice(40, "replay", "", [&](LineEnd& end) {
    return std::make_unique<Replay>(world.loop, end, *then, ReplayPace::Promptly);
  });
  std::string text;
  world.environment.openLineRecording = [&](const std::string&, std::string&) {
    return std::make_unique<Kept>(text);
  };
  const int code =
      world.Run(TextOf(*then, RecordedKind::Command) + " --port COM40 --code 1234 --record again");
  EXPECT_EQ(std::to_string(code), TextOf(*then, RecordedKind::End)) << world.err;
  const auto now = ReadRecording(text, error);
  ASSERT_TRUE(now) << error;
  EXPECT_EQ(Talk(*now), Talk(*then));
}

TEST(Recordings, ComeToTheSameAgain) {
  int count = 0;
  for (const auto& entry : fs::directory_iterator(OSTREL_RECORDINGS)) {
    if (entry.path().extension() != ".rec") continue;
    SCOPED_TRACE(entry.path().filename());
    PlaysAgain(entry.path().filename().string());
    ++count;
  }
  EXPECT_GE(count, 6);
}

}  // namespace
}  // namespace ostrel::cli
