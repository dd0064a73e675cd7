#include <windows.h>

#include <array>
#include <utility>

#include "platform/GrowingFile.h"
#include "platform/windows/Handle.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsFiles.h"

namespace ostrel {
namespace {

/// Writes to an open file at once, and closes it at its end.
class HandleBuffer final : public UnbufferedOctets {
 public:
  explicit HandleBuffer(Handle file) : file_(std::move(file)) {}

 protected:
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

/// Leaves the place at the beginning of the file.
Held WhatFileHolds(const Handle& file, const GrowingKind& kind) {
  std::array<char, 256> start{};
  DWORD got = 0;
  ::ReadFile(file.Get(), start.data(), start.size(), &got, nullptr);
  ::SetFilePointerEx(file.Get(), {}, nullptr, FILE_BEGIN);
  return WhatIsHeld({start.data(), got}, kind);
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
  const Held held = WhatFileHolds(file, kind);
  if (held == Held::SomethingElse) {
    why = WordsOfAnother(kind);
    return nullptr;
  }
  const bool isLog = !kind.headOfLog.empty();
  const bool isPlaced = isLog ? ::SetFilePointerEx(file.Get(), {}, nullptr, FILE_END) != 0
                              : ::SetEndOfFile(file.Get()) != 0;
  if (!isPlaced) why = SystemWords(::GetLastError());
  const bool mustProtect = kind.isOwnersAlone && (held == Held::Nothing || !isLog);
  if (why.empty() && mustProtect) why = WindowsFiles().Protect(path).error;
  if (!why.empty()) return nullptr;
  auto stream = std::make_unique<HandleStream>(std::move(file));
  if (isLog && held == Held::Nothing) *stream << kind.headOfLog << std::endl;
  return stream;
}

}  // namespace ostrel
