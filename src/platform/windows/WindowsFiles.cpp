#include "platform/windows/WindowsFiles.h"

#include <aclapi.h>
#include <sddl.h>
#include <windows.h>

#include <algorithm>
#include <charconv>
#include <functional>

#include "platform/windows/Handle.h"
#include "platform/windows/WideText.h"

namespace ostrel {
namespace {

constexpr std::string_view kUnfinished = "~ostrel-";  // between a file's name and a process
/// Who may do what: the owner, the system and its administrators all, nobody else anything.
constexpr const wchar_t* kOwnFile = L"D:P(A;;FA;;;OW)(A;;FA;;;SY)(A;;FA;;;BA)";
constexpr const wchar_t* kOwnFolder = L"D:P(A;OICI;FA;;;OW)(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)";

FileResult Failure(DWORD code) { return {SystemWords(code)}; }
/// Result of a call that has just failed or, with `ok`, has not.
FileResult Outcome(bool ok) { return ok ? FileResult{} : Failure(::GetLastError()); }

Handle OpenFile(const std::string& path, DWORD access, DWORD how, DWORD flags = 0) {
  // Who reads must not keep others from replacing the file.
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return Handle(::CreateFileW(WidePath(path).c_str(), access, kShared, nullptr, how,
                              FILE_ATTRIBUTE_NORMAL | flags, nullptr));
}

DWORD AttributesOf(const std::string& path) { return ::GetFileAttributesW(WidePath(path).c_str()); }
bool IsFolder(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// A read-only file is replaced and removed on purpose only, and then its mark is in the way.
void LetChange(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0) return;
  ::SetFileAttributesW(WidePath(path).c_str(),
                       attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
}

bool WriteAll(HANDLE file, std::string_view octets) {
  constexpr std::size_t kBlock = 1U << 20U;
  while (!octets.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min(octets.size(), kBlock));
    if (!::WriteFile(file, octets.data(), size, &written, nullptr) || written == 0) return false;
    octets.remove_prefix(written);
  }
  return true;
}

/// Reads to the end, or beyond the most that is read of a file.
bool ReadAll(HANDLE file, std::size_t most, std::string& octets) {
  constexpr DWORD kBlock = 65'536;
  while (octets.size() <= most) {
    const std::size_t size = octets.size();
    octets.resize(size + kBlock);
    DWORD got = 0;
    const bool ok = ::ReadFile(file, octets.data() + size, kBlock, &got, nullptr) != 0;
    octets.resize(size + got);
    if (!ok) return false;
    if (got == 0) break;
  }
  return true;
}

/// Gets the lock of a file. A process that dies gives it back, too.
bool LockWhole(HANDLE file) {
  OVERLAPPED whole{};
  return ::LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, MAXDWORD,
                      MAXDWORD, &whole) != 0;
}

/// Visits the names in a folder that fit a pattern, with their attributes.
void EachEntry(const std::string& pattern,
               const std::function<void(const std::string& name, DWORD attributes)>& visit) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = ::FindFirstFileW(WidePath(pattern).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do visit(FromWide(found.cFileName), found.dwFileAttributes);
  while (::FindNextFileW(search, &found));
  ::FindClose(search);
}

std::string FolderOf(const std::string& path) {
  const std::size_t end = path.find_last_of("/\\:");
  return end == std::string::npos ? std::string() : path.substr(0, end + 1);
}

/// Whether a temporary file of this ending was left by a process that is gone, or by a former one
/// of this process's number.
bool IsLeftOver(std::string_view ending) {
  DWORD number = 0;
  const auto [end, error] = std::from_chars(ending.data(), ending.data() + ending.size(), number);
  if (error != std::errc() || end != ending.data() + ending.size()) return false;
  if (number == ::GetCurrentProcessId()) return true;
  const Handle process(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, number));
  if (!process) return ::GetLastError() == ERROR_INVALID_PARAMETER;
  DWORD code = 0;
  return ::GetExitCodeProcess(process.Get(), &code) != 0 && code != STILL_ACTIVE;
}

/// Gives a file or folder the access list of a descriptor, in which inherited rights do or do not
/// count.
FileResult SetAccess(const std::string& path, PACL list, bool inherits) {
  std::wstring name = WidePath(path);
  const SECURITY_INFORMATION what =
      DACL_SECURITY_INFORMATION |
      (inherits ? UNPROTECTED_DACL_SECURITY_INFORMATION : PROTECTED_DACL_SECURITY_INFORMATION);
  const DWORD code =
      ::SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, what, nullptr, nullptr, list, nullptr);
  return code == ERROR_SUCCESS ? FileResult{} : Failure(code);
}

