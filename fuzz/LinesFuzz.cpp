// The lines of a download, one a line of the input; the first one names the model.

#include "Target.h"
#include "base/BoundFailure.h"
#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "link/LineReader.h"
#include "platform/virtual/VirtualFiles.h"
#include "store/IniClass.h"

namespace {

using namespace ostrel;

constexpr unsigned kWhole = 64;
const Translation kSame = [](std::string_view text) { return std::string(text); };

void ReadInto(DeviceConf& conf, const std::string& line) {
  const std::string_view key = std::string_view(line).substr(0, line.find(','));
  for (const Block& block : Blocks()) {
    for (const LineSection& section : block.lines) {
      if (section.key != key) continue;
      const std::string message = "#BD000" + line;
      LineReader reader(message);
      try {
        section.read(reader, conf, {});
      } catch (const BoundFailure&) {
        return;  // ends a download with a plain failure
      }
    }
  }
}

/// Whatever was read can be kept in a file, and comes back from it.
void KeepInFile(const DeviceConf& conf, const TargetProfile& profile) {
  VirtualFiles files;
  IniClass document(files);
  SaveConfiguration(conf, profile, document);
  const std::string saved = document.OutputINI();
  document.InputINI(saved, false);
  DeviceConf again = EmptyConfiguration(profile, kSame);
  RestoreConfiguration(again, profile, kSame,
                       [&](const std::string& section, const std::string& key) {
                         const std::string* value = document.Find(section, key);
                         return value ? *value : std::string();
                       });
  SaveConfiguration(again, profile, document);
  const std::string twice = document.OutputINI();
  document.InputINI(twice, false);
  fuzz::Require(document.OutputINI() == twice, "a document that is read and written stays");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view whole = fuzz::TextOf(data, size);
  std::string_view rest = whole;
  const TargetModel* const named = FindTarget(std::string(fuzz::TakeLine(rest)));
  const TargetModel& model = named ? *named : TargetModels().front();
  TargetProfile profile;
  SelectTarget(profile, std::string(model.name));
  DeviceConf conf = EmptyConfiguration(profile, kSame);
  while (!rest.empty()) ReadInto(conf, FromCodePage(fuzz::TakeLine(rest)));
  if (!fuzz::IsChosen(whole, kWhole)) return 0;
  ComposeStatements(conf, {profile, kEveryFeature});
  KeepInFile(conf, profile);
  return 0;
}
