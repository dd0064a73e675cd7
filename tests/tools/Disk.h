#pragma once

#include <sstream>

namespace ostrel {

/// What a file holds, and how often it was brought to the disk.
struct Disk : std::stringbuf {
  int written = 0;

 private:
  int sync() override {
    ++written;
    return 0;
  }
};

}  // namespace ostrel