/// Whether a file that was opened can be read as one, and how large it is.
FileResult LookAt(const Handle& file, const std::string& path, LARGE_INTEGER& size) {
  if (IsFolder(AttributesOf(path))) return {"it is no regular file"};
  if (!file) return Outcome(false);
  // A device such as "NUL" or "COM1" has a file's name in every folder.
  if (::GetFileType(file.Get()) != FILE_TYPE_DISK) return {"it is no regular file"};
  return Outcome(::GetFileSizeEx(file.Get(), &size) != 0);
}

}  // namespace

FileResult WindowsFiles::ReadUpTo(const std::string& path, std::size_t most, std::string& octets) {
  octets.clear();
  const Handle file = OpenFile(path, GENERIC_READ, OPEN_EXISTING);
  LARGE_INTEGER size{};
  if (FileResult looked = LookAt(file, path, size); !looked.Ok()) return looked;
  const bool isLarge = size.QuadPart > static_cast<LONGLONG>(most);
  if (!isLarge && !ReadAll(file.Get(), most, octets)) {
    const FileResult failed = Outcome(false);
    octets.clear();
    return failed;
  }
  if (!isLarge && octets.size() <= most) return {};
  octets.clear();
  return TooLarge(most);
}

FileResult WindowsFiles::ReadEnd(const std::string& path, std::size_t most, std::string& octets) {
  octets.clear();
  const Handle file = OpenFile(path, GENERIC_READ, OPEN_EXISTING);
  LARGE_INTEGER size{};
  if (FileResult looked = LookAt(file, path, size); !looked.Ok()) return looked;
  LARGE_INTEGER start{};
  start.QuadPart = std::max<LONGLONG>(size.QuadPart - static_cast<LONGLONG>(most), 0);
  if (::SetFilePointerEx(file.Get(), start, nullptr, FILE_BEGIN) &&
      ReadAll(file.Get(), most, octets))
    return {};
  const FileResult failed = Outcome(false);
  octets.clear();
  return failed;
}

bool WindowsFiles::Exists(const std::string& path) {
  return AttributesOf(path) != INVALID_FILE_ATTRIBUTES;
}

std::vector<std::string> WindowsFiles::List(const std::string& folder) {
  std::vector<std::string> names;
  EachEntry(folder + "/*", [&](const std::string& name, DWORD attributes) {
    if (!IsFolder(attributes)) names.push_back(name);
  });
  std::ranges::sort(names);
  return names;
}

std::string WindowsFiles::Absolute(const std::string& path) {
  std::wstring whole = WholePath(ToWide(path));
  std::ranges::replace(whole, L'\\', L'/');  // the separator that the core looks for
  return whole.empty() ? path : FromWide(whole);
}

