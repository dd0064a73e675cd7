#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "platform/virtual/VirtualWorld.h"
#include "shell/Configurator.h"

namespace ostrel {

/// The outside world of a configurator on virtual time, with the table of texts that is shipped.
struct World : VirtualWorld {
  World() {
    std::ifstream shipped(OSTREL_LANG_FILE, std::ios::binary);
    files.contents[kLangFile] = {std::istreambuf_iterator<char>(shipped), {}};
  }

  /// A stored value of the program itself.
  std::string& Stored(const std::string& key) {
    return settings.values[{"Quorvane", "Ostrel Configurator", key}];
  }

  ConfiguratorOptions Options(bool ticking) const {
    return {.programFolder = "/opt/ostrel", .langFile = kLangFile, .ticking = ticking};
  }

  static constexpr const char* kLangFile = "/data/Lang.txt";
};

}  // namespace ostrel
