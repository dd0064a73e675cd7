#include "host/GrowingFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <streambuf>
#include <string_view>
#include <system_error>

#include "recording/Recording.h"
#include "tools/LiveRecording.h"

namespace ostrel {
namespace {

constexpr mode_t kOwnFile = 0600;
constexpr mode_t kAnyFile = 0666;  // less what the user's mask takes
/// Non-blocking: a pipe that nobody reads holds nothing up.
constexpr int kFlags = O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

/// Writes to an open file at once, and closes it at its end.
class DescriptorBuffer final : public std::streambuf {
 public:
  explicit DescriptorBuffer(int descriptor) : descriptor_(descriptor) {}
  ~DescriptorBuffer() override { ::close(descriptor_); }
  DescriptorBuffer(const DescriptorBuffer&) = delete;
  DescriptorBuffer& operator=(const DescriptorBuffer&) = delete;

  int Descriptor() const { return descriptor_; }

 protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    const char octet = traits_type::to_char_type(c);
    return xsputn(&octet, 1) == 1 ? c : traits_type::eof();
  }
  std::streamsize xsputn(const char* octets, std::streamsize count) override {
    std::streamsize done = 0;
    while (done < count) {
      const ssize_t written =
          ::write(descriptor_, octets + done, static_cast<std::size_t>(count - done));
      if (written < 0 && errno != EINTR) break;
      if (written > 0) done += written;
    }
    return done;
  }

 private:
  int descriptor_;
};

class DescriptorStream final : public std::ostream {
 public:
  explicit DescriptorStream(int descriptor) : std::ostream(nullptr), buffer_(descriptor) {
    rdbuf(&buffer_);
  }
  int Descriptor() const { return buffer_.Descriptor(); }

 private:
  DescriptorBuffer buffer_;
};

/// A kind of file that grows while a program runs.
struct GrowingKind {
  bool (*isFirstLine)(std::string_view line);  ///< how a former one begins
  const char* name;
  mode_t mode;  ///< of a new one
};

/// Each line of a trace says early which way it went.
constexpr GrowingKind kTrace{
    [](std::string_view line) {
      for (const std::string_view word : {"TxSer", "RxSer", "TxGsm", "RxGsm", "octets"})
        if (line.find(word) != std::string_view::npos) return true;
      return false;
    },
    "a trace", kOwnFile};
constexpr GrowingKind kRecording{
    [](std::string_view line) { return line.starts_with(kRecordingHead); }, "a recording",
    kAnyFile};

constexpr GrowingKind kLineRecording{
    [](std::string_view line) { return line == kLineRecordingHead; }, "a recording", kOwnFile};

/// What a console says looks like any text: the head alone tells a log from what is none.
constexpr std::string_view kLogHead = "Ostrel console log";
constexpr GrowingKind kLog{[](std::string_view line) { return line == kLogHead; }, "a console log",
                           kOwnFile};

enum class Held { Nothing, FormerOne, SomethingElse };

Held WhatIsHeld(int descriptor, const GrowingKind& kind) {
  std::array<char, 256> start{};
  const ssize_t got = ::pread(descriptor, start.data(), start.size(), 0);
  const std::string_view text(start.data(), got > 0 ? static_cast<std::size_t>(got) : 0);
  if (text.empty()) return Held::Nothing;
  return kind.isFirstLine(text.substr(0, text.find('\n'))) ? Held::FormerOne : Held::SomethingElse;
}

std::string WordsOf(int error) {
  if (error == ENXIO) return "no program reads the pipe";
  return std::generic_category().message(error);
}

using MakeReady = bool (*)(DescriptorStream& stream, const GrowingKind& kind, Held held);

/// Opens a file that holds nothing else than its kind does, and makes it ready, which fails with
/// `errno`. A pipe takes what comes as it is.
std::unique_ptr<std::ostream> Open(const std::string& path, const GrowingKind& kind,
                                   MakeReady makeReady, std::string& why) {
  struct stat state {};
  const bool isPipe = ::stat(path.c_str(), &state) == 0 && !S_ISREG(state.st_mode);
  const int descriptor = ::open(path.c_str(), (isPipe ? O_WRONLY : O_RDWR) | kFlags, kind.mode);
  if (descriptor < 0) {
    why = WordsOf(errno);
    return nullptr;
  }
  auto stream = std::make_unique<DescriptorStream>(descriptor);
  if (isPipe) return stream;
  const Held held = WhatIsHeld(descriptor, kind);
  if (held == Held::SomethingElse) {
    why = std::string("it holds something else than ") + kind.name;
    return nullptr;
  }
  if (makeReady(*stream, kind, held)) return stream;
  why = WordsOf(errno);
  return nullptr;
}

bool MakeEmpty(DescriptorStream& stream, const GrowingKind& kind, Held) {
  const int file = stream.Descriptor();
  return (kind.mode != kOwnFile || ::fchmod(file, kOwnFile) == 0) && ::ftruncate(file, 0) == 0;
}

bool GoToEnd(DescriptorStream& stream, const GrowingKind&, Held held) {
  if (::fcntl(stream.Descriptor(), F_SETFL, O_APPEND | O_NONBLOCK) != 0) return false;
  if (held == Held::Nothing) stream << kLogHead << std::endl;
  return stream.good();
}

}  // namespace

std::unique_ptr<std::ostream> OpenTrace(const std::string& path, std::string& why) {
  return Open(path, kTrace, MakeEmpty, why);
}

std::unique_ptr<std::ostream> OpenLog(const std::string& path, std::string& why) {
  return Open(path, kLog, GoToEnd, why);
}

std::unique_ptr<std::ostream> OpenRecording(const std::string& path, std::string& why) {
  return Open(path, kRecording, MakeEmpty, why);
}

std::unique_ptr<std::ostream> OpenLineRecording(const std::string& path, std::string& why) {
  return Open(path, kLineRecording, MakeEmpty, why);
}

}  // namespace ostrel
