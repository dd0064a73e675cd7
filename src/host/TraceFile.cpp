#include "host/TraceFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <streambuf>
#include <string_view>
#include <system_error>

namespace ostrel {
namespace {

constexpr mode_t kOwnFile = 0600;
/// Non-blocking: a pipe that nobody reads holds nothing up.
constexpr int kFlags = O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

/// Writes to an open file at once, and closes it at its end.
class DescriptorBuffer final : public std::streambuf {
 public:
  explicit DescriptorBuffer(int descriptor) : descriptor_(descriptor) {}
  ~DescriptorBuffer() override { ::close(descriptor_); }
  DescriptorBuffer(const DescriptorBuffer&) = delete;
  DescriptorBuffer& operator=(const DescriptorBuffer&) = delete;

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

 private:
  DescriptorBuffer buffer_;
};

/// Whether a file is empty or begins as a trace does: each of its lines says early which way it
/// went.
bool HoldsNothingElse(int descriptor) {
  std::array<char, 256> start{};
  const ssize_t got = ::pread(descriptor, start.data(), start.size(), 0);
  const std::string_view text(start.data(), got > 0 ? static_cast<std::size_t>(got) : 0);
  const std::string_view line = text.substr(0, text.find('\n'));
  for (const std::string_view word : {"TxSer", "RxSer", "TxGsm", "RxGsm", "octets"})
    if (line.find(word) != std::string_view::npos) return true;
  return text.empty();
}

std::string WordsOf(int error) {
  if (error == ENXIO) return "no program reads the pipe";
  return std::generic_category().message(error);
}

}  // namespace

std::unique_ptr<std::ostream> OpenLog(const std::string& path, std::string& why) {
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_APPEND | kFlags, kOwnFile);
  if (descriptor >= 0) return std::make_unique<DescriptorStream>(descriptor);
  why = WordsOf(errno);
  return nullptr;
}

std::unique_ptr<std::ostream> OpenTrace(const std::string& path, std::string& why) {
  struct stat state {};
  const bool isPipe = ::stat(path.c_str(), &state) == 0 && !S_ISREG(state.st_mode);
  const int descriptor = ::open(path.c_str(), (isPipe ? O_WRONLY : O_RDWR) | kFlags, kOwnFile);
  if (descriptor < 0) {
    why = WordsOf(errno);
    return nullptr;
  }
  auto stream = std::make_unique<DescriptorStream>(descriptor);
  if (isPipe) return stream;
  if (!HoldsNothingElse(descriptor)) {
    why = "it holds something else than a trace";
    return nullptr;
  }
  if (::fchmod(descriptor, kOwnFile) != 0 || ::ftruncate(descriptor, 0) != 0) {
    why = WordsOf(errno);
    return nullptr;
  }
  return stream;
}

}  // namespace ostrel
