#pragma once

#include <string>
#include <string_view>

namespace ostrel {

/// The per-user settings store, addressed by application, section and key; injected because it
/// stands outside the process.
class Settings {
 public:
  virtual ~Settings() = default;
  /// The stored text, UTF-8; empty when there is none.
  virtual std::string Get(std::string_view application, std::string_view section,
                          std::string_view key) const = 0;
  virtual void Set(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) = 0;
};

}  // namespace ostrel
