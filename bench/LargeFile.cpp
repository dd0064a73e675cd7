#include "LargeFile.h"

#include "base/Numbers.h"

namespace ostrel {
namespace {

constexpr int kKeysOfASection = 160;

LargeFile Made() {
  LargeFile made;
  made.text = "[General]\r\nVERSION=OSTREL_S100";
  for (int n = 0; n < kLargeFileKeys; ++n) {
    const std::string section = "MINPUT.A" + NumText(n / kKeysOfASection);
    const int place = n % kKeysOfASection;
    if (place == 0) made.text += "\r\n[" + section + "]";
    const std::string key = "ACTHI(" + NumText(place % 4) + NumText(place / 4) + ")";
    made.text += "\r\n" + key + "=" + NumText(place);
    made.keys.emplace_back(section, key);
  }
  return made;
}

}  // namespace

const LargeFile& LargeFile::Get() {
  static const LargeFile file = Made();
  return file;
}

}  // namespace ostrel
