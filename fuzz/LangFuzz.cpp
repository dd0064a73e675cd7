// The translation table.

#include "Target.h"
#include "lang/Lang.h"
#include "platform/virtual/VirtualFiles.h"

namespace {

constexpr const char* kNew = "Texto nuevo";
constexpr std::int16_t kLanguage = 2;

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostrel;
  VirtualFiles files;
  files.contents["/Lang.txt"] = fuzz::TextOf(data, size);
  Lang lang(files, "/Lang.txt");
  if (!lang.Init()) return 0;
  lang.SetSelectedLang(kLanguage);
  const int rows = lang.LangCount();
  std::vector<std::string> translated;
  for (int row = 0; row < rows; ++row) translated.push_back(lang.Translate(lang.GetString(1, row)));
  lang.TranslateIfRoom(kNew);
  Lang again(files, "/Lang.txt");
  fuzz::Require(again.Init() || lang.LangCount() >= kLangRows - 1, "a saved table is read");
  if (!again.LangReady()) return 0;
  again.SetSelectedLang(kLanguage);
  for (int row = 0; row < rows; ++row) {
    fuzz::Require(again.GetString(1, row) == lang.GetString(1, row), "its rows stay");
    fuzz::Require(
        again.Translate(again.GetString(1, row)) == translated[static_cast<std::size_t>(row)],
        "a text keeps its translation");
  }
  return 0;
}
