#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualClock.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualFiles.h"
#include "platform/virtual/VirtualLoop.h"
#include "platform/virtual/VirtualProcesses.h"
#include "platform/virtual/VirtualSettings.h"
#include "shell/Configurator.h"

namespace ostrel {

/// The outside world of a configurator on virtual time, with the table of texts that is shipped.
struct World {
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

  VirtualLoop loop;
  LinePort port{loop};
  VirtualSettings settings;
  VirtualDialogs dialogs;
  VirtualFiles files;
  VirtualProcesses processes;
  VirtualClock clock{DateTime{2026, 3, 2, 9, 5, 7}, loop};
  Platform platform{loop, port, settings, dialogs, files, processes, clock};
};

}  // namespace ostrel