std::string WindowsFiles::Resolve(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  const bool isLink =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  if (!isLink) return path;
  const Handle file = OpenFile(path, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  std::wstring target(32'768, L'\0');
  const DWORD size = file ? ::GetFinalPathNameByHandleW(file.Get(), target.data(),
                                                        static_cast<DWORD>(target.size()), 0)
                          : 0;
  if (size == 0 || size >= target.size()) return path;
  target.resize(size);
  return FromWide(target);
}

FileResult WindowsFiles::MayReplace(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  const bool isReadOnly = attributes != INVALID_FILE_ATTRIBUTES && !IsFolder(attributes) &&
                          (attributes & FILE_ATTRIBUTE_READONLY) != 0;
  return isReadOnly ? FileResult{"it is read-only"} : FileResult{};
}

std::string WindowsFiles::TemporaryBeside(const std::string& path) {
  const std::string folder = FolderOf(path);
  const std::string start = path.substr(folder.size()) + std::string(kUnfinished);
  EachEntry(folder + start + "*", [&](const std::string& name, DWORD) {
    if (name.starts_with(start) && IsLeftOver(std::string_view(name).substr(start.size())))
      Remove(folder + name);
  });
  return path + std::string(kUnfinished) + std::to_string(::GetCurrentProcessId());
}

FileResult WindowsFiles::Create(const std::string& path) {
  const Handle file = OpenFile(path, GENERIC_WRITE, CREATE_NEW);
  return Outcome(bool(file));
}

FileResult WindowsFiles::CopyMode(const std::string& from, const std::string& to) {
  PACL list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  const DWORD code =
      ::GetNamedSecurityInfoW(WidePath(from).c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION,
                              nullptr, nullptr, &list, nullptr, &descriptor);
  if (code != ERROR_SUCCESS) return Failure(code);
  SECURITY_DESCRIPTOR_CONTROL control = 0;
  DWORD revision = 0;
  ::GetSecurityDescriptorControl(descriptor, &control, &revision);
  const FileResult result = SetAccess(to, list, (control & SE_DACL_PROTECTED) == 0);
  ::LocalFree(descriptor);
  return result;
}

FileResult WindowsFiles::Protect(const std::string& path) {
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  const wchar_t* words = IsFolder(AttributesOf(path)) ? kOwnFolder : kOwnFile;
  if (!::ConvertStringSecurityDescriptorToSecurityDescriptorW(words, SDDL_REVISION_1, &descriptor,
                                                              nullptr))
    return Outcome(false);
  PACL list = nullptr;
  BOOL isPresent = FALSE;
  BOOL isDefault = FALSE;
  ::GetSecurityDescriptorDacl(descriptor, &isPresent, &list, &isDefault);
  const FileResult result = SetAccess(path, list, false);
  ::LocalFree(descriptor);
  return result;
}

FileResult WindowsFiles::Preserve(const std::string& path) {
  const FileResult own = Protect(path);
  if (!own.Ok()) return own;
  return Outcome(::SetFileAttributesW(WidePath(path).c_str(), FILE_ATTRIBUTE_READONLY) != 0);
}

FileResult WindowsFiles::Write(const std::string& path, std::string_view octets) {
  Handle file = OpenFile(path, GENERIC_WRITE, TRUNCATE_EXISTING);
  return Outcome(file && WriteAll(file.Get(), octets) && file.Close());
}

FileResult WindowsFiles::Sync(const std::string& path) {
  const Handle file = OpenFile(path, GENERIC_WRITE, OPEN_EXISTING);
  return Outcome(file && ::FlushFileBuffers(file.Get()));
}

FileResult WindowsFiles::Rename(const std::string& from, const std::string& to) {
  const std::wstring target = WidePath(to);
  if (IsFolder(AttributesOf(to))) return {"what stands there is no file to replace"};
  LetChange(to);
  return Outcome(::MoveFileExW(WidePath(from).c_str(), target.c_str(),
                               MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0);
}

FileResult WindowsFiles::MoveToNew(const std::string& from, const std::string& to) {
  if (::MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(), MOVEFILE_WRITE_THROUGH))
    return {};
  const DWORD code = ::GetLastError();
  return {SystemWords(code), code == ERROR_ALREADY_EXISTS || code == ERROR_FILE_EXISTS};
}

FileResult WindowsFiles::Remove(const std::string& path) {
  LetChange(path);
  return Outcome(::DeleteFileW(WidePath(path).c_str()) != 0);
}

FileResult WindowsFiles::MakeFolder(const std::string& path) {
  if (IsFolder(AttributesOf(path))) return {};
  std::string parent = FolderOf(path);
  while (parent.size() > 1 && (parent.back() == '/' || parent.back() == '\\')) parent.pop_back();
  const bool hasParent = !parent.empty() && parent.back() != ':' && parent.size() < path.size();
  if (hasParent && !Exists(parent)) {
    if (const FileResult made = MakeFolder(parent); !made.Ok()) return made;
  }
  if (::CreateDirectoryW(WidePath(path).c_str(), nullptr)) return {};
  const DWORD code = ::GetLastError();
  if (IsFolder(AttributesOf(path))) return {};
  return Failure(code);
}

FileResult WindowsFiles::Append(const std::string& path, std::string_view octets) {
  Handle file = OpenFile(path, GENERIC_WRITE, OPEN_ALWAYS);
  LARGE_INTEGER before{};
  if (!file || !::SetFilePointerEx(file.Get(), {}, &before, FILE_END)) return Outcome(false);
  if (WriteAll(file.Get(), octets) && ::FlushFileBuffers(file.Get())) return Outcome(file.Close());
  const FileResult failed = Outcome(false);
  if (::SetFilePointerEx(file.Get(), before, nullptr, FILE_BEGIN)) ::SetEndOfFile(file.Get());
  return failed;
}

FileResult WindowsFiles::WhileLocked(const std::string& path, const std::function<void()>& work) {
  const Handle file = OpenFile(path, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
  if (!file) return Outcome(false);
  if (!LockWhole(file.Get()))
    return ::GetLastError() == ERROR_LOCK_VIOLATION ? FileResult{std::string(kHeldElsewhere)}
                                                    : Outcome(false);
  work();
  return {};
}

}  // namespace ostrel
