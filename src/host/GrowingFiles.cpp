#include "host/GrowingFiles.h"

#include <algorithm>
#include <string_view>

#include "platform/GrowingFile.h"
#include "recording/Recording.h"
#include "tools/live/LiveRecording.h"

namespace ostrel {
namespace {

/// Whether a line begins with the milliseconds of its time.
bool HasTime(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  const std::size_t end = line.find_first_not_of("0123456789");
  return end != 0 && end != std::string_view::npos && line[end] == ' ';
}

/// Each line of a trace says early which way it went.
constexpr GrowingKind kTrace{
    .isFirstLine =
        [](std::string_view line) {
          if (!HasTime(line)) return false;
          for (const std::string_view word : {"TxSer", "RxSer", "TxGsm", "RxGsm", "octets"})
            if (line.find(word) != std::string_view::npos) return true;
          return false;
        },
    .name = "a trace",
    .isOwnersAlone = true,
    .headOfLog = {}};

constexpr GrowingKind kRecording{
    .isFirstLine = [](std::string_view line) { return line.starts_with(kRecordingHead); },
    .name = "a recording",
    .isOwnersAlone = false,
    .headOfLog = {}};

constexpr GrowingKind kLineRecording{
    .isFirstLine = [](std::string_view line) { return line == kLineRecordingHead; },
    .name = "a recording",
    .isOwnersAlone = true,
    .headOfLog = {}};

/// What a console says looks like any text: the head alone tells a log from what is none.
constexpr std::string_view kLogHead = "Ostrel console log";
constexpr GrowingKind kLog{.isFirstLine = [](std::string_view line) { return line == kLogHead; },
                           .name = "a console log",
                           .isOwnersAlone = true,
                           .headOfLog = kLogHead};

}  // namespace

std::unique_ptr<std::ostream> OpenTrace(const std::string& path, std::string& why) {
  return OpenGrowing(path, kTrace, why);
}

std::unique_ptr<std::ostream> OpenLog(const std::string& path, std::string& why) {
  return OpenGrowing(path, kLog, why);
}

std::unique_ptr<std::ostream> OpenRecording(const std::string& path, std::string& why) {
  return OpenGrowing(path, kRecording, why);
}

std::unique_ptr<std::ostream> OpenLineRecording(const std::string& path, std::string& why) {
  return OpenGrowing(path, kLineRecording, why);
}

}  // namespace ostrel
