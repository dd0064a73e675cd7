#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/TargetProfile.h"

namespace ostrel {

/// One action that a model offers.
struct ActionItem {
  std::int16_t number = 0;
  std::string text;  ///< "1 - Ejecutar macro 0"
};

/// The actions that a model offers, in ascending order. Names pass through `translate`.
std::vector<ActionItem> OfferedActions(
    const TargetProfile& profile, const std::function<std::string(std::string_view)>& translate);

/// All Spanish names of actions, the reserved one that no model offers included.
std::vector<std::string_view> ActionNames();

}  // namespace ostrel
