#include "host/TraceFile.h"

#include <string_view>

#include "platform/GrowingFile.h"
#include "recording/Recording.h"
#include "tools/LiveRecording.h"

namespace ostrel {
namespace {

/// Each line of a trace says early which way it went.
constexpr GrowingKind kTrace{
    [](std::string_view line) {
      for (const std::string_view word : {"TxSer", "RxSer", "TxGsm", "RxGsm", "octets"})
        if (line.find(word) != std::string_view::npos) return true;
      return false;
    },
    "a trace", true};
constexpr GrowingKind kRecording{
    [](std::string_view line) { return line.starts_with(kRecordingHead); }, "a recording", false};

constexpr GrowingKind kLineRecording{
    [](std::string_view line) { return line == kLineRecordingHead; }, "a recording", true};

}  // namespace

std::unique_ptr<std::ostream> OpenTrace(const std::string& path, std::string& why) {
  return OpenGrowing(path, kTrace, why);
}

std::unique_ptr<std::ostream> OpenLog(const std::string& path, std::string& why) {
  return OpenToAppend(path, why);
}

std::unique_ptr<std::ostream> OpenRecording(const std::string& path, std::string& why) {
  return OpenGrowing(path, kRecording, why);
}

std::unique_ptr<std::ostream> OpenLineRecording(const std::string& path, std::string& why) {
  return OpenGrowing(path, kLineRecording, why);
}

}  // namespace ostrel
