#include <windows.h>

#include <array>
#include <streambuf>
#include <utility>

#include "platform/GrowingFile.h"
#include "platform/windows/Handle.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsFiles.h"

namespace ostrel {
namespace {

/// Writes to an open file at once, and closes it at its end.
class HandleBuffer final : public std::streambuf {
 public:
  explicit HandleBuffer(Handle file) : file_(std::move(file)) {}

 protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    const char octet = traits_type::to_char_type(c);
    return xsputn(&octet, 1) == 1 ? c : traits_type::eof();
  }
  std::streamsize xsputn(const char* octets, std::streamsize count) override {
    DWORD written = 0;
    ::WriteFile(file_.Get(), octets, static_cast<DWORD>(count), &written, nullptr);
    return written;
  }

 private:
  Handle file_;
};

class HandleStream final : public std::ostream {
 public:
  explicit HandleStream(Handle file) : std::ostream(nullptr), buffer_(std::move(file)) {
    rdbuf(&buffer_);
  }

 private:
  HandleBuffer buffer_;
};

/// Opens a file that others may read meanwhile.
Handle OpenShared(const std::string& path, DWORD access) {
  return Handle(::CreateFileW(WidePath(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_DELETE,
                              nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool IsOnDisk(const Handle& file) { return ::GetFileType(file.Get()) == FILE_TYPE_DISK; }

/// Whether a file is empty or begins as one of its kind does. Leaves the place at its beginning.
bool HoldsNothingElse(const Handle& file, const GrowingKind& kind) {
  std::array<char, 256> start{};
  DWORD got = 0;
  ::ReadFile(file.Get(), start.data(), start.size(), &got, nullptr);
  ::SetFilePointerEx(file.Get(), {}, nullptr, FILE_BEGIN);
  const std::string_view text(start.data(), got);
  return text.empty() || kind.isFirstLine(text.substr(0, text.find('\n')));
}

}  // namespace

std::unique_ptr<std::ostream> OpenGrowing(const std::string& path, const GrowingKind& kind,
                                          std::string& why) {
  why.clear();
  Handle file = OpenShared(path, GENERIC_READ | GENERIC_WRITE);
  if (!file) file = OpenShared(path, GENERIC_WRITE);  // a pipe that is only read at its other end
  if (!file) {
    why = SystemWords(::GetLastError());
    return nullptr;
  }
  if (!IsOnDisk(file)) return std::make_unique<HandleStream>(std::move(file));
  if (!HoldsNothingElse(file, kind)) {
    why = std::string("it holds something else than ") + kind.name;
    return nullptr;
  }
  if (kind.isOwnersAlone) why = WindowsFiles().Protect(path).error;
  if (why.empty() && !::SetEndOfFile(file.Get())) why = SystemWords(::GetLastError());
  return why.empty() ? std::make_unique<HandleStream>(std::move(file)) : nullptr;
}

std::unique_ptr<std::ostream> OpenToAppend(const std::string& path, std::string& why) {
  why.clear();
  const bool isNew = ::GetFileAttributesW(WidePath(path).c_str()) == INVALID_FILE_ATTRIBUTES;
  Handle file = OpenShared(path, FILE_APPEND_DATA | SYNCHRONIZE);
  if (!file) why = SystemWords(::GetLastError());
  if (file && isNew && IsOnDisk(file)) why = WindowsFiles().Protect(path).error;
  return why.empty() ? std::make_unique<HandleStream>(std::move(file)) : nullptr;
}

}  // namespace ostrel
