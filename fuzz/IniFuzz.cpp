// The document of a configuration file.

#include "Target.h"
#include "platform/virtual/VirtualFiles.h"
#include "shell/files/ConfigurationFile.h"
#include "store/IniClass.h"

namespace {

using namespace ostrel;

constexpr unsigned kAsConfiguration = 64;
constexpr unsigned kFolded = 2;

void ReadAsConfiguration(const std::string& octets) {
  TargetProfile present;
  SelectTarget(present, std::string(TargetModels().front().name));
  const auto read =
      ReadContent(octets, present, [](std::string_view text) { return std::string(text); });
  if (!read) return;
  VirtualFiles files;
  const std::string saved = ContentOf(files, read->conf, read->profile);
  fuzz::Require(!saved.empty(), "a configuration can be saved");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::TextOf(data, size);
  VirtualFiles files;
  files.contents["/in"] = text;
  IniClass document(files);
  document.SetCaseSensitive(!fuzz::IsChosen(text, kFolded));
  document.OpenINI("/in", true);
  fuzz::Require(document.SaveINI("/once").Ok(), "a document is saved");
  document.OpenINI("/once", false);
  fuzz::Require(document.SaveINI("/twice").Ok(), "a document is saved");
  fuzz::Require(files.contents["/once"] == files.contents["/twice"],
                "a document that is read and written stays");
  document.Visit([](std::string_view) {},
                 [&](std::string_view, const std::string& value) {
                   fuzz::Require(value.find('\n') == std::string::npos, "a value is one line");
                 });
  if (fuzz::IsChosen(text, kAsConfiguration)) ReadAsConfiguration(std::string(text));
  return 0;
}
