#pragma once

#include "shell/compare/Comparison.h"

namespace ostrel {

class Configurator;

/// What was sent, or is to be, against what the logger of a configurator has reported.
class Against {
 public:
  Against(const Configurator& configurator, const DeviceConf& sent, const DeviceConf& read,
          Passwords passwords = Passwords::Hidden);

  Comparison WhatChanges() const { return Compare(read_, sent_, features_, passwords_); }
  Comparison WhatCameBack() const { return Compare(sent_, read_, features_, passwords_); }

 private:
  std::int32_t features_;
  Passwords passwords_;
  ModelConfiguration sent_, read_;
};

}  // namespace ostrel
