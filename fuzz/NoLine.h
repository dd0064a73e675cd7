#pragma once

#include "platform/Line.h"
#include "platform/virtual/VirtualLoop.h"

namespace ostrel::fuzz {

/// A line to nowhere, for a logger that is not talked to.
struct NoLine final : LineEnd {
  void Send(std::string_view) override {}
  void SetCarrier(bool) override {}
  void Vanish() override {}

  VirtualLoop loop;
};

}  // namespace ostrel::fuzz
