#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <optional>
#include <system_error>

#include "platform/GrowingFile.h"

namespace ostrel {
namespace {

constexpr mode_t kOwnersMode = 0600;
constexpr mode_t kAnyMode = 0666;  // less what the user's mask takes
/// Non-blocking: a pipe that nobody reads holds nothing up.
constexpr int kFlags = O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

/// Writes without the signal of a pipe that nobody reads any more: that it has failed is no reason
/// to end the program, or to break off what it does with a logger.
ssize_t WriteQuietly(int descriptor, const char* octets, std::size_t count) {
  sigset_t pipe;
  sigset_t former;
  sigemptyset(&pipe);
  sigaddset(&pipe, SIGPIPE);
  ::pthread_sigmask(SIG_BLOCK, &pipe, &former);
  const ssize_t written = ::write(descriptor, octets, count);
  const int error = errno;
  if (written < 0 && error == EPIPE) {
    constexpr timespec kNow{};
    ::sigtimedwait(&pipe, nullptr, &kNow);
  }
  ::pthread_sigmask(SIG_SETMASK, &former, nullptr);
  errno = error;
  return written;
}

/// Writes to an open file at once, and closes it at its end.
class DescriptorBuffer final : public UnbufferedOctets {
 public:
  explicit DescriptorBuffer(int descriptor) : descriptor_(descriptor) {}
  ~DescriptorBuffer() override { ::close(descriptor_); }
  DescriptorBuffer(const DescriptorBuffer&) = delete;
  DescriptorBuffer& operator=(const DescriptorBuffer&) = delete;

  int Descriptor() const { return descriptor_; }

 protected:
  std::streamsize xsputn(const char* octets, std::streamsize count) override {
    std::streamsize done = 0;
    while (done < count) {
      const ssize_t written =
          WriteQuietly(descriptor_, octets + done, static_cast<std::size_t>(count - done));
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

/// Nothing where it cannot be read, with `errno`.
std::optional<Held> WhatFileHolds(int descriptor, const GrowingKind& kind) {
  std::array<char, 256> start{};
  const ssize_t got = ::pread(descriptor, start.data(), start.size(), 0);
  if (got < 0) return std::nullopt;
  return WhatIsHeld({start.data(), static_cast<std::size_t>(got)}, kind);
}

/// These two fail with `errno`.
bool MakeEmpty(int file, const GrowingKind& kind) {
  return (!kind.isOwnersAlone || ::fchmod(file, kOwnersMode) == 0) && ::ftruncate(file, 0) == 0;
}
bool GoToEnd(DescriptorStream& stream, const GrowingKind& kind, Held held) {
  if (::fcntl(stream.Descriptor(), F_SETFL, O_APPEND | O_NONBLOCK) != 0) return false;
  if (held == Held::Nothing) stream << kind.headOfLog << std::endl;
  return stream.good();
}

std::string WordsOf(int error) {
  if (error == ENXIO) return "no program reads the pipe";
  return std::generic_category().message(error);
}

}  // namespace

std::unique_ptr<std::ostream> OpenGrowing(const std::string& path, const GrowingKind& kind,
                                          std::string& why) {
  const mode_t mode = kind.isOwnersAlone ? kOwnersMode : kAnyMode;
  struct stat state {};
  const bool isPipe = ::stat(path.c_str(), &state) == 0 && !S_ISREG(state.st_mode);
  const int descriptor = ::open(path.c_str(), (isPipe ? O_WRONLY : O_RDWR) | kFlags, mode);
  if (descriptor < 0) {
    why = WordsOf(errno);
    return nullptr;
  }
  auto stream = std::make_unique<DescriptorStream>(descriptor);
  if (isPipe) return stream;
  const std::optional<Held> held = WhatFileHolds(descriptor, kind);
  if (held == Held::SomethingElse) {
    why = WordsOfAnother(kind);
    return nullptr;
  }
  const bool isReady = held && (kind.headOfLog.empty() ? MakeEmpty(descriptor, kind)
                                                       : GoToEnd(*stream, kind, *held));
  if (isReady) return stream;
  why = WordsOf(errno);
  return nullptr;
}

}  // namespace ostrel
