#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "platform/Settings.h"

namespace ostrel {

/// A settings store in memory; its map is open to tests.
class VirtualSettings final : public Settings {
 public:
  using Address = std::tuple<std::string, std::string, std::string>;

  std::map<Address, std::string> values;  ///< by application, section and key

  std::string Get(std::string_view application, std::string_view section,
                  std::string_view key) const override {
    const auto found = values.find(Address{application, section, key});
    return found == values.end() ? std::string() : found->second;
  }

  void Set(std::string_view application, std::string_view section, std::string_view key,
           std::string_view value) override {
    values[Address{application, section, key}] = value;
  }
};

}  // namespace ostrel
