#pragma once

#include <windows.h>

#include <utility>

namespace ostrel {

/// An object of the system, closed at the end of its scope.
class Handle {
 public:
  explicit Handle(HANDLE handle = nullptr) : handle_(handle) {}
  ~Handle() { Close(); }
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }

  explicit operator bool() const { return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }
  /// Closes early and tells whether that worked.
  bool Close() {
    const bool isOpen = bool(*this);
    const HANDLE handle = std::exchange(handle_, nullptr);
    return isOpen && ::CloseHandle(handle) != 0;
  }

 private:
  HANDLE handle_;
};

}  // namespace ostrel
