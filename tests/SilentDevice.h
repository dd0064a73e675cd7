#pragma once

#include "platform/Line.h"

namespace ostrel {

/// A device that never speaks.
struct SilentDevice final : LineDevice {
  void Receive(std::string_view) override {}
  void SetTerminalReady(bool) override {}
};

}  // namespace ostrel
