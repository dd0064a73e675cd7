#pragma once

#include <string>
#include <string_view>

namespace ostrel {

/// How a form that has a part several times names its controls: "D_" ahead of a name, or "(3)"
/// behind it.
struct ControlNames {
  std::string prefix{};
  std::string suffix{};

  std::string operator()(std::string_view name) const {
    return prefix + std::string(name) + suffix;
  }
};

}  // namespace ostrel
