#pragma once

#include <string>

namespace ostrel {

/// An Intel hex file of so many records of data, each of 45 octets as stored.
inline std::string HexFile(int records) {
  std::string file;
  for (int i = 0; i < records; ++i) file += ":10010000214601360121470136007EFE09D2190140\r\n";
  return file + ":00000001FF\r\n";
}

}  // namespace ostrel
