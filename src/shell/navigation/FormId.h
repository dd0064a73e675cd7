#pragma once

#include <variant>

#include "blocks/PageId.h"

namespace ostrel {

/// What the tree opens beside the pages of a configuration.
enum class ToolId {
  Firm,
  TargetSelect,
  Terminal,
  Test,
  TestBQ,
  TestKA2,
  T_Real_Tavro,
  T_Real_Katodex  ///< no node leads to it: no model has its inputs
};

/// What can be in front.
using FormId = std::variant<PageId, ToolId>;

}  // namespace ostrel
