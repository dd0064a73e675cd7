#pragma once

#include <string>
#include <string_view>

namespace ostrel {

/// Whose settings these are: the maker, and the section of the program itself. Windows, records and
/// the like have sections of their own.
inline constexpr std::string_view kMaker = "Quorvane";
inline constexpr std::string_view kProduct = "Ostrel Configurator";

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
