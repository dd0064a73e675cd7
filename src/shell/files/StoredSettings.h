#pragma once

#include <string>
#include <string_view>

#include "platform/Settings.h"

namespace ostrel {

/// The program's own values in the per-user store.
class StoredSettings {
 public:
  explicit StoredSettings(Settings& settings) : settings_(settings) {}

  std::string Idioma() const { return Get("Idioma"); }
  std::string ComPort() const { return Get("ComPort"); }
  std::string Target() const { return Get("Target"); }
  void SetIdioma(std::string_view value) { Set("Idioma", value); }
  void SetComPort(std::string_view value) { Set("ComPort", value); }
  void SetTarget(std::string_view value) { Set("Target", value); }

 private:
  std::string Get(std::string_view key) const { return settings_.Get(kMaker, kProduct, key); }
  void Set(std::string_view key, std::string_view value) {
    settings_.Set(kMaker, kProduct, key, value);
  }

  Settings& settings_;
};

}  // namespace ostrel
